#include "cm/core/BackEnd.h"

#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"

namespace veldra {

namespace {

int notAvailable(const char* operation, DiagnosticList& diagnostics) {
  diagnostics.emplace_back(CMDiagnostic::Failed,
                           formatMessage(MessageId::NotAvailable, {operation}), nullptr);
  return 0;
}

/// For the entry points without a diagnostic list.
int notAvailable(const char* operation) {
  notifyUserAndAsk(formatMessage(MessageId::NotAvailable, {operation}), MessageBox::IconError);
  return 0;
}

}  // namespace

int BackEnd::connectToArchive(const UnitCall& call) {
  return notAvailable("Connect to Archive", call.diagnostics);
}
int BackEnd::listWorkspace(const UnitCall& call) {
  return notAvailable("List Workspace", call.diagnostics);
}
int BackEnd::fetch(const UnitCall& call) {
  return notAvailable("Fetch", call.diagnostics);
}
int BackEnd::fetchForDiff(const UnitCall& call) {
  return notAvailable("Fetch for Comparison", call.diagnostics);
}
int BackEnd::lockItem(const UnitCall& call) {
  return notAvailable("Lock", call.diagnostics);
}
int BackEnd::unlockItem(const UnitCall& call) {
  return notAvailable("Unlock", call.diagnostics);
}
int BackEnd::properties(const UnitCall& call) {
  return notAvailable("Properties", call.diagnostics);
}
int BackEnd::checkOut(const UnitCall& call) {
  return notAvailable("Check Out", call.diagnostics);
}
int BackEnd::checkIn(const UnitCall& call) {
  return notAvailable("Check In", call.diagnostics);
}
int BackEnd::history(const UnitCall& call) {
  return notAvailable("History", call.diagnostics);
}
int BackEnd::uncheckout(const UnitCall& call) {
  return notAvailable("Undo Check Out", call.diagnostics);
}
int BackEnd::recCheckOut(const UnitCall& call) {
  return notAvailable("Recursive Check Out", call.diagnostics);
}
int BackEnd::recCheckIn(const UnitCall& call) {
  return notAvailable("Recursive Check In", call.diagnostics);
}
int BackEnd::recUncheckout(const UnitCall& call) {
  return notAvailable("Recursive Undo Check Out", call.diagnostics);
}
int BackEnd::addMember(const UnitCall& call) {
  return notAvailable("Add to Archive", call.diagnostics);
}
int BackEnd::deleteMember(const UnitCall& call) {
  return notAvailable("Delete", call.diagnostics);
}
int BackEnd::moveMember(const UnitCall& call) {
  return notAvailable("Move", call.diagnostics);
}

int BackEnd::listArchive(const ItemCall& call) {
  return notAvailable("List Archive", call.diagnostics);
}
int BackEnd::checkOutFromArchive(const ItemCall& call) {
  return notAvailable("Check Out from Archive", call.diagnostics);
}
int BackEnd::fetchFromArchive(const ItemCall& call) {
  return notAvailable("Fetch from Archive", call.diagnostics);
}
int BackEnd::recCheckOutFromArchive(const ItemCall& call) {
  return notAvailable("Recursive Check Out from Archive", call.diagnostics);
}
int BackEnd::recFetchFromArchive(const ItemCall& call) {
  return notAvailable("Recursive Fetch from Archive", call.diagnostics);
}
int BackEnd::fetchForDiffFromArc(const ItemCall& call) {
  return notAvailable("Fetch for Comparison", call.diagnostics);
}
int BackEnd::historyArcView(const ItemCall& call) {
  return notAvailable("History", call.diagnostics);
}
int BackEnd::uncheckoutItems(const ItemCall& call) {
  return notAvailable("Undo Check Out", call.diagnostics);
}

int BackEnd::addDirectory(const DirectoryCall& call) {
  return notAvailable("Add Directory", call.diagnostics);
}
int BackEnd::deleteDirectory(const DirectoryCall& call) {
  return notAvailable("Delete Directory", call.diagnostics);
}
int BackEnd::renameMember(const RenameCall& call) {
  return notAvailable("Rename", call.diagnostics);
}
int BackEnd::movePackageContent(const PackageMoveCall& call) {
  return notAvailable("Move Package", call.diagnostics);
}

int BackEnd::refreshStatus(const UnitList& /*units*/) {
  return notAvailable("Refresh Status");
}
int BackEnd::queryStatus(const UnitList& /*units*/, std::vector<UnitStatus>& /*status*/) {
  return notAvailable("Query Status");
}

void BackEnd::locate() {
  notifyUserAndAsk(loadMessage(MessageId::ProviderNotLocated), MessageBox::IconError);
}
int BackEnd::setUp() {
  return notAvailable("Set Up");
}
int BackEnd::cleanUp() {
  return notAvailable("Clean Up");
}
int BackEnd::runTool() {
  return notAvailable("Run Tool");
}

}  // namespace veldra
