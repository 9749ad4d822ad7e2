#include "cm/ui/logic/archive/ArchiveCommands.h"
#include "cm/ui/logic/FailureMessage.h"

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMAskOnCheckoutGuard.h"
#include "cm/core/CMFacade.h"
#include "cm/core/CMPartialLoadQuestionDlg.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/GuardedCall.h"
#include "cm/ui/logic/HostTexts.h"
#include "cm/ui/logic/RecursiveRun.h"
#include "cm/ui/logic/archive/ItemOperations.h"
#include "cm/ui/logic/archive/ModelLoading.h"
#include "cm/ui/logic/archive/PartialLoad.h"

namespace veldra {

namespace {

OptionPresets presetsFor(DialogCommand command, const CMArchiveItemList& items) {
  OptionPresets presets = OptionRules::presets(*commandRow(command), loadedUnits(items));
  presets.offersInformationFiles = false;
  presets.withInformationFiles = false;
  return presets;
}

/// What was answered about them in an earlier command does not hold for this one.
void forgetAnswers(const CMArchiveItemList& items) {
  for (CMArchiveItem* item : items) item->setStaysOutOfModel(false);
}

}  // namespace

bool ArchiveCommands::OnArcCo() {
  const CMAskOnCheckoutGuard guard;
  const PartialLoadAnswer nothingYet;
  CMArchiveItemList selected = m_view.CmSelectedItems();
  if (!allowsItems(selected, false)) return false;
  const auto options = m_view.askOptions(presetsFor(DialogCommand::CheckOut, selected));
  if (!options) return false;
  m_diagnostics.clear();
  return options->withDescendants ? OnRecCheckOut(selected, *options)
                                  : checkOut(selected, *options);
}

bool ArchiveCommands::checkOut(CMArchiveItemList& selected, const CommandOptions& options) {
  const std::optional<CMArchiveItemList> confirmed = ConfirmPartialLoad(selected, false);
  if (!confirmed) return false;
  CallArguments arguments = OptionRules::arguments(*commandRow(DialogCommand::CheckOut), options);
  bool succeeded = false;
  {
    const ItemViewRunning running(m_view);
    succeeded =
        guardedCall(&CMFacade::CheckOutFromArchive, selected, arguments.list(), m_diagnostics);
    // The check-out has loaded what it could.
    if (succeeded) succeeded = addToModel(notInModel(*confirmed));
  }
  return finish(succeeded, MessageId::ArchiveCheckOutFailed);
}

bool ArchiveCommands::OnRecCheckOut(const CMArchiveItemList& selected,
                                    const CommandOptions& options) {
  CMArchiveItemList items = withDescendants(selected, m_view.allItems());
  forgetAnswers(items);
  CallArguments arguments = OptionRules::arguments(*commandRow(DialogCommand::CheckOut), options);
  bool succeeded = false;
  {
    const ItemViewRunning running(m_view);
    const bool usesProvider = CMProperty::getUseSCCtool() != 0;
    succeeded = usesProvider ? doCheckOut(items, arguments.list(), m_diagnostics)
                             : guardedCall(&CMFacade::RecCheckOutFromArchive, items,
                                           arguments.list(), m_diagnostics);
    if (succeeded) succeeded = addToModel(usesProvider ? notInModel(items) : items);
    markSaveDue();
  }
  return finish(succeeded, MessageId::ArchiveCheckOutFailed);
}

bool ArchiveCommands::OnArcFetch() {
  const CMAskOnCheckoutGuard guard;
  const PartialLoadAnswer nothingYet;
  if (CMProperty::useSccCompliantTool() == 0) {
    dialogError(dialogText(MessageId::ProviderNotCompliant));
    return false;
  }
  CMArchiveItemList selected = m_view.CmSelectedItems();
  if (!allowsItems(selected, false)) return false;
  // Nobody is asked about what lies below.
  forgetAnswers(m_view.allItems());
  if (!ConfirmPartialLoad(selected, true)) return false;
  const auto options = m_view.askOptions(presetsFor(DialogCommand::Fetch, selected));
  if (!options) return false;
  m_diagnostics.clear();
  if (options->withDescendants) selected = withDescendants(selected, m_view.allItems());
  bool succeeded = false;
  {
    const ItemViewRunning running(m_view);
    succeeded = fetch(selected, *options);
    // Units that the model has are loaded by the fetch.
    if (succeeded) succeeded = addToModel(notInModel(withoutDeclined(selected)));
  }
  return finish(succeeded, MessageId::ArchiveFetchFailed);
}

bool ArchiveCommands::fetch(CMArchiveItemList& items, const CommandOptions& options) {
  if (options.withDescendants) return doFetch(items, options.label, m_diagnostics);
  CallArguments arguments = OptionRules::arguments(*commandRow(DialogCommand::Fetch), options);
  return guardedCall(&CMFacade::FetchFromArchive, items, arguments.list(), m_diagnostics);
}

bool ArchiveCommands::finish(bool succeeded, int failureMessage) {
  if (const BatchResults* const results = m_view.results()) results->addFailures(m_diagnostics);
  if (succeeded) {
    m_view.refreshItems();
  } else {
    showFailure(failureMessage, m_diagnostics);
  }
  return succeeded;
}

}  // namespace veldra
