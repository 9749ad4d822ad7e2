#include "cm/ui/logic/synchronize/SyncCommand.h"
#include "cm/ui/logic/FailureMessage.h"

#include "cm/core/CCMSyncQuestionDlg.h"
#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMArguments.h"
#include "cm/core/CMAskOnCheckoutGuard.h"
#include "cm/core/CMFacade.h"
#include "cm/core/CMPartialLoadQuestionDlg.h"
#include "cm/host/IProperty.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/BackEndMode.h"
#include "cm/ui/logic/GuardedCall.h"
#include "cm/ui/logic/HostTexts.h"
#include "cm/ui/logic/RecursiveRun.h"
#include "cm/ui/logic/archive/ItemOperations.h"
#include "cm/ui/logic/archive/ModelLoading.h"
#include "cm/ui/logic/archive/PartialLoad.h"
#include "cm/ui/logic/synchronize/GivenUpFiles.h"

namespace veldra {

namespace {

bool isSet(const char* name, bool missing) {
  const IProperty* const property = CMProperty::getToolProperty(name);
  return property != nullptr ? property->getBool() : missing;
}

/// How the items come out of the archive.
struct Way {
  ItemCommandFunction function;
  bool loads;  ///< It loads the files into the model itself.
};

Way wayOf(const BackEndMode& mode) {
  const bool checksOut = mode.usesProvider || isSet("CallCheckOutOnSynchronize", true);
  if (!checksOut) return {&CMFacade::FetchFromArchive, false};
  if (mode.isBranchTool) return {&CMFacade::RecCheckOutFromArchive, false};
  return {&CMFacade::CheckOutFromArchive, true};
}

bool callTool(ItemCommandFunction function, CMArchiveItemList& items, ArgumentList& arguments,
              DiagnosticList& diagnostics) {
  const GivenUpFiles files(items);
  return items.empty() || guardedCall(function, items, arguments, diagnostics);
}

}  // namespace

std::optional<CMArchiveItemList> FilterList(const CMArchiveItemList& selected) {
  const std::string changedHere = dialogText(MessageId::SyncChangedHere);
  CMArchiveItemList checkOutList;
  for (CMArchiveItem* item : selected) {
    if (item == nullptr) continue;
    int answer = MessageBox::AnswerYes;
    if (item->getStatus() == changedHere) {
      answer = CCMSyncQuestionDlg(
                   formatMessage(MessageId::OverwriteChanges, {item->getNameNShortPath(true)}))
                   .DoModal();
    }
    if (answer == MessageBox::AnswerCancel) return std::nullopt;
    if (answer == MessageBox::AnswerYes) checkOutList.addTail(item);
  }
  const std::optional<CMArchiveItemList> loaded =
      ConfirmPartialLoad(notInModel(checkOutList), false);
  if (!loaded) return std::nullopt;
  return checkOutList;
}

TakeOver takeOver(CMArchiveItemList& items, const std::string& label, DiagnosticList& diagnostics) {
  const BackEndMode mode = BackEndMode::current();
  const Way way = wayOf(mode);
  // Nobody is kept from changing the units: what is taken over is read.
  CMMode readOnly(CMMode::ReadOnly);
  CMLabel labelArgument(label);
  ArgumentList arguments{&readOnly, &labelArgument};
  const bool succeeded = mode.usesProvider ? doCheckOut(items, arguments, diagnostics)
                                           : callTool(way.function, items, arguments, diagnostics);
  markSaveDue();
  if (!succeeded) return TakeOver::CheckOutFailed;
  const CMArchiveItemList toLoad = withoutDeclined(way.loads ? notInModel(items) : items);
  return addToModel(toLoad) ? TakeOver::Done : TakeOver::LoadFailed;
}

bool SyncCommand::OnSyncCo(const std::string& label) {
  const CMAskOnCheckoutGuard guard;
  const CMArchiveItemList selected = m_view.CmSelectedItems();
  if (!allowsItems(selected, false)) return false;
  // Who synchronizes wants what is new, without a question about each unit.
  const PartialLoadAnswer loadsAll("yestoall");
  std::optional<CMArchiveItemList> items = FilterList(selected);
  if (!items) return false;
  if (items->empty()) {
    dialogWarning(dialogText(MessageId::NothingLeftToSynchronize));
    return false;
  }
  DiagnosticList diagnostics;
  TakeOver end = TakeOver::Done;
  {
    const ItemViewRunning running(m_view);
    end = takeOver(*items, label, diagnostics);
  }
  if (const BatchResults* const results = m_view.results()) results->addFailures(diagnostics);
  if (end == TakeOver::CheckOutFailed) {
    showFailure(MessageId::SyncCheckOutFailed, diagnostics);
    return false;
  }
  if (end == TakeOver::LoadFailed) showFailure(MessageId::SyncLoadFailed, diagnostics);
  m_view.refreshItems();
  return end == TakeOver::Done;
}

bool closesWhenInStep() {
  return isSet("CloseDialogOnSynchronize", false);
}

}  // namespace veldra
