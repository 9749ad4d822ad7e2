#include "cm/scc/UncheckoutSCC.h"

#include <algorithm>
#include <optional>

#include "cm/core/CMFacade.h"
#include "cm/core/CMOutputer.h"
#include "cm/core/TextTools.h"
#include "cm/core/UnitReload.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/ProviderCall.h"
#include "cm/scc/ProviderUnit.h"
#include "cm/scc/SccQuery.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// One batch of undone check-outs.
class UndoRun {
 public:
  UndoRun(UnitList& units, const pvContextStruct& context)
      : m_units(units),
        m_context(context),
        m_endsAtNotCheckedOut(
            CurrentWorkspace::getCurrentProject() != nullptr &&
            CMProperty::getProjectBool("SCC", "IgnoreUndoCheckoutForNotCheckedoutUnits", false)) {
    m_validator.init(units);
  }

  /// False when the operation has to end at once.
  bool run();
  void finish() { m_validator.getValidUnitList(m_units); }

 private:
  bool undo(IUnit& unit, UnitReport& report);
  void restore(IUnit& unit, UnitReport& report);

  UnitList& m_units;
  const pvContextStruct& m_context;
  CMUnitValidator m_validator;
  bool m_endsAtNotCheckedOut;
};

bool UndoRun::run() {
  // A reload that fails takes its unit out of the list.
  const UnitList units = m_units;
  std::size_t position = 0;
  for (IUnit* unit : units) {
    ++position;
    if (unit == nullptr || isGone(m_validator, unit)) continue;
    if (UnitReport::isCancelled()) break;
    UnitReport report("Undo Check Out", position, units.size(), unit->getFullFileName());
    if (!undo(*unit, report)) return false;
  }
  return true;
}

bool UndoRun::undo(IUnit& unit, UnitReport& report) {
  const std::string file = joinPath(unit.getDirectory(), unit.getFileName());
  std::int32_t status = 0;
  const long queried = SccQuery::query(file, status, m_context.getpvContextPtr());
  if (m_endsAtNotCheckedOut && queried == 0 && (status & scc::SCC_STATUS_CHECKEDOUT) == 0) {
    const std::string text = formatMessage(MessageId::NotCheckedOutEnds, {file});
    CMOutputer::writeToCMOutputWnd(text);
    report.endsAs(UnitEnd::ToolFailed, text);
    return false;
  }
  const KeptCopy kept(KeepRule::EveryFile, file, "Undo Check Out");
  if (mustStay(kept, report)) return true;
  FileNames files(file);
  const long code = callOnFiles(providerState().dll.SccUncheckout, CallLines::PrePostAndReturn,
                                m_context.getpvContextPtr(), parentWindow(), files, scc::LONG{0},
                                CMProperty::getPvOptions());
  if (succeeds(code, &report)) restore(unit, report);
  return true;
}

void UndoRun::restore(IUnit& unit, UnitReport& report) {
  if (unit.asEmbededFile() != nullptr) {
    updateUnit(unit, {.modeLine = UnitUpdate::CMMode, .statusLine = UnitUpdate::Status},
               &m_context);
    return;
  }
  const std::string file = unit.getFullFileName();
  IUnit* const reloaded = reloadTraced(unit, file, m_validator, ReloadMode::FollowsName, report);
  if (reloaded == nullptr) {
    std::erase(m_units, &unit);
    return;
  }
  updateUnit(*reloaded,
             {.headerLine = UnitUpdate::Header,
              .modeLine = UnitUpdate::CMMode,
              .statusLine = UnitUpdate::Status},
             &m_context);
}

}  // namespace

int UncheckoutSCC::operator()(UnitList& units, ArgumentList& /*arguments*/,
                              DiagnosticList& /*diagnostics*/, bool /*hybrid*/) {
  // Saves even when there is nothing to undo.
  saveModel(SaveRule::Always, false);
  ReloadBracket bracket(!units.empty());
  const pvContextStruct* const context = contextFor(
      units.empty() ? nullptr : units.front(), "Getting SCC Context to perform undo check out");
  if (context == nullptr) {
    bracket.breakOff();
    return 0;
  }
  CMFacade::removeDuplicatesFromItemList(units);
  const bool hadUnits = !units.empty();
  UndoRun run(units, *context);
  if (!run.run()) {
    bracket.breakOff();
    return 0;
  }
  bracket.close();
  if (hadUnits) run.finish();
  return 0;
}

void UncheckoutSCC::renameFileIfNeeded(IUnit* unit, const std::string& storedFileName,
                                       const std::string& oldName) const {
  renameToComputedName(unit, storedFileName, oldName);
}

}  // namespace veldra
