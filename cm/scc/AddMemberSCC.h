#pragma once

#include <string>

#include "cm/core/CMOperation.h"

namespace veldra {

/// Adds the files of units to the archive, with the comment that an argument "log" gives. Text is
/// added as text; of other files the provider finds out the type. A note tells how many were added,
/// unless an argument "shouldSuppressSCCOKMessage" says "Yes". 1 when all were added.
class AddMemberSCC : public CMWorkspaceOperation {
 public:
  int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                 bool hybrid) override;

  /// Adds a directory: the units whose files lie in it or, when there are none, the directory as it
  /// is.
  static int AddDirectory(const std::string& directory, ArgumentList& arguments,
                          DiagnosticList& diagnostics);
};

}  // namespace veldra
