#pragma once

#include <string>

#include "cm/core/CMOperation.h"

namespace veldra {

/// Gives check-outs up, file by file, and reloads what the archive gave back.
///
/// Where the project's SCC property "IgnoreUndoCheckoutForNotCheckedoutUnits" is true, the first
/// unit that is not checked out ends the whole operation. The result is always 0.
class UncheckoutSCC : public CMWorkspaceOperation {
 public:
  int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                 bool hybrid) override;
  /// Lets a file that followed its unit's name follow the name that the reload brought.
  void renameFileIfNeeded(IUnit* unit, const std::string& storedFileName,
                          const std::string& oldName) const;
};

}  // namespace veldra
