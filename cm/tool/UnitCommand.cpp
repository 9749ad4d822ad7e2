#include "cm/tool/UnitCommand.h"

#include <utility>

#include "cm/core/CMArchive.h"
#include "cm/core/CMFacade.h"
#include "cm/core/CMUnit.h"
#include "cm/host/Host.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/CMToolShellInterface.h"

namespace veldra {

void chooseArchiveOf(const IUnit* unit) {
  if (CMArchive::getArchiveSelection() == CMArchive::ArchiveUnset) return;
  std::string archive;
  CMProperty::getBatchArchiveRecursive(unit, archive);
  CMArchive::setMainArchive(archive);
}

const char* UnitCommand::templateFor(IUnit& /*unit*/) const {
  return row().templateProperty;
}

bool UnitCommand::accepts(IUnit& /*unit*/) const {
  return true;
}

std::unique_ptr<CCMFileCompare> UnitCommand::snapshot(IUnit& /*unit*/) const {
  return nullptr;
}

void UnitCommand::after(UnitRun& /*run*/) const {}

std::unordered_set<const IUnit*> UnitCommand::refused(const UnitList& units,
                                                      DiagnosticList& diagnostics) const {
  std::unordered_set<const IUnit*> result;
  for (const IUnit* unit : units) {
    if (unit == nullptr || result.contains(unit)) continue;
    if (refuseUnsafeName(*unit, diagnostics)) result.insert(unit);
  }
  return result;
}

int UnitCommand::operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                            bool /*hybrid*/) {
  if (!hasCMTool(*this, diagnostics)) return 0;
  saveModel(row().save, units.empty());
  CMArchive archive{std::string()};
  const PushedArgument pushed(arguments, archive);
  const ReloadBracket bracket(row().tracksUnits && !units.empty());
  return runAll(units, arguments, diagnostics);
}

int UnitCommand::runAll(UnitList& units, ArgumentList& arguments,
                        DiagnosticList& diagnostics) const {
  CMUnitValidator validator;
  if (row().tracksUnits) {
    CMFacade::removeDuplicatesFromItemList(units);
    validator.init(units);
  }
  const std::unordered_set<const IUnit*> refusedUnits = refused(units, diagnostics);
  const OverwriteQuestion question(row().asksOverwrite);
  const std::size_t count = units.size();
  std::size_t position = 0;
  int status = 0;
  for (std::size_t i = 0; i < units.size() && !UnitProgress::isCancelled();) {
    UnitRun run{.unit = units[i], .validator = validator, .status = status};
    ++position;
    const bool isGone =
        validator.isUnitMarkedForValidation(run.unit) != 0 && validator.isValidUnit(run.unit) == 0;
    if (run.unit != nullptr && !isGone) {
      UnitProgress progress(row().name, position, count, run.unit->getFullFileName());
      if (refusedUnits.contains(run.unit)) {
        progress.endsAs(UnitEnd::Refused);
      } else if (!question.allows(*run.unit)) {
        progress.endsAs(UnitEnd::Declined);
      } else {
        runUnit(run, arguments, progress);
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

void UnitCommand::runUnit(UnitRun& run, ArgumentList& arguments, UnitProgress& progress) const {
  if (row().choosesArchive) chooseArchiveOf(run.unit);
  if (!accepts(*run.unit)) {
    progress.endsAs(UnitEnd::Refused);
    return;
  }
  CMUnit argument(run.unit);
  const PushedArgument pushed(arguments, argument);

  std::string command;
  std::string extra;
  run.status = CMProperty::ExpandProperty(templateFor(*run.unit), arguments, command, extra);
  const int expanded = run.status;

  std::unique_ptr<CMVDYHandler> handler;
  if (row().handlerKind != 0 && installedHost() != nullptr) {
    handler = installedHost()->createModelFileHandler(run.unit->getFullFileName());
  }
  if (handler != nullptr) handler->prepare(static_cast<CMVDYHandler::Kind>(row().handlerKind));
  const std::unique_ptr<CCMFileCompare> compare = snapshot(*run.unit);
  run.handler = handler.get();
  run.compare = compare.get();

  if (run.status == 1) {
    std::string output;
    run.status = runTraced(command, row().traceBefore, row().traceAfter, output, run.errorText);
  }
  progress.endsByCommand(expanded, run.status);
  if (run.status != 1) return;
  // A tool that failed may have left half a file behind; then the handler puts the old one back.
  if (handler != nullptr && !theCMToolShellInterface().lastCommandEnd().failed) {
    handler->complete();
  }
  after(run);
  if (run.reloadFailed) progress.endsAs(UnitEnd::NotReloaded, run.errorText);
}

}  // namespace veldra
