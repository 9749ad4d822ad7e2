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
  static int ListWorkspace(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  static int Fetch(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
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
  static int AddDirectory(std::string directory, ArgumentList& arguments,
                          DiagnosticList& diagnostics);
  static int DeleteDirectory(const std::string& directory, ArgumentList& arguments,
                             DiagnosticList& diagnostics, bool flag, IDObject* object);
  static int RenameMember(IUnit* unit, const std::string& oldName, const std::string& newName,
                          DiagnosticList& diagnostics);
  /// The same with a comment and the like.
  static int RenameMember(IUnit* unit, const std::string& oldName, const std::string& newName,
                          ArgumentList& arguments, DiagnosticList& diagnostics);
  static int movePackageContent(IUnit* package, UnitList& units, const std::string& oldPath,
                                const std::string& newPath, ArgumentList& arguments,
                                DiagnosticList& diagnostics, bool flag);

  // --- the provider and dialogs ---
  static int doSetUpSCC();
  static int doCleanUpSCC();
  static int doCloseProjectSCC();
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
  static SaveCallback& saveCallbackFunc();
  static ReloadCallback& ATMCallbackFunc();
  static IMainFrame*& ATMCallbackFuncParameter();
  static ReloadCallback& afterATMCallbackFunc();
  static IMainFrame*& afterATMCallbackFuncParameter();
  /// The stream pointer of the main outputter.
  static std::ostream*& outStream();
};

}  // namespace veldra
