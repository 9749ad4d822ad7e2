#include "cm/tool/UnitCommand.h"

#include <utility>

#include "cm/core/CMArchive.h"
#include "cm/core/CMFacade.h"
#include "cm/core/CMUnit.h"
#include "cm/core/HybridRule.h"
#include "cm/host/Host.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/CMToolShellInterface.h"
#include "cm/tool/QuickForm.h"

namespace veldra {

CommandTemplate UnitCommand::templateFor(IUnit& /*unit*/, const UnitCallFrame& /*call*/) const {
  return {.property = row().templateProperty};
}

std::optional<CMNameChange> UnitCommand::nameChange(const IUnit& /*unit*/,
                                                    const UnitCallFrame& /*call*/) const {
  return std::nullopt;
}

bool UnitCommand::accepts(IUnit& /*unit*/, const UnitCallFrame& /*call*/) const {
  return true;
}

std::unique_ptr<CCMFileCompare> UnitCommand::snapshot(IUnit& /*unit*/) const {
  return nullptr;
}

void UnitCommand::after(UnitRun& /*run*/) const {}

UnitCommand::Verdicts UnitCommand::refuse(const UnitList& units, const UnitCallFrame& call,
                                          DiagnosticList& diagnostics) const {
  Verdicts verdicts;
  for (const IUnit* unit : units) {
    if (unit == nullptr || verdicts.contains(unit)) continue;
    std::optional<CMNameChange> change = nameChange(*unit, call);
    if (refuseUnsafeName(*unit, diagnostics) ||
        (change && refuseUnsafeName(unit, change->substitute("newName"), diagnostics))) {
      verdicts[unit] = {.end = UnitEnd::Refused, .words = diagnostics.back().getMessage()};
    }
  }
  return verdicts;
}

int UnitCommand::operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                            bool hybrid) {
  if (!hasCMTool(*this, diagnostics, row().isHybrid && hybrid)) return 0;
  saveModel(row().save, units.empty());
  CMArchive archive{std::string()};
  const PushedArgument pushed(arguments, archive);
  const ReloadBracket bracket(row().tracksUnits && !units.empty());
  UnitBatches batches(row(), arguments);
  return runAll(units, {arguments, hybrid, batches}, diagnostics);
}

void UnitCommand::runBatches(const UnitList& units, const UnitCallFrame& call,
                             const OverwriteQuestion& asks, Verdicts& verdicts) const {
  for (IUnit* unit : units) {
    if (unit == nullptr || verdicts.contains(unit)) continue;
    if (nameChange(*unit, call)) return;  // Names cannot be told by a list of units.
    const CommandTemplate single = templateFor(*unit, call);
    if (!call.batches.offers(single)) continue;
    const UnitEnd verdict = !asks.allows(*unit)     ? UnitEnd::Declined
                            : !accepts(*unit, call) ? UnitEnd::Refused
                                                    : UnitEnd::Done;
    verdicts[unit] = {.end = verdict};
    if (verdict == UnitEnd::Done) call.batches.add(*unit, single);
  }
  if (!UnitProgress::isCancelled()) {
    call.batches.run([this](IUnit& unit) { return prepare(unit); });
  }
}

UnitPreparation UnitCommand::prepare(IUnit& unit) const {
  UnitPreparation preparation;
  preparation.kept = std::make_unique<KeptCopy>(row().keeps, unit.getFullFileName(), row().name);
  if (preparation.mustNotRun()) return preparation;
  if (row().handlerKind != 0 && installedHost() != nullptr) {
    preparation.handler = installedHost()->createModelFileHandler(unit.getFullFileName());
  }
  if (preparation.handler != nullptr) {
    preparation.handler->prepare(static_cast<CMVDYHandler::Kind>(row().handlerKind));
  }
  preparation.compare = snapshot(unit);
  return preparation;
}

