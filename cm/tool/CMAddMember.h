#pragma once

#include <string>

#include "cm/tool/UnitCommand.h"

namespace veldra {

/// Puts units that are not yet archived under control.
///
/// For tools that keep directories under control there is a second way of working, chosen by the
/// setting "CheckOutCheckInDirectoryOnceDuringAddToArchive": each directory is checked out once,
/// all its files are added, and it is checked in again.
class CMAddMember : public UnitCommand {
 public:
  int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                 bool hybrid) override;

 protected:
  const OperationRow& row() const override;
  CommandTemplate templateFor(IUnit& unit, const UnitCallFrame& call) const override;
  bool accepts(IUnit& unit, const UnitCallFrame& call) const override;
  void after(UnitRun& run) const override;
};

}  // namespace veldra
