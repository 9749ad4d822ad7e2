#include "cm/tool/ToolBackEnd.h"

#include "cm/tool/CMAddMember.h"
#include "cm/tool/CMCheckIn.h"
#include "cm/tool/CMCheckOut.h"
#include "cm/tool/CMCheckOutFromArchive.h"
#include "cm/tool/CMConnectToCMRepository.h"
#include "cm/tool/CMDeleteMember.h"
#include "cm/tool/CMFetch.h"
#include "cm/tool/CMFetchFromArchive.h"
#include "cm/tool/CMHistory.h"
#include "cm/tool/CMListArchive.h"
#include "cm/tool/CMListWorkspace.h"
#include "cm/tool/CMLockItem.h"
#include "cm/tool/CMMoveMember.h"
#include "cm/tool/CMRecCheckIn.h"
#include "cm/tool/CMRecCheckOut.h"
#include "cm/tool/CMRecCheckOutFromArchive.h"
#include "cm/tool/CMRecFetchFromArchive.h"
#include "cm/tool/CMRecUnCheckout.h"
#include "cm/tool/CMRenameMember.h"
#include "cm/tool/CMUnCheckout.h"
#include "cm/tool/CMUnLockItem.h"

namespace veldra {

namespace {

/// Makes the operation object, calls it, and lets it go.
template <class Operation>
int run(const UnitCall& call) {
  return Operation()(call.units, call.arguments, call.diagnostics, call.hybrid);
}

template <class Operation>
int run(const ItemCall& call) {
  return Operation()(call.items, call.arguments, call.diagnostics);
}

}  // namespace

int ToolBackEnd::connectToArchive(const UnitCall& call) {
  return CMConnectToCMRepository()(call.units, call.arguments, call.diagnostics);
}
int ToolBackEnd::listWorkspace(const UnitCall& call) {
  return run<CMListWorkspace>(call);
}
int ToolBackEnd::fetch(const UnitCall& call) {
  return run<CMFetch>(call);
}
int ToolBackEnd::lockItem(const UnitCall& call) {
  return run<CMLockItem>(call);
}
int ToolBackEnd::unlockItem(const UnitCall& call) {
  return run<CMUnLockItem>(call);
}
int ToolBackEnd::checkOut(const UnitCall& call) {
  return run<CMCheckOut>(call);
}
int ToolBackEnd::checkIn(const UnitCall& call) {
  return run<CMCheckIn>(call);
}
int ToolBackEnd::history(const UnitCall& call) {
  return run<CMHistory>(call);
}
int ToolBackEnd::uncheckout(const UnitCall& call) {
  return run<CMUnCheckout>(call);
}
int ToolBackEnd::recCheckOut(const UnitCall& call) {
  return run<CMRecCheckOut>(call);
}
int ToolBackEnd::recCheckIn(const UnitCall& call) {
  return run<CMRecCheckIn>(call);
}
int ToolBackEnd::recUncheckout(const UnitCall& call) {
  return run<CMRecUnCheckout>(call);
}
int ToolBackEnd::addMember(const UnitCall& call) {
  return run<CMAddMember>(call);
}
int ToolBackEnd::deleteMember(const UnitCall& call) {
  return run<CMDeleteMember>(call);
}
int ToolBackEnd::moveMember(const UnitCall& call) {
  return run<CMMoveMember>(call);
}

int ToolBackEnd::listArchive(const ItemCall& call) {
  return run<CMListArchive>(call);
}
int ToolBackEnd::checkOutFromArchive(const ItemCall& call) {
  return run<CMCheckOutFromArchive>(call);
}
int ToolBackEnd::fetchFromArchive(const ItemCall& call) {
  return run<CMFetchFromArchive>(call);
}
int ToolBackEnd::recCheckOutFromArchive(const ItemCall& call) {
  return run<CMRecCheckOutFromArchive>(call);
}
int ToolBackEnd::recFetchFromArchive(const ItemCall& call) {
  return run<CMRecFetchFromArchive>(call);
}
int ToolBackEnd::uncheckoutItems(const ItemCall& call) {
  return run<CMUnCheckout>(call);
}

int ToolBackEnd::deleteDirectory(const DirectoryCall& call) {
  return CMDeleteMember().deleteDirectory(call.directory, call.arguments, call.diagnostics,
                                          call.flag);
}
int ToolBackEnd::renameMember(const RenameCall& call) {
  CMRenameMember operation;
  if (call.arguments == nullptr) {
    return operation(call.unit, call.oldName, call.newName, call.diagnostics, call.hybrid);
  }
  CMNameChange change(call.oldName, call.newName);
  const PushedArgument pushed(*call.arguments, change);
  UnitList units{call.unit};
  return operation(units, *call.arguments, call.diagnostics, call.hybrid);
}
int ToolBackEnd::movePackageContent(const PackageMoveCall& call) {
  return CMMoveMember().movePackageContent(call.package, call.units, call.oldPath, call.newPath,
                                           call.arguments, call.diagnostics, call.flag);
}

}  // namespace veldra
