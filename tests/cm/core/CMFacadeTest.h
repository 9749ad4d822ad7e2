#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cm/core/CMFacade.h"
#include "tests/support/HostTest.h"
#include "tests/support/RecordingBackEnd.h"

namespace veldra::test {

/// What every entry point can be called with; a row of a table picks what it needs.
struct Caller {
  UnitList units;
  CMArchiveItemList items;
  ArgumentList arguments;
  DiagnosticList diagnostics;
};

using UnitEntryPoint = int (*)(UnitList&, ArgumentList&, DiagnosticList&);
using ItemEntryPoint = int (*)(CMArchiveItemList&, ArgumentList&, DiagnosticList&);
using Call = std::function<int(Caller&)>;

Call onUnits(UnitEntryPoint entry);
Call onItems(ItemEntryPoint entry);

/// One entry point: what runs under each back end ("" where nothing does) and which transaction it
/// opens.
struct EntryRow {
  const char* name;
  int type;
  const char* underTool;
  const char* underProvider;
  bool checksUnits;
  bool needsUnits;
  Call call;
};

std::vector<EntryRow> unitRows();
std::vector<EntryRow> allRows();

class CMFacadeTest : public HostTest {
 protected:
  Caller callerWithUnit() {
    Caller caller;
    caller.units = {&m_model.addUnit("Engine.vcl")};
    return caller;
  }
  Lines calls() {
    Lines taken;
    taken.swap(m_backEnds.calls);
    return taken;
  }
  static Lines oneOrNone(const std::string& call) { return call.empty() ? Lines{} : Lines{call}; }

  RecordedBackEnds m_backEnds;
};

}  // namespace veldra::test
