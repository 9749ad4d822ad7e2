#pragma once

#include <functional>
#include <iosfwd>
#include <string>

#include "cm/core/CMArchiveItemList.h"
#include "cm/core/CMArgument.h"
#include "cm/core/CMDiagnostic.h"
#include "cm/host/Export.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// What the host passes to its own reload callbacks; the module only hands it on.
class IMainFrame {
 public:
  virtual ~IMainFrame() = default;
};

/// The one door through which the host and the module's dialogs start an operation.
///
/// Every entry point opens a transaction, lets it drop units that may not take part, chooses the
/// back end and calls the operation. The result is non-zero for success; 0 is failure or that
/// nothing was done. Per-unit results are appended to the diagnostics. No entry point throws.
class VELDRA_CM_EXPORT CMFacade {
 public:
  // --- on units ---
  static int ConnectToArchive(UnitList& units, ArgumentList& arguments,
                              DiagnosticList& diagnostics);
  /// Needs no project and opens no transaction.
  static int ListWorkspace(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int Fetch(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  /// Fetches what units are compared with. The provider does it, whatever the project selects,
  /// unless hybrid mode gives it to the command-line tool.
  static int FetchForDiff(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int LockItem(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int UnLockItem(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int Properties(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int CheckOut(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int CheckIn(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int History(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int Uncheckout(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int RecCheckOut(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int RecCheckIn(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int RecUncheckout(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int AddMember(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int DeleteMember(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int MoveMember(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);

  // --- on archive items ---
  static int ListArchive(CMArchiveItemList& items, ArgumentList& arguments,
                         DiagnosticList& diagnostics);
  /// Opens and tests the transaction only; always 0.
  static int ConnectToArchive(CMArchiveItemList& items, ArgumentList& arguments,
                              DiagnosticList& diagnostics);
  static int CheckOutFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                                 DiagnosticList& diagnostics);
  static int FetchFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                              DiagnosticList& diagnostics);
  static int RecCheckOutFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                                    DiagnosticList& diagnostics);
  static int RecFetchFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                                 DiagnosticList& diagnostics);
  static int FetchForDiffFromArc(CMArchiveItemList& items, ArgumentList& arguments,
                                 DiagnosticList& diagnostics);
  static int HistoryArcView(CMArchiveItemList& items, ArgumentList& arguments,
                            DiagnosticList& diagnostics);
  static int Uncheckout(CMArchiveItemList& items, ArgumentList& arguments,
                        DiagnosticList& diagnostics);

  // --- on directories and names ---
  /// Provider back end only: a command-line tool has no such operation, and the answer is 0.
  static int AddDirectory(std::string directory, ArgumentList& arguments,
                          DiagnosticList& diagnostics);
  /// Removes a directory with all that it holds from the archive. `flag` makes the command-line
  /// tool read its template in the metaclass named after the provider; `object` (may be null) is
  /// for the provider.
  static int DeleteDirectory(const std::string& directory, ArgumentList& arguments,
                             DiagnosticList& diagnostics, bool flag, IDObject* object);
  /// Both names are full file names.
  static int RenameMember(IUnit* unit, const std::string& oldName, const std::string& newName,
                          DiagnosticList& diagnostics);
  /// The same with a comment and the like.
  static int RenameMember(IUnit* unit, const std::string& oldName, const std::string& newName,
                          ArgumentList& arguments, DiagnosticList& diagnostics);
  /// Moves what a package holds from one directory to another. `flag` as in `DeleteDirectory`.
  static int movePackageContent(IUnit* package, UnitList& units, const std::string& oldPath,
                                const std::string& newPath, ArgumentList& arguments,
                                DiagnosticList& diagnostics, bool flag);

  // --- the provider and dialogs ---
  /// Readies the provider when a project opens; 1 under the command-line back end.
  static int doSetUpSCC();
  /// Both let a loaded provider clean up; always 1.
  static int doCleanUpSCC();
  static int doCloseProjectSCC();
  /// Runs the provider's own program.
  static int RunToolExe();
  /// Shows the connect-to-archive dialog; 1 whatever it answers.
  static int doConnectToArcDlg();
  /// Kept for the host's interface; the host opens the main dialog itself.
  static void DoCmDialog() {}

  /// Removes repeated units in place; the first of each stays where it is.
  static void removeDuplicatesFromItemList(UnitList& units);

  // --- slots that the host fills once after loading the module; all start empty ---
  using SaveCallback = std::function<void()>;
  using ReloadCallback = std::function<void(IMainFrame*)>;
  /// Saves the model; called before commands that read its files.
  static SaveCallback& saveCallbackFunc();
  /// Called with its parameter before units are reloaded, and the other one afterwards.
  static ReloadCallback& ATMCallbackFunc();
  static IMainFrame*& ATMCallbackFuncParameter();
  static ReloadCallback& afterATMCallbackFunc();
  static IMainFrame*& afterATMCallbackFuncParameter();
  /// The stream pointer of the main outputter.
  static std::ostream*& outStream();
};

}  // namespace veldra
