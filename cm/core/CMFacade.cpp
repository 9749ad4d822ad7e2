#include "cm/core/CMFacade.h"

#include <unordered_set>
#include <utility>

#include "cm/core/FacadeEntry.h"
#include "cm/core/HybridRule.h"
#include "cm/core/ModuleState.h"
#include "cm/host/Host.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

using enum Route;

bool hybridPossible(const UnitList& /*units*/) {
  return HybridRule::isPossible();
}

// Entry points on units: kind, route, what runs under the tool and under the provider, and the
// rest.
constexpr UnitEntry connectEntry{.type = TxnConnect,
                                 .route = Selected,
                                 .tool = &BackEnd::connectToArchive,
                                 .provider = &BackEnd::connectToArchive};
constexpr UnitEntry fetchEntry{.type = TxnFetch,
                               .route = Selected,
                               .tool = &BackEnd::fetch,
                               .provider = &BackEnd::fetch,
                               .checkUnits = true,
                               .after = CurrentWorkspace::ApplySavedUnitsListToNonActiveProjects};
// Comparison always goes to the provider, whatever the project selects, unless hybrid mode may step
// in.
constexpr UnitEntry fetchForDiffEntry{.type = TxnFetch,
                                      .route = AlwaysProvider,
                                      .tool = &BackEnd::fetch,
                                      .provider = &BackEnd::fetchForDiff,
                                      .checkUnits = true,
                                      .prefersTool = hybridPossible};
constexpr UnitEntry lockEntry{.type = TxnLock,
                              .route = AlwaysTool,
                              .tool = &BackEnd::lockItem,
                              .provider = nullptr,
                              .checkUnits = true};
constexpr UnitEntry unlockEntry{.type = TxnUnlock,
                                .route = AlwaysTool,
                                .tool = &BackEnd::unlockItem,
                                .provider = nullptr,
                                .checkUnits = true};
constexpr UnitEntry propertiesEntry{.type = TxnProperties,
                                    .route = AlwaysProvider,
                                    .tool = nullptr,
                                    .provider = &BackEnd::properties,
                                    .checkUnits = true};
constexpr UnitEntry checkOutEntry{.type = TxnCheckOut,
                                  .route = Selected,
                                  .tool = &BackEnd::checkOut,
                                  .provider = &BackEnd::checkOut,
                                  .checkUnits = true,
                                  .needsUnits = true};
constexpr UnitEntry checkInEntry{.type = TxnCheckIn,
                                 .route = Selected,
                                 .tool = &BackEnd::checkIn,
                                 .provider = &BackEnd::checkIn,
                                 .checkUnits = true,
                                 .needsUnits = true};
constexpr UnitEntry historyEntry{.type = TxnHistory,
                                 .route = Selected,
                                 .tool = &BackEnd::history,
                                 .provider = &BackEnd::history,
                                 .checkUnits = true,
                                 .needsUnits = true};
constexpr UnitEntry uncheckoutEntry{
    .type = TxnUncheckout,
    .route = Selected,
    .tool = &BackEnd::uncheckout,
    .provider = &BackEnd::uncheckout,
    .checkUnits = true,
    .needsUnits = true,
    .after = CurrentWorkspace::ApplySavedUnitsListToNonActiveProjects};
constexpr UnitEntry recCheckOutEntry{.type = TxnCheckOut,
                                     .route = Selected,
                                     .tool = &BackEnd::recCheckOut,
                                     .provider = &BackEnd::recCheckOut,
                                     .checkUnits = true};
// A provider checks in recursively with its plain check-in.
constexpr UnitEntry recCheckInEntry{.type = TxnCheckIn,
                                    .route = Selected,
                                    .tool = &BackEnd::recCheckIn,
                                    .provider = &BackEnd::checkIn,
                                    .checkUnits = true};
constexpr UnitEntry recUncheckoutEntry{.type = TxnUncheckout,
                                       .route = Selected,
                                       .tool = &BackEnd::recUncheckout,
                                       .provider = nullptr,
                                       .checkUnits = true};
