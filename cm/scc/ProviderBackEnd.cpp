#include "cm/scc/ProviderBackEnd.h"

#include "cm/core/UnitBatch.h"
#include "cm/host/Host.h"
#include "cm/scc/DeleteMemberSCC.h"
#include "cm/scc/FileStatus.h"
#include "cm/scc/MoveMemberSCC.h"
#include "cm/scc/ProviderSearch.h"
#include "cm/scc/ProviderUnit.h"
#include "cm/scc/SCCFacade.h"
#include "cm/scc/SCCdll.h"
#include "cm/scc/SccQuery.h"
#include "cm/scc/pvContextStruct.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// Runs an operation; this is where a crash of the provider ends.
template <class Operation>
int guarded(DiagnosticList* diagnostics, Operation operation) {
  try {
    return operation();
  } catch (const ProviderFailure& failure) {
    notifyUserAndAsk(failure.what(), MessageBox::IconError);
    if (diagnostics != nullptr) {
      diagnostics->emplace_back(CMDiagnostic::Failed, failure.what(), nullptr);
    }
    return 0;
  }
}

using OnUnits = int (*)(UnitList&, ArgumentList&, DiagnosticList&);
using OnItems = int (*)(CMArchiveItemList&, ArgumentList&, DiagnosticList&);

int run(OnUnits operation, const UnitCall& call) {
  return guarded(&call.diagnostics,
                 [&] { return operation(call.units, call.arguments, call.diagnostics); });
}

int run(OnItems operation, const ItemCall& call) {
  return guarded(&call.diagnostics,
                 [&] { return operation(call.items, call.arguments, call.diagnostics); });
}

/// Some entry points come here whatever the project selects.
bool isSelected() {
  return CMProperty::getUseSCCtool() != 0;
}

/// The context of the last unit; null when any of them has none.
const pvContextStruct* contextOfAll(const UnitList& units) {
  const pvContextStruct* context = nullptr;
  for (IUnit* unit : units) {
    context = contextFor(unit, nullptr);
    if (context == nullptr) return nullptr;
  }
  return context;
}

}  // namespace

int ProviderBackEnd::connectToArchive(const UnitCall& call) {
  return run(SCCFacade::SCCConnectToArchive, call);
}
int ProviderBackEnd::fetch(const UnitCall& call) {
  return run(SCCFacade::SCCFetch, call);
}
int ProviderBackEnd::fetchForDiff(const UnitCall& call) {
  return run(SCCFacade::SCCFetchForDiff, call);
}
int ProviderBackEnd::properties(const UnitCall& call) {
  if (!isSelected()) return BackEnd::properties(call);
  return run(SCCFacade::SCCProperties, call);
}
int ProviderBackEnd::checkOut(const UnitCall& call) {
  return run(SCCFacade::SCCCheckOut, call);
}
int ProviderBackEnd::checkIn(const UnitCall& call) {
  return run(SCCFacade::SCCCheckIn, call);
}
int ProviderBackEnd::history(const UnitCall& call) {
  return run(SCCFacade::SCCHistory, call);
}
int ProviderBackEnd::uncheckout(const UnitCall& call) {
  return run(SCCFacade::SCCUncheckout, call);
}
int ProviderBackEnd::recCheckOut(const UnitCall& call) {
  return run(SCCFacade::SCCRecCheckOut, call);
}
int ProviderBackEnd::addMember(const UnitCall& call) {
  return run(SCCFacade::SCCAddMember, call);
}
int ProviderBackEnd::deleteMember(const UnitCall& call) {
  return run(SCCFacade::SCCDeleteMember, call);
}
int ProviderBackEnd::moveMember(const UnitCall& call) {
  return run(SCCFacade::SCCMoveMember, call);
}

int ProviderBackEnd::listArchive(const ItemCall& call) {
  return run(SCCFacade::SCCListArchive, call);
}
int ProviderBackEnd::checkOutFromArchive(const ItemCall& call) {
  return run(SCCFacade::SCCCheckOutFromArchive, call);
}
int ProviderBackEnd::fetchFromArchive(const ItemCall& call) {
  return run(SCCFacade::FetchFromArchive, call);
}
int ProviderBackEnd::recCheckOutFromArchive(const ItemCall& call) {
  return run(SCCFacade::SCCRecCheckOutFromArchive, call);
}
int ProviderBackEnd::recFetchFromArchive(const ItemCall& call) {
  return run(SCCFacade::RecFetchFromArchive, call);
}
int ProviderBackEnd::fetchForDiffFromArc(const ItemCall& call) {
  if (!isSelected()) return BackEnd::fetchForDiffFromArc(call);
  return run(SCCFacade::SCCFetchForDiffFromArc, call);
}
int ProviderBackEnd::historyArcView(const ItemCall& call) {
  if (!isSelected()) return BackEnd::historyArcView(call);
  return run(SCCFacade::SCCAltHistory, call);
}

int ProviderBackEnd::addDirectory(const DirectoryCall& call) {
  return guarded(&call.diagnostics, [&] {
    return SCCFacade::SCCAddDirectory(call.directory, call.arguments, call.diagnostics);
  });
}

int ProviderBackEnd::deleteDirectory(const DirectoryCall& call) {
  return guarded(&call.diagnostics, [&] {
    return DeleteMemberSCC::DeleteDirectory(call.directory, call.arguments, call.diagnostics,
                                            call.flag, call.object);
  });
}

int ProviderBackEnd::renameMember(const RenameCall& call) {
  return guarded(&call.diagnostics, [&] {
    const std::string comment =
        call.arguments != nullptr ? argumentValue(*call.arguments, "log") : std::string();
    return SCCFacade::SCCRenameMember(call.unit, call.oldName, call.newName, call.diagnostics,
                                      comment);
  });
}

int ProviderBackEnd::movePackageContent(const PackageMoveCall& call) {
  return guarded(&call.diagnostics, [&] {
    return MoveMemberSCC::movePackageContent(call.package, call.units, call.oldPath, call.newPath,
                                             call.arguments, call.diagnostics, call.flag);
  });
}

int ProviderBackEnd::refreshStatus(const UnitList& units) {
  return guarded(nullptr, [&] {
    const pvContextStruct* const context = contextOfAll(units);
    if (context == nullptr) return 0;
    SccQuery::queryAndSetStatus(units, context->getpvContextPtr());
    return 1;
  });
}

int ProviderBackEnd::queryStatus(const UnitList& units, std::vector<UnitStatus>& status) {
  return guarded(nullptr, [&] {
    const pvContextStruct* const context = contextOfAll(units);
    if (context == nullptr) return 0;
    std::vector<std::string> names;
    names.reserve(units.size());
    for (const IUnit* unit : units) {
      names.push_back(unit != nullptr ? unit->getFullFileName() : std::string());
    }
    return queryFileStatus(names, context->getpvContextPtr(), status) ? 1 : 0;
  });
}

void ProviderBackEnd::locate() {
  locateProvider();
}

int ProviderBackEnd::setUp() {
  return guarded(nullptr, SCCFacade::doSetUpSCC);
}

int ProviderBackEnd::cleanUp() {
  return guarded(nullptr, SCCFacade::doCleanUpSCC);
}

int ProviderBackEnd::runTool() {
  return SCCFacade::SCCRunToolExe();
}

}  // namespace veldra
