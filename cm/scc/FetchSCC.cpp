#include "cm/scc/FetchSCC.h"

#include <algorithm>

#include "cm/core/CMFacade.h"
#include "cm/host/Host.h"
#include "cm/scc/ProviderCall.h"
#include "cm/scc/ProviderUnit.h"
#include "cm/scc/SccQuery.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// One batch of gets.
class FetchRun {
 public:
  explicit FetchRun(UnitList& units) : m_units(units), m_question(true) { m_validator.init(units); }

  /// False when the operation has to end at once.
  bool run();
  void finish() { m_validator.getValidUnitList(m_units); }
  void queryStatus() const;

 private:
  bool fetch(IUnit& unit, UnitReport& report);

  UnitList& m_units;
  OverwriteQuestion m_question;
  CMUnitValidator m_validator;
  pvContextStruct* m_context = nullptr;
  std::string m_lastFile;
};

bool FetchRun::run() {
  // A reload that fails takes its unit out of the list.
  const UnitList units = m_units;
  std::size_t position = 0;
  for (IUnit* unit : units) {
    ++position;
    if (unit == nullptr || isGone(m_validator, unit)) continue;
    if (UnitReport::isCancelled()) break;
    m_lastFile = unit->getFullFileName();
    UnitReport report("Fetch", position, units.size(), m_lastFile);
    if (!m_question.allows(*unit)) {
      report.endsAs(UnitEnd::Declined);
    } else if (!fetch(*unit, report)) {
      return false;
    }
  }
  return true;
}

bool FetchRun::fetch(IUnit& unit, UnitReport& report) {
  m_context = contextFor(&unit, "Getting SCC Context to perform fetch");
  if (m_context == nullptr) {
    report.endsAs(UnitEnd::NotRun);
    return false;
  }
  ProviderFile file(unit, CMVDYHandler::Fetch);
  const KeptCopy kept(KeepRule::EveryFile, file.name(), "Fetch");
  if (mustStay(kept, report)) return true;
  FileNames files(file.name());
  const long code = callOnFiles(providerState().dll.SccGet, CallLines::PrePostAndReturn,
                                m_context->getpvContextPtr(), parentWindow(), files, scc::LONG{0},
                                CMProperty::getPvOptions());
  if (!succeeds(code, &report) || unit.asEmbededFile() != nullptr) return true;
  file.succeeded();
  IUnit* const reloaded =
      reloadTraced(unit, unit.getFullFileName(), m_validator, ReloadMode::Plain, report);
  if (reloaded != nullptr) {
    std::ranges::replace(m_units, &unit, reloaded);
  } else {
    std::erase(m_units, &unit);
  }
  return true;
}

/// Asks for all units of the list, also those that were not fetched; the line names the last one.
void FetchRun::queryStatus() const {
  VELDRA_TRACE(UnitUpdate::Status, m_lastFile);
  if (m_context == nullptr) return;
  UnitList alive;
  for (IUnit* unit : m_units) {
    if (unit != nullptr && !isGone(m_validator, unit)) alive.push_back(unit);
  }
  SccQuery::queryAndSetStatus(alive, m_context->getpvContextPtr());
}

}  // namespace

int FetchSCC::operator()(UnitList& units, ArgumentList& /*arguments*/,
                         DiagnosticList& /*diagnostics*/, bool /*hybrid*/) {
  // The setting of the provider, not that of the tool which the check-out asks.
  const bool saves = CMProperty::getProjectBool("SCC", "SaveOnCheckOut", false);
  saveModel(saves ? SaveRule::Always : SaveRule::Never, false);
  ReloadBracket bracket(!units.empty());
  CMFacade::removeDuplicatesFromItemList(units);
  const bool hadUnits = !units.empty();
  FetchRun run(units);
  if (!run.run()) {
    bracket.breakOff();
    return 0;
  }
  run.queryStatus();
  bracket.close();
  if (hadUnits) run.finish();
  return 0;
}

}  // namespace veldra
