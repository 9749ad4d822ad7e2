#pragma once

#include <string>

#include "cm/core/CMOperation.h"

namespace veldra {

/// Moves the files of units to the directory that an argument "targetDir" names, or without one to
/// the directory that each unit is set to be saved in. A package that has a directory of its own
/// takes it along with everything in it. Archive and disk are kept in step; the model is left to
/// the host, which knows by the progress what has been moved. 1 when everything was.
class MoveMemberSCC : public CMWorkspaceOperation {
 public:
  int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                 bool hybrid) override;

  /// Moves what lies below one path to another: the files of the package and of the units.
  static int movePackageContent(IUnit* package, UnitList& units, const std::string& oldPath,
                                const std::string& newPath, ArgumentList& arguments,
                                DiagnosticList& diagnostics, bool flag);
};

}  // namespace veldra
