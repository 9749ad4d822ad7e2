#include "cm/tool/ItemCommand.h"

#include <optional>
#include <unordered_map>

#include "cm/core/CMArchive.h"
#include "cm/core/CMUnit.h"
#include "cm/core/TextTools.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/CMToolShellInterface.h"
#include "cm/tool/CommandText.h"

namespace veldra {

namespace {

std::string localFile(const CMArchiveItem& item) {
  return joinPath(item.getLocalPath(), item.getFileName());
}

/// Items whose names no command can carry, and why: both their place in the archive and the local
/// file count.
std::unordered_map<const CMArchiveItem*, std::string> refused(const CMArchiveItemList& items,
                                                              DiagnosticList& diagnostics) {
  std::unordered_map<const CMArchiveItem*, std::string> result;
  for (const CMArchiveItem* item : items) {
    if (item == nullptr) continue;
    std::optional<std::string> reason = unsafeInCommand(item->getFileNameWithPath());
    if (!reason) reason = unsafeInCommand(localFile(*item));
    if (!reason || result.contains(item)) continue;
    diagnostics.emplace_back(
        CMDiagnostic::Failed,
        formatMessage(MessageId::UnsafeFileName, {item->getFileNameWithPath(), *reason}), *item);
    result.emplace(item, diagnostics.back().getMessage());
  }
  return result;
}

/// The question concerns the loaded unit of the item's file; an item without one is never asked
/// about.
bool mayOverwrite(const CMArchiveItem& item, const OverwriteQuestion& question) {
  const IUnit* const unit = item.getLoadedUnit();
  return unit == nullptr || question.allows(*unit);
}

}  // namespace

void completeHandler(const ItemRun& run) {
  if (run.handler != nullptr && !theCMToolShellInterface().lastCommandEnd().failed) {
    run.handler->complete();
  }
}

void ItemCommand::after(ItemRun& /*run*/) const {}

int ItemCommand::operator()(CMArchiveItemList& items, ArgumentList& arguments,
                            DiagnosticList& diagnostics) {
  if (!hasCMTool(*this, diagnostics)) return 0;
  saveModel(row().save, items.empty());
  CMArchive archive{std::string()};
  const PushedArgument pushed(arguments, archive);
  const ReloadBracket bracket(row().tracksUnits && !items.empty());
  return runAll(items, arguments, diagnostics);
}

int ItemCommand::runAll(CMArchiveItemList& items, ArgumentList& arguments,
                        DiagnosticList& diagnostics) const {
  const auto refusedItems = refused(items, diagnostics);
  const OverwriteQuestion question(row().asksOverwrite);
  std::size_t position = 0;
  int status = 0;
  for (CMArchiveItem* item : items) {
    ++position;
    if (item == nullptr) continue;
    if (UnitProgress::isCancelled()) break;
    UnitProgress progress(row().name, position, items.size(), item->getFileNameWithPath());
    const auto refusal = refusedItems.find(item);
    if (refusal != refusedItems.end()) {
      progress.endsAs(UnitEnd::Refused, refusal->second);
      continue;
    }
    if (row().asksOverwrite && !mayOverwrite(*item, question)) {
      progress.endsAs(UnitEnd::Declined);
      continue;
    }
    ItemRun run{.item = *item};
    runItem(run, arguments, progress);
    status = run.status;
  }
  return status;
}

void ItemCommand::runItem(ItemRun& run, ArgumentList& arguments, UnitProgress& progress) const {
  const KeptCopy kept(row().keeps, localFile(run.item), row().name);
  if (!kept.objection().empty()) {
    progress.endsAs(UnitEnd::Refused, kept.objection());
    return;
  }
  CMUnit argument(&run.item);
  const PushedArgument pushed(arguments, argument);
  std::string command;
  std::string extra;
  run.status = CMProperty::ExpandProperty(row().templateProperty, arguments, command, extra);
  const int expanded = run.status;

  std::unique_ptr<CMVDYHandler> handler;
  if (row().handlerKind != 0 && installedHost() != nullptr) {
    handler = installedHost()->createModelFileHandler(localFile(run.item));
  }
  if (handler != nullptr) handler->prepare(static_cast<CMVDYHandler::Kind>(row().handlerKind));
  run.handler = handler.get();

  if (run.status == 1) {
    std::string output;
    run.status = runTraced(command, row().traceBefore, row().traceAfter, output, run.errorText);
  }
  progress.endsByCommand(expanded, run.status);
  if (run.status != 1) return;
  const bool isWell = !theCMToolShellInterface().lastCommandEnd().failed;
  after(run);
  if (run.reloadFailed && isWell) progress.endsAs(UnitEnd::NotReloaded, run.errorText);
}

}  // namespace veldra
