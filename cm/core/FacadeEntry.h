#pragma once

#include <exception>

#include "cm/core/BackEnd.h"
#include "cm/core/CMTranscation.h"

namespace veldra {

/// Which back end an entry point takes.
enum class Route { Selected, AlwaysTool, AlwaysProvider };

/// What distinguishes one facade entry point on units from another. A null function means that
/// there is nothing to run on that side: the answer is 0.
struct UnitEntry {
  using Function = int (BackEnd::*)(const UnitCall&);

  CMTranscationType type;
  Route route;
  Function tool;
  Function provider;
  bool checkUnits = false;
  bool needsUnits = false;
  /// Where the provider would run and this answers true, the tool runs with the hybrid flag
  /// instead.
  bool (*prefersTool)(const UnitList& units) = nullptr;
  void (*after)() = nullptr;
};

/// The same for entry points on archive items.
struct ItemEntry {
  using Function = int (BackEnd::*)(const ItemCall&);

  CMTranscationType type;
  Route route;
  Function tool;
  Function provider;
};

/// Tells the user that an operation ended by an exception; the answer is 0.
int reportEscape(CMTranscationType type, const char* what) noexcept;

/// Runs `run`. This is the one place where exceptions of the back ends and of host code end.
template <class Run>
int withoutEscape(CMTranscationType type, Run run) {
  try {
    return run();
  } catch (const std::exception& e) {
    return reportEscape(type, e.what());
  } catch (...) {
    return reportEscape(type, "unknown");
  }
}

/// The sequence that every entry point shares: transaction, validity, then `run`.
template <class Run>
int enterFacade(CMTranscationType type, Run run) {
  return withoutEscape(type, [&] {
    CMTranscation transcation(nullptr, 1, type, "");
    return transcation.isValidTranscation() ? run() : 0;
  });
}

int runEntry(const UnitEntry& entry, UnitList& units, ArgumentList& arguments,
             DiagnosticList& diagnostics);
int runEntry(const ItemEntry& entry, CMArchiveItemList& items, ArgumentList& arguments,
             DiagnosticList& diagnostics);

/// Whether a route ends at the provider.
bool takesProvider(Route route);

}  // namespace veldra
