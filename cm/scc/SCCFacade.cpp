#include "cm/scc/SCCFacade.h"

#include "cm/host/LogTrace.h"
#include "cm/scc/AddMemberSCC.h"
#include "cm/scc/CheckInSCC.h"
#include "cm/scc/CheckOutFromArchiveSCC.h"
#include "cm/scc/CheckOutSCC.h"
#include "cm/scc/DeleteMemberSCC.h"
#include "cm/scc/FetchSCC.h"
#include "cm/scc/HistorySCC.h"
#include "cm/scc/ListArchiveSCC.h"
#include "cm/scc/MoveMemberSCC.h"
#include "cm/scc/PropertiesSCC.h"
#include "cm/scc/ProviderSearch.h"
#include "cm/scc/ProviderState.h"
#include "cm/scc/RecCheckOutFromArchiveSCC.h"
#include "cm/scc/RecCheckOutSCC.h"
#include "cm/scc/RenameMemberSCC.h"
#include "cm/scc/SCCConnectToCMRepository.h"
#include "cm/scc/UncheckoutSCC.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

int SCCFacade::doSetUpSCC() {
  // The choice of the provider has looked for its library, and told when there is none.
  if (CMProperty::getUseSCCtool() == 0) return 1;
  if (CMProperty::getIsLoaded()) return doCloseProjectSCC();
  loadProviderOnce();
  return 1;
}

int SCCFacade::doCloseProjectSCC() {
  SCCdll& dll = CMProperty::getSCCdll();
  VELDRA_TRACE("Invoking SccCloseProject");
  dll.call(dll.SccCloseProject, CMProperty::getPvContext());
  return 1;
}

int SCCFacade::doCleanUpSCC() {
  if (!CMProperty::getIsLoaded()) return 1;
  SCCdll& dll = CMProperty::getSCCdll();
  VELDRA_TRACE("Invoking SccUninitialize");
  dll.call(dll.SccUninitialize, CMProperty::getPvContext());
  return 1;
}

int SCCFacade::SCCRunToolExe() {
  return 1;
}

int SCCFacade::SCCConnectToArchive(UnitList& units, ArgumentList& arguments,
                                   DiagnosticList& diagnostics) {
  return SCCConnectToCMRepository()(units, arguments, diagnostics);
}
int SCCFacade::SCCFetch(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return FetchSCC()(units, arguments, diagnostics, false);
}
int SCCFacade::SCCFetchForDiff(UnitList& units, ArgumentList& arguments,
                               DiagnosticList& diagnostics) {
  return FetchSCC::FetchForDiff(units, arguments, diagnostics);
}
int SCCFacade::SCCProperties(UnitList& units, ArgumentList& arguments,
                             DiagnosticList& diagnostics) {
  return PropertiesSCC()(units, arguments, diagnostics);
}
int SCCFacade::SCCCheckOut(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return CheckOutSCC()(units, arguments, diagnostics, false);
}
int SCCFacade::SCCCheckIn(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return CheckInSCC()(units, arguments, diagnostics, false);
}
int SCCFacade::SCCHistory(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return HistorySCC()(units, arguments, diagnostics);
}
int SCCFacade::SCCUncheckout(UnitList& units, ArgumentList& arguments,
                             DiagnosticList& diagnostics) {
  return UncheckoutSCC()(units, arguments, diagnostics, false);
}
int SCCFacade::SCCRecCheckOut(UnitList& units, ArgumentList& arguments,
                              DiagnosticList& diagnostics) {
  return RecCheckOutSCC()(units, arguments, diagnostics, false);
}
int SCCFacade::SCCAddMember(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  return AddMemberSCC()(units, arguments, diagnostics, false);
}
int SCCFacade::SCCDeleteMember(UnitList& units, ArgumentList& arguments,
                               DiagnosticList& diagnostics) {
  return DeleteMemberSCC()(units, arguments, diagnostics, false);
}
int SCCFacade::SCCMoveMember(UnitList& units, ArgumentList& arguments,
                             DiagnosticList& diagnostics) {
  return MoveMemberSCC()(units, arguments, diagnostics, false);
}
int SCCFacade::SCCRenameMember(IUnit* unit, const std::string& oldName, const std::string& newName,
                               DiagnosticList& diagnostics, const std::string& comment) {
  return RenameMemberSCC()(unit, oldName, newName, diagnostics, false, comment);
}
int SCCFacade::SCCAddDirectory(std::string directory, ArgumentList& arguments,
                               DiagnosticList& diagnostics) {
  return AddMemberSCC::AddDirectory(directory, arguments, diagnostics);
}

int SCCFacade::SCCListArchive(CMArchiveItemList& items, ArgumentList& arguments,
                              DiagnosticList& diagnostics) {
  return ListArchiveSCC()(items, arguments, diagnostics);
}
int SCCFacade::SCCCheckOutFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                                      DiagnosticList& diagnostics) {
  return CheckOutFromArchiveSCC()(items, arguments, diagnostics);
}
int SCCFacade::SCCRecCheckOutFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                                         DiagnosticList& diagnostics) {
  return RecCheckOutFromArchiveSCC()(items, arguments, diagnostics);
}
int SCCFacade::FetchFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                                DiagnosticList& diagnostics) {
  return FetchSCC::FetchFromArchive(items, arguments, diagnostics);
}
int SCCFacade::RecFetchFromArchive(CMArchiveItemList& items, ArgumentList& arguments,
                                   DiagnosticList& diagnostics) {
  return FetchSCC::RecFetchFromArchive(items, arguments, diagnostics);
}
int SCCFacade::SCCFetchForDiffFromArc(CMArchiveItemList& items, ArgumentList& arguments,
                                      DiagnosticList& diagnostics) {
  return FetchSCC::FetchForDiffFromArc(items, arguments, diagnostics);
}
int SCCFacade::SCCAltHistory(CMArchiveItemList& items, ArgumentList& arguments,
                             DiagnosticList& diagnostics) {
  return HistorySCC::ofItems(items, arguments, diagnostics);
}

}  // namespace veldra
