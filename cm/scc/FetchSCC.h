#pragma once

#include "cm/core/CMOperation.h"

namespace veldra {

/// Gets the archived revisions of units and reloads them. A writable file is overwritten only with
/// the user's consent. The result is always 0.
///
/// The static members fetch for other purposes; they answer 1 when everything was fetched. Where an
/// argument "targetDir" names a file or an existing directory, the revision goes there and the
/// working file stays as it is, with everything that was changed in it.
class FetchSCC : public CMWorkspaceOperation {
 public:
  int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                 bool hybrid) override;

  /// For a comparison; needs a target. Serves projects that use a command-line tool, too.
  static int FetchForDiff(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int FetchForDiffFromArc(CMArchiveItemList& items, ArgumentList& arguments,
                                 DiagnosticList& diagnostics);
  /// Without a target the files go to their places in the project; those of loaded units are
  /// reloaded.
  static int FetchFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                              DiagnosticList& diagnostics);
  /// The same with everything below the items that are packages.
  static int RecFetchFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                                 DiagnosticList& diagnostics);
};

}  // namespace veldra
