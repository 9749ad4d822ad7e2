#include "cm/scc/CheckOutSCC.h"

#include <algorithm>
#include <memory>

#include "cm/core/CMFacade.h"
#include "cm/core/CMOutputer.h"
#include "cm/core/DebugEcho.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/ProviderAdapter.h"
#include "cm/scc/ProviderCall.h"
#include "cm/scc/ProviderUnit.h"
#include "cm/scc/SccQuery.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

constexpr char CheckOutContextLine[] = "Getting SCC Context to perform check out";

/// A unit that is to be checked out.
struct Candidate {
  IUnit* unit;
  ProviderFile file;
  std::unique_ptr<UnitReport> report;
  std::unique_ptr<KeptCopy> kept{};
};

enum class Choice { Take, Skip, Stop };

/// One batch of check-outs, file by file or all at once.
class CheckOutRun {
 public:
  CheckOutRun(UnitList& units, std::string comment)
      : m_units(units), m_comment(std::move(comment)), m_question(true) {
    m_validator.init(units);
  }

  /// False when the operation has to end at once.
  bool runAtOnce();
  bool runOneByOne();
  void finish();
  bool isComplete() const { return m_isComplete; }

 private:
  Choice choose(IUnit* unit, const char* traceLine, std::vector<Candidate>& candidates);
  bool isOutAlready(const std::string& file) const;
  bool asksAndRefuses(const Candidate& candidate) const;
  void checkOut(std::vector<Candidate>& candidates);
  void reload(Candidate& candidate);

  UnitList& m_units;
  std::string m_comment;
  OverwriteQuestion m_question;
  CMUnitValidator m_validator;
  pvContextStruct* m_context = nullptr;
  std::unique_ptr<ProviderAdapter> m_adapter;
  std::size_t m_position = 0;
  bool m_isComplete = true;
};

bool CheckOutRun::isOutAlready(const std::string& file) const {
  constexpr std::int32_t MineAnywhere = scc::SCC_STATUS_CHECKEDOUT | scc::SCC_STATUS_OUTBYUSER;
  std::int32_t status = 0;
  return SccQuery::query(file, status, m_context->getpvContextPtr()) == 0 && omFileExist(file) &&
         status != scc::SCC_STATUS_INVALID && (status & MineAnywhere) == MineAnywhere;
}

Choice CheckOutRun::choose(IUnit* unit, const char* traceLine, std::vector<Candidate>& candidates) {
  ++m_position;
  if (unit == nullptr || isGone(m_validator, unit)) return Choice::Skip;
  m_context = contextFor(unit, traceLine);
  if (m_context == nullptr) return Choice::Stop;
  Candidate candidate{unit, ProviderFile(*unit, CMVDYHandler::CheckOut),
                      std::make_unique<UnitReport>("Check Out", m_position, m_units.size(),
                                                   unit->getFullFileName())};
  if (isOutAlready(candidate.file.name())) {
    if (std::ostream* const out = getMainCMOutputer()()) {
      *out << formatMessage(MessageId::AlreadyCheckedOut, {candidate.file.name()}) << std::endl;
    }
    candidate.file.succeeded();
    return Choice::Skip;
  }
  if (!m_question.allows(*unit)) {
    candidate.report->endsAs(UnitEnd::Declined);
    return Choice::Skip;
  }
  candidate.kept =
      std::make_unique<KeptCopy>(KeepRule::WritableFiles, unit->getFullFileName(), "Check Out");
  if (mustStay(*candidate.kept, *candidate.report)) return Choice::Skip;
  candidates.push_back(std::move(candidate));
  return Choice::Take;
}

bool CheckOutRun::runAtOnce() {
  m_context = contextFor(nullptr, CheckOutContextLine);
  std::vector<Candidate> candidates;
  for (IUnit* unit : m_units) {
    if (UnitReport::isCancelled()) break;
    if (choose(unit, nullptr, candidates) == Choice::Stop) return false;
  }
  checkOut(candidates);
  return true;
}

bool CheckOutRun::runOneByOne() {
  // A reload that fails takes its unit out of the list.
  const UnitList units = m_units;
  for (IUnit* unit : units) {
    if (UnitReport::isCancelled()) break;
    std::vector<Candidate> candidates;
    if (choose(unit, CheckOutContextLine, candidates) == Choice::Stop) return false;
    checkOut(candidates);
  }
  return true;
}

void CheckOutRun::checkOut(std::vector<Candidate>& candidates) {
  if (candidates.empty()) return;
  std::vector<std::string> names;
  names.reserve(candidates.size());
  for (const Candidate& candidate : candidates) names.push_back(candidate.file.name());
  FileNames files(names);
  if (m_adapter == nullptr) m_adapter = ProviderAdapter::forProvider();
  if (!m_adapter->beforeCheckOut(*m_context, m_comment)) {
    for (const Candidate& candidate : candidates) candidate.report->endsAs(UnitEnd::Declined);
    return;
  }
  const long code = callOnFiles(providerState().dll.SccCheckout, CallLines::PrePostAndReturn,
                                m_context->getpvContextPtr(), parentWindow(), files,
                                m_comment.c_str(), scc::LONG{0}, CMProperty::getPvOptions());
  if (succeeds(code, nullptr)) {
    for (Candidate& candidate : candidates) reload(candidate);
    return;
  }
  m_isComplete = false;
  std::string failed;
  for (const Candidate& candidate : candidates) {
    markFailed(code, *candidate.report);
    failed += (failed.empty() ? "" : ", ") + candidate.file.name();
  }
  CMOutputer::writeToCMOutputWnd(failed);
}

void CheckOutRun::reload(Candidate& candidate) {
  candidate.file.succeeded();
  const std::string file = candidate.unit->getFullFileName();
  if (reloadTraced(*candidate.unit, file, m_validator, ReloadMode::Plain, *candidate.report)) {
    return;
  }
  std::erase(m_units, candidate.unit);
  m_isComplete = false;
}

void CheckOutRun::finish() {
  m_validator.getValidUnitList(m_units);
  for (IUnit* unit : m_units) {
    updateUnit(*unit, {.modeLine = UnitUpdate::CMMode, .statusLine = UnitUpdate::Status},
               m_context);
  }
}

}  // namespace

int CheckOutSCC::operator()(UnitList& units, ArgumentList& arguments,
                            DiagnosticList& /*diagnostics*/, bool /*hybrid*/) {
  debugEcho({"Entering SCCFacade checkout\n"});
  saveModel(SaveRule::IfSaveOnCheckOut, units.empty());
  std::string comment;
  if (CMProperty::isSetSCC_CAP_COMMENTCHECKOUT(0) != 0) comment = commentOf(arguments);
  ReloadBracket bracket(!units.empty());
  CMFacade::removeDuplicatesFromItemList(units);

  const bool hadUnits = !units.empty();
  CheckOutRun run(units, std::move(comment));
  const bool isAtOnce = CurrentWorkspace::getCurrentProject() != nullptr &&
                        CMProperty::getProjectBool("SCC", "UnrollLoops", false);
  if (!(isAtOnce ? run.runAtOnce() : run.runOneByOne())) {
    bracket.breakOff();
    return 0;
  }
  if (!run.isComplete()) {
    notifyUserAndAsk(loadMessage(MessageId::CheckOutIncomplete), MessageBox::IconWarning);
  }
  bracket.close();
  if (hadUnits) run.finish();
  return 0;
}

}  // namespace veldra