constexpr UnitEntry addMemberEntry{.type = TxnAddMember,
                                   .route = Selected,
                                   .tool = &BackEnd::addMember,
                                   .provider = &BackEnd::addMember,
                                   .checkUnits = true};
constexpr UnitEntry deleteMemberEntry{.type = TxnDeleteMember,
                                      .route = Selected,
                                      .tool = &BackEnd::deleteMember,
                                      .provider = &BackEnd::deleteMember,
                                      .checkUnits = true,
                                      .prefersTool = HybridRule::appliesToPackages};
constexpr UnitEntry moveMemberEntry{.type = TxnMove,
                                    .route = Selected,
                                    .tool = &BackEnd::moveMember,
                                    .provider = &BackEnd::moveMember,
                                    .prefersTool = HybridRule::appliesToPackages};

// Entry points on archive items.
constexpr ItemEntry listArchiveEntry{TxnListArchive, Selected, &BackEnd::listArchive,
                                     &BackEnd::listArchive};
constexpr ItemEntry connectItemsEntry{TxnConnect, Selected, nullptr, nullptr};
constexpr ItemEntry checkOutItemsEntry{TxnCheckOut, Selected, &BackEnd::checkOutFromArchive,
                                       &BackEnd::checkOutFromArchive};
constexpr ItemEntry fetchItemsEntry{TxnFetch, Selected, &BackEnd::fetchFromArchive,
                                    &BackEnd::fetchFromArchive};
constexpr ItemEntry recCheckOutItemsEntry{TxnCheckOut, Selected, &BackEnd::recCheckOutFromArchive,
                                          &BackEnd::recCheckOutFromArchive};
constexpr ItemEntry recFetchItemsEntry{TxnFetch, Selected, &BackEnd::recFetchFromArchive,
                                       &BackEnd::recFetchFromArchive};
constexpr ItemEntry fetchForDiffItemsEntry{TxnFetch, AlwaysProvider, nullptr,
                                           &BackEnd::fetchForDiffFromArc};
constexpr ItemEntry historyItemsEntry{TxnHistory, AlwaysProvider, nullptr,
                                      &BackEnd::historyArcView};
constexpr ItemEntry uncheckoutItemsEntry{TxnUncheckout, AlwaysTool, &BackEnd::uncheckoutItems,
                                         nullptr};

/// Sets the host's flags for an undo check-out and puts them back on every way out.
class UncheckoutFlags {
 public:
  UncheckoutFlags() {
    Host* const host = installedHost();
    if (host == nullptr) return;
    m_flags = &host->model().flags();
    m_saved = std::exchange(*m_flags, {.isOk2All = false, .reloadForDupId = true});
  }
  UncheckoutFlags(const UncheckoutFlags&) = delete;
  UncheckoutFlags& operator=(const UncheckoutFlags&) = delete;
  ~UncheckoutFlags() {
    if (m_flags != nullptr) *m_flags = m_saved;
  }

 private:
  HostFlags* m_flags = nullptr;
  HostFlags m_saved;
};

std::unique_ptr<INObject::IgnoreCGModification> ignoreCGModification() {
  Host* const host = installedHost();
  return host != nullptr ? host->model().ignoreCGModification() : nullptr;
}

int renameMember(RenameCall call) {
  return enterFacade(TxnRename, [&] {
    const bool provider = takesProvider(Selected);
    call.hybrid = provider && HybridRule::appliesToRename(call.oldName, call.newName);
    BackEnd& backEnd = provider && !call.hybrid ? *backEnds().provider : *backEnds().tool;
    return backEnd.renameMember(call);
  });
}

}  // namespace

int CMFacade::ConnectToArchive(UnitList& units, ArgumentList& arguments,
                               DiagnosticList& diagnostics) {
  return runEntry(connectEntry, units, arguments, diagnostics);
}

