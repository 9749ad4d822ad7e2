#pragma once

#include <string>

#include "cm/tool/UnitCommand.h"

namespace veldra {

/// Gives members another file name. The names are full names, so that a member may change its
/// directory, too. Where both change for a package that has a directory of its own, the directory
/// itself gets the other name, by the template "RenameDirectory" where the tool has that;
/// everything else goes by the template "Rename".
///
/// The command renames the local files along. The model is left to the host.
class CMRenameMember : public UnitCommand {
 public:
  /// One unit, whose new name is the argument "newName".
  int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                 bool hybrid) override;
  int operator()(IUnit* unit, const std::string& oldName, const std::string& newName,
                 DiagnosticList& diagnostics, bool hybrid);

 protected:
  const OperationRow& row() const override;
  CommandTemplate templateFor(IUnit& unit, const UnitCallFrame& call) const override;
  std::optional<CMNameChange> nameChange(const IUnit& unit,
                                         const UnitCallFrame& call) const override;
  bool accepts(IUnit& unit, const UnitCallFrame& call) const override;
};

}  // namespace veldra
