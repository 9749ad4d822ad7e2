#pragma once

#include "cm/tool/UnitCommand.h"

namespace veldra {

/// Gives a check-out up: the archived revision comes back and is reloaded.
class CMUnCheckout : public UnitCommand {
 public:
  using UnitCommand::operator();
  /// The same for items of the archive, without a reload.
  int operator()(CMArchiveItemList& items, ArgumentList& arguments, DiagnosticList& diagnostics);

  /// Lets a file that followed its unit's name follow the name that the reload brought. Nothing
  /// happens unless the recorded name `nameBefore` equals the unit's former file name `nameNow`.
  void renameFileIfNeeded(IUnit* unit, const std::string& nameBefore,
                          const std::string& nameNow) const;

 protected:
  const OperationRow& row() const override;
  void after(UnitRun& run) const override;
};

}  // namespace veldra
