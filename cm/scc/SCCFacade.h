#pragma once

#include <string>

#include "cm/core/CMArchiveItemList.h"
#include "cm/core/CMArgument.h"
#include "cm/core/CMDiagnostic.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// The entry points of the provider back end. Each makes its operation and calls it; the
/// operations say what they answer.
class SCCFacade {
 public:
  /// Loads the provider when a project opens; a second time it closes the project of the set-up's
  /// own context instead. Always 1.
  static int doSetUpSCC();
  static int doCloseProjectSCC();
  static int doCleanUpSCC();
  /// Providers have windows of their own for this; always 1.
  static int SCCRunToolExe();

  static int SCCConnectToArchive(UnitList& units, ArgumentList& arguments,
                                 DiagnosticList& diagnostics);
  static int SCCFetch(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int SCCFetchForDiff(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int SCCProperties(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int SCCCheckOut(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int SCCCheckIn(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int SCCHistory(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int SCCUncheckout(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int SCCRecCheckOut(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int SCCAddMember(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int SCCDeleteMember(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int SCCMoveMember(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int SCCRenameMember(IUnit* unit, const std::string& oldName, const std::string& newName,
                             DiagnosticList& diagnostics, const std::string& comment = {});
  static int SCCAddDirectory(std::string directory, ArgumentList& arguments,
                             DiagnosticList& diagnostics);

  static int SCCListArchive(CMArchiveItemList& items, ArgumentList& arguments,
                            DiagnosticList& diagnostics);
  static int SCCCheckOutFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                                    DiagnosticList& diagnostics);
  static int SCCRecCheckOutFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                                       DiagnosticList& diagnostics);
  static int FetchFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                              DiagnosticList& diagnostics);
  static int RecFetchFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                                 DiagnosticList& diagnostics);
  static int SCCFetchForDiffFromArc(CMArchiveItemList& items, ArgumentList& arguments,
                                    DiagnosticList& diagnostics);
  static int SCCAltHistory(CMArchiveItemList& items, ArgumentList& arguments,
                           DiagnosticList& diagnostics);
};

}  // namespace veldra