int CMFacade::ListWorkspace(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  // The workspace is the host's: no transaction and no back-end choice.
  return withoutEscape(TxnListArchive, [&] {
    return backEnds().tool->listWorkspace({units, arguments, diagnostics, false});
  });
}

int CMFacade::Fetch(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return runEntry(fetchEntry, units, arguments, diagnostics);
}

int CMFacade::FetchForDiff(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return runEntry(fetchForDiffEntry, units, arguments, diagnostics);
}

int CMFacade::LockItem(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return runEntry(lockEntry, units, arguments, diagnostics);
}

int CMFacade::UnLockItem(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return runEntry(unlockEntry, units, arguments, diagnostics);
}

int CMFacade::Properties(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return runEntry(propertiesEntry, units, arguments, diagnostics);
}

int CMFacade::CheckOut(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return withoutEscape(TxnCheckOut, [&] {
    const std::unique_ptr<INObject::IgnoreCGModification> ignored = ignoreCGModification();
    return runEntry(checkOutEntry, units, arguments, diagnostics);
  });
}

int CMFacade::CheckIn(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return runEntry(checkInEntry, units, arguments, diagnostics);
}

int CMFacade::History(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return runEntry(historyEntry, units, arguments, diagnostics);
}

int CMFacade::Uncheckout(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return withoutEscape(TxnUncheckout, [&] {
    const UncheckoutFlags flags;
    return runEntry(uncheckoutEntry, units, arguments, diagnostics);
  });
}

int CMFacade::RecCheckOut(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return runEntry(recCheckOutEntry, units, arguments, diagnostics);
}

int CMFacade::RecCheckIn(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return runEntry(recCheckInEntry, units, arguments, diagnostics);
}

int CMFacade::RecUncheckout(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return runEntry(recUncheckoutEntry, units, arguments, diagnostics);
}

int CMFacade::AddMember(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return runEntry(addMemberEntry, units, arguments, diagnostics);
}

int CMFacade::DeleteMember(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return runEntry(deleteMemberEntry, units, arguments, diagnostics);
}

int CMFacade::MoveMember(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return runEntry(moveMemberEntry, units, arguments, diagnostics);
}

int CMFacade::ListArchive(CMArchiveItemList& items, ArgumentList& arguments,
                          DiagnosticList& diagnostics) {
  return runEntry(listArchiveEntry, items, arguments, diagnostics);
}

int CMFacade::ConnectToArchive(CMArchiveItemList& items, ArgumentList& arguments,
                               DiagnosticList& diagnostics) {
  return runEntry(connectItemsEntry, items, arguments, diagnostics);
}

int CMFacade::CheckOutFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                                  DiagnosticList& diagnostics) {
  return runEntry(checkOutItemsEntry, items, arguments, diagnostics);
}

int CMFacade::FetchFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                               DiagnosticList& diagnostics) {
  return runEntry(fetchItemsEntry, items, arguments, diagnostics);
}

int CMFacade::RecCheckOutFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                                     DiagnosticList& diagnostics) {
  return runEntry(recCheckOutItemsEntry, items, arguments, diagnostics);
}

int CMFacade::RecFetchFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                                  DiagnosticList& diagnostics) {
  return runEntry(recFetchItemsEntry, items, arguments, diagnostics);
}

int CMFacade::FetchForDiffFromArc(CMArchiveItemList& items, ArgumentList& arguments,
                                  DiagnosticList& diagnostics) {
  return runEntry(fetchForDiffItemsEntry, items, arguments, diagnostics);
}

int CMFacade::HistoryArcView(CMArchiveItemList& items, ArgumentList& arguments,
                             DiagnosticList& diagnostics) {
  return runEntry(historyItemsEntry, items, arguments, diagnostics);
}

int CMFacade::Uncheckout(CMArchiveItemList& items, ArgumentList& arguments,
                         DiagnosticList& diagnostics) {
  return withoutEscape(TxnUncheckout, [&] {
    const UncheckoutFlags flags;
    return runEntry(uncheckoutItemsEntry, items, arguments, diagnostics);
  });
}

