#pragma once

#include <string>

#include "cm/tool/UnitCommand.h"

namespace veldra {

/// Removes members from the archive. A package that has a directory of its own goes with everything
/// in it, by the template "DeleteDirectory" where the tool has that; every other unit goes by the
/// template "Delete". The model is left to the host, which knows by the progress what is gone.
class CMDeleteMember : public UnitCommand {
 public:
  /// Removes a directory that need not be one of a unit. `flag` reads the template in the metaclass
  /// that is named after the provider. 0 when there is no template or no tool, otherwise what
  /// running the command returned.
  int deleteDirectory(const std::string& directory, ArgumentList& arguments,
                      DiagnosticList& diagnostics, bool flag);

 protected:
  const OperationRow& row() const override;
  CommandTemplate templateFor(IUnit& unit, const UnitCallFrame& call) const override;
  bool accepts(IUnit& unit, const UnitCallFrame& call) const override;
};

}  // namespace veldra
