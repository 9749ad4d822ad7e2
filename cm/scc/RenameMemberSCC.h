#pragma once

#include <string>

#include "cm/core/CMOperation.h"

namespace veldra {

/// Gives the file of one unit another name; a name without directory stays in its own, and in
/// another one a package takes its directory along. Archive and disk are kept in step; the model is
/// left to the host. 1 when the file has its new name.
class RenameMemberSCC : public CMWorkspaceOperation {
 public:
  /// The new name is the argument "newName", the comment that of "log".
  int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                 bool hybrid) override;
  int operator()(IUnit* unit, const std::string& oldName, const std::string& newName,
                 DiagnosticList& diagnostics, bool hybrid, const std::string& comment = {});
};

}  // namespace veldra