int CMFacade::AddDirectory(std::string directory, ArgumentList& arguments,
                           DiagnosticList& diagnostics) {
  return enterFacade(TxnAddDirectory, [&] {
    // Command-line tools have no operation for a bare directory.
    if (!takesProvider(Selected)) return 0;
    return backEnds().provider->addDirectory({directory, arguments, diagnostics});
  });
}

int CMFacade::DeleteDirectory(const std::string& directory, ArgumentList& arguments,
                              DiagnosticList& diagnostics, bool flag, IDObject* object) {
  return enterFacade(TxnDeleteDirectory, [&] {
    const bool provider = takesProvider(Selected) && isProviderNamed("Corvane");
    BackEnd& backEnd = provider ? *backEnds().provider : *backEnds().tool;
    return backEnd.deleteDirectory({directory, arguments, diagnostics, flag, object});
  });
}

int CMFacade::RenameMember(IUnit* unit, const std::string& oldName, const std::string& newName,
                           DiagnosticList& diagnostics) {
  return renameMember({unit, oldName, newName, diagnostics});
}

int CMFacade::RenameMember(IUnit* unit, const std::string& oldName, const std::string& newName,
                           ArgumentList& arguments, DiagnosticList& diagnostics) {
  return renameMember({unit, oldName, newName, diagnostics, false, &arguments});
}

int CMFacade::movePackageContent(IUnit* package, UnitList& units, const std::string& oldPath,
                                 const std::string& newPath, ArgumentList& arguments,
                                 DiagnosticList& diagnostics, bool flag) {
  return enterFacade(TxnMove, [&] {
    const bool provider = takesProvider(Selected) && isProviderNamed("Corvane");
    BackEnd& backEnd = provider ? *backEnds().provider : *backEnds().tool;
    return backEnd.movePackageContent(
        {package, units, oldPath, newPath, arguments, diagnostics, flag});
  });
}

int CMFacade::doSetUpSCC() {
  return withoutEscape(TxnConnect, [] {
    return CMProperty::useSccCompliantTool() != 0 ? backEnds().provider->setUp() : 1;
  });
}

int CMFacade::doCleanUpSCC() {
  withoutEscape(TxnConnect,
                [] { return CMProperty::getIsLoaded() ? backEnds().provider->cleanUp() : 1; });
  return 1;
}

// Closing a project and cleaning up are the same on purpose: a closed project needs no provider.
int CMFacade::doCloseProjectSCC() {
  return doCleanUpSCC();
}

int CMFacade::RunToolExe() {
  return withoutEscape(TxnFreeCommand, [] { return backEnds().provider->runTool(); });
}

int CMFacade::doConnectToArcDlg() {
  withoutEscape(TxnFreeCommand, [] {
    const CMTranscation transcation(nullptr, 1, TxnFreeCommand, "");
    Host* const host = installedHost();
    if (host != nullptr) host->messages().showConnectToArchive();
    return 1;
  });
  return 1;
}

void CMFacade::removeDuplicatesFromItemList(UnitList& units) {
  std::unordered_set<const IUnit*> seen;
  std::erase_if(units, [&](const IUnit* unit) { return !seen.insert(unit).second; });
}

CMFacade::SaveCallback& CMFacade::saveCallbackFunc() {
  return moduleState().slots.save;
}

CMFacade::ReloadCallback& CMFacade::ATMCallbackFunc() {
  return moduleState().slots.reload;
}

IMainFrame*& CMFacade::ATMCallbackFuncParameter() {
  return moduleState().slots.reloadParameter;
}

CMFacade::ReloadCallback& CMFacade::afterATMCallbackFunc() {
  return moduleState().slots.afterReload;
}

IMainFrame*& CMFacade::afterATMCallbackFuncParameter() {
  return moduleState().slots.afterReloadParameter;
}

std::ostream*& CMFacade::outStream() {
  return getMainCMOutputer()();
}

}  // namespace veldra