int UnitCommand::runAll(UnitList& units, const UnitCallFrame& call,
                        DiagnosticList& diagnostics) const {
  CMUnitValidator validator;
  if (row().tracksUnits) {
    CMFacade::removeDuplicatesFromItemList(units);
    validator.init(units);
  }
  Verdicts verdicts = refuse(units, call, diagnostics);
  const OverwriteQuestion asks(row().asksOverwrite);
  runBatches(units, call, asks, verdicts);
  const std::size_t count = units.size();
  std::size_t position = 0;
  int status = 0;
  for (std::size_t i = 0; i < units.size() && !UnitProgress::isCancelled();) {
    UnitRun run{.unit = units[i], .validator = validator, .status = status};
    ++position;
    const bool isGone =
        validator.isUnitMarkedForValidation(run.unit) != 0 && validator.isValidUnit(run.unit) == 0;
    if (run.unit != nullptr && !isGone) {
      UnitProgress progress(row().name, position, count, placeOf(*run.unit));
      const auto verdict = verdicts.find(run.unit);
      if (verdict != verdicts.end() && verdict->second.end != UnitEnd::Done) {
        progress.endsAs(verdict->second.end, verdict->second.words);
      } else if (verdict == verdicts.end() && !asks.allows(*run.unit)) {
        progress.endsAs(UnitEnd::Declined);
      } else {
        runUnit(run, call, progress);
      }
    }
    status = run.status;
    if (run.drop) {
      units.erase(units.begin() + static_cast<std::ptrdiff_t>(i));
    } else {
      units[i++] = run.unit;
    }
  }
  if (row().tracksUnits) validator.getValidUnitList(units);
  return status;
}

void UnitCommand::runUnit(UnitRun& run, const UnitCallFrame& call, UnitProgress& progress) const {
  if (row().choosesArchive) chooseArchiveOf(run.unit);
  std::optional<UnitPreparation> preparation = call.batches.takeDone(*run.unit);
  const bool isDone = preparation.has_value();
  if (!isDone && !accepts(*run.unit, call)) {
    progress.endsAs(UnitEnd::Refused);
    return;
  }
  if (!isDone) preparation = prepare(*run.unit);
  if (preparation->mustNotRun()) {
    progress.endsAs(UnitEnd::Refused, preparation->kept->objection());
    return;
  }
  run.handler = preparation->handler.get();
  run.compare = preparation->compare.get();
  run.status = isDone ? 1 : runCommand(run, call, progress);
  if (run.status != 1) return;
  // A tool that failed may have left half a file behind; then the handler puts the old one back.
  const bool isWell = isDone || !theCMToolShellInterface().lastCommandEnd().failed;
  if (run.handler != nullptr && isWell) run.handler->complete();
  after(run);
  if (isDone && preparation->wasUnchanged) progress.endsAsUnchanged(run.unit->getFullFileName());
  // Of a tool that failed its own words say more.
  if (run.reloadFailed && isWell) progress.endsAs(UnitEnd::NotReloaded, run.errorText);
}

void UnitCommand::tellRemark(const ToolAnswer& answer, const std::string& file,
                             UnitProgress& progress) const {
  if (row().tellsUnchanged && answer.files(UnchangedMark).contains(file)) {
    return progress.endsAsUnchanged(file);
  }
  if (!row().tellsNotes) return;
  std::string notes;
  for (const std::string_view note : answer.marked(NoteMark)) {
    notes.append(notes.empty() ? "" : "\n").append(note);
  }
  if (!notes.empty()) progress.endsAs(UnitEnd::Done, notes);
}

int UnitCommand::runCommand(UnitRun& run, const UnitCallFrame& call, UnitProgress& progress) const {
  CMUnit argument(run.unit);
  const PushedArgument pushed(call.arguments, argument);
  std::optional<CMNameChange> change = nameChange(*run.unit, call);
  std::optional<PushedArgument> pushedChange;
  if (change) pushedChange.emplace(call.arguments, *change);
  const CommandTemplate single = templateFor(*run.unit, call);
  ToolAnswer answer;
  int expanded = 1;
  int status = 1;
  if (!runQuickForm(single, call.arguments, row(), answer)) {
    std::string command;
    std::string extra;
    status = expanded = CMProperty::ExpandProperty(single.property, call.arguments, command, extra,
                                                   single.providerMetaclass);
    if (expanded == 1) status = runTraced(command, row(), answer);
  }
  progress.endsByCommand(expanded, status);
  if (status == 1 && !theCMToolShellInterface().lastCommandEnd().failed) {
    tellRemark(answer, run.unit->getFullFileName(), progress);
  }
  run.errorText = std::move(answer.errorText);
  return status;
}

}  // namespace veldra
