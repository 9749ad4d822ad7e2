#pragma once

#include <string>

#include "cm/tool/UnitCommand.h"

namespace veldra {

/// Moves members to another directory, which the argument "targetDir" names; without one nothing is
/// done. A package that has a directory of its own goes with everything in it, by the template
/// "MoveDirectory" where the tool has that; every other unit goes by the template "Rename".
///
/// The command moves the local files along. The model is left to the host, which knows by the
/// progress what has been moved.
class CMMoveMember : public UnitCommand {
 public:
  int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                 bool hybrid) override;

  /// Moves what a package holds from one directory to another: the whole directory by
  /// "MoveDirectory", or, where the tool has no such template, each of the units by "Rename".
  /// `flag` reads the templates in the metaclass that is named after the provider.
  int movePackageContent(IUnit* package, UnitList& units, const std::string& oldPath,
                         const std::string& newPath, ArgumentList& arguments,
                         DiagnosticList& diagnostics, bool flag);

 protected:
  const OperationRow& row() const override;
  CommandTemplate templateFor(IUnit& unit, const UnitCallFrame& call) const override;
  std::optional<CMNameChange> nameChange(const IUnit& unit,
                                         const UnitCallFrame& call) const override;
  bool accepts(IUnit& unit, const UnitCallFrame& call) const override;
};

}  // namespace veldra
