#include "cm/scc/CheckInSCC.h"

#include <memory>
#include <stdexcept>
#include <vector>

#include "cm/core/CMArguments.h"
#include "cm/core/CMFacade.h"
#include "cm/core/CMOutputer.h"
#include "cm/core/DebugEcho.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/ProviderCall.h"
#include "cm/scc/ProviderUnit.h"
#include "cm/scc/SCCTextOutProc.h"
#include "cm/scc/SccQuery.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// Many providers never say that a file is modified. One that names holders also does that.
bool isKnownUnchanged(std::int32_t status) {
  SCCdll& dll = providerState().dll;
  return dll.has(dll.SccQueryHolders) && (status & scc::SCC_STATUS_MODIFIED) == 0;
}

/// The units of a check-in, sorted by what is to become of them.
class Groups {
 public:
  Groups(const pvContextStruct& context, std::size_t count)
      : m_context(context.getpvContextPtr()),
        m_count(count),
        m_addsNewUnits(
            CurrentWorkspace::getCurrentProject() != nullptr &&
            CMProperty::getProjectBool("SCC", "AddNewUnitsToArchiveDuringCheckin", false)) {}

  void sort(IUnit& unit);
  const std::vector<std::string>& names() const { return m_names; }
  UnitList& newUnits() { return m_newUnits; }
  /// What the provider answered for the accepted files.
  void finish(long code);

 private:
  void accept(ProviderFile file, std::unique_ptr<UnitReport> report, bool isUnchanged);
  void leaveOut(int messageId, const std::string& file, UnitReport& report) const;

  void* m_context;
  std::size_t m_count;
  std::size_t m_position = 0;
  bool m_addsNewUnits;
  std::vector<std::string> m_names;
  std::vector<ProviderFile> m_files;
  std::vector<std::unique_ptr<UnitReport>> m_reports;
  std::vector<bool> m_unchanged;
  UnitList m_newUnits;
};

void Groups::sort(IUnit& unit) {
  ProviderFile file(unit, CMVDYHandler::CheckIn);
  std::int32_t status = 0;
  const long code = SccQuery::query(file.name(), status, m_context);
  VELDRA_TRACE("File Status is ", std::to_string(status));
  const bool isControlled = (status & scc::SCC_STATUS_CONTROLLED) != 0;
  if (code == 0 && !isControlled && m_addsNewUnits) {
    // The add reports the unit.
    CMOutputer::writeToCMOutputWnd(formatMessage(MessageId::AddedOnCheckIn, {file.name()}));
    m_newUnits.push_back(&unit);
    ++m_position;
    return;
  }
  auto report =
      std::make_unique<UnitReport>("Check In", ++m_position, m_count, unit.getFullFileName());
  if (code == 0 && !isControlled) {
    leaveOut(MessageId::NotControlled, file.name(), *report);
  } else if (code == 0 && (status & scc::SCC_STATUS_CHECKEDOUT) == 0) {
    leaveOut(MessageId::NotCheckedOut, file.name(), *report);
  } else {
    accept(std::move(file), std::move(report), code == 0 && isKnownUnchanged(status));
  }
}

void Groups::accept(ProviderFile file, std::unique_ptr<UnitReport> report, bool isUnchanged) {
  m_unchanged.push_back(isUnchanged);
  m_names.push_back(file.name());
  m_files.push_back(std::move(file));
  m_reports.push_back(std::move(report));
}

void Groups::leaveOut(int messageId, const std::string& file, UnitReport& report) const {
  const std::string text = formatMessage(messageId, {file});
  CMOutputer::writeToCMOutputWnd(text);
  report.endsAs(UnitEnd::ToolFailed, text);
}

void Groups::finish(long code) {
  for (ProviderFile& file : m_files) {
    if (code == 0) file.succeeded();
  }
  for (std::size_t i = 0; i < m_reports.size(); ++i) {
    if (code != 0) {
      markFailed(code, *m_reports[i]);
    } else if (m_unchanged[i]) {
      const std::string text = formatMessage(MessageId::NothingChanged, {m_names[i]});
      CMOutputer::writeToCMOutputWnd(text);
      m_reports[i]->endsAs(UnitEnd::Done, text);
    }
  }
  m_files.clear();
}

void addNewUnits(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics) {
  CMFacade::AddMember(units, arguments, diagnostics);
}

void checkIn(Groups& groups, const pvContextStruct& context, const std::string& comment) {
  FileNames files(groups.names());
  const long code = callOnFiles(providerState().dll.SccCheckin, CallLines::PreAndReturn,
                                context.getpvContextPtr(), parentWindow(), files, comment.c_str(),
                                scc::LONG{0}, CMProperty::getPvOptions());
  groups.finish(code);
  if (!succeeds(code, nullptr)) return;
  SCCTextOutProc::InternalTextOutProc(loadMessage(MessageId::CheckedIn), SCCTextOutProc::Question);
}

}  // namespace

int CheckInSCC::operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                           bool /*hybrid*/) {
  debugEcho({"Entering CheckInSCC\n"});
  saveModel(SaveRule::Always, units.empty());
  if (arguments.empty()) throw std::invalid_argument("a check-in needs a comment");
  const std::string comment = commentOf(arguments);
  const pvContextStruct* const context = contextFor(units.empty() ? nullptr : units.front(),
                                                    "Getting SCC Context to perform check in");
  if (context == nullptr) return 0;

  Groups groups(*context, units.size());
  for (IUnit* unit : units) {
    if (unit != nullptr) groups.sort(*unit);
  }
  if (groups.names().empty()) {
    if (!groups.newUnits().empty()) addNewUnits(groups.newUnits(), arguments, diagnostics);
    return 1;
  }
  {
    CMSuppressOKMessage silence("Yes");
    const PushedArgument pushed(arguments, silence);
    addNewUnits(groups.newUnits(), arguments, diagnostics);
  }
  checkIn(groups, *context, comment);
  for (IUnit* unit : units) {
    if (unit == nullptr) continue;
    updateUnit(*unit,
               {.headerLine = UnitUpdate::Header,
                .modeLine = UnitUpdate::Mode,
                .statusLine = UnitUpdate::Status},
               context);
  }
  return 0;
}

}  // namespace veldra
