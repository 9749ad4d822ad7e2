#pragma once

#include <string>

#include "cm/core/CMOperation.h"

namespace veldra {

/// Takes the files of units out of the archive, those of a package with everything below it. The
/// local files and the units stay: the host, which knows by the progress what has gone, removes
/// them. 1 when the archive has none of them any more.
class DeleteMemberSCC : public CMWorkspaceOperation {
 public:
  int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                 bool hybrid) override;

  /// Takes everything out of the archive that lies in a directory, loaded or not.
  static int DeleteDirectory(const std::string& directory, ArgumentList& arguments,
                             DiagnosticList& diagnostics, bool flag, IDObject* object);
};

}  // namespace veldra
