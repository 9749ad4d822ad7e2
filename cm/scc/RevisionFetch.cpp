#include "cm/scc/RevisionFetch.h"

#include "cm/core/TextTools.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/ProviderCall.h"
#include "cm/scc/ProviderUnit.h"
#include "cm/scc/SccQuery.h"
#include "cm/scc/pvContextStruct.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

constexpr char FetchContextLine[] = "Getting SCC Context to perform fetch";

/// A working file under another name. A file that is not there needs none.
class SetAside {
 public:
  explicit SetAside(const std::string& file) : m_file(file), m_aside(file + "_temp") {
    m_isThere = omFileExist(file);
    m_isAside = m_isThere && environment().moveFile(m_file, m_aside);
  }
  SetAside(const SetAside&) = delete;
  SetAside& operator=(const SetAside&) = delete;
  ~SetAside() {
    if (!m_isAside) return;
    environment().removeFile(m_file);
    environment().moveFile(m_aside, m_file);
  }

  bool isInTheWay() const { return m_isThere && !m_isAside; }

 private:
  static IEnvironment& environment() { return installedHost()->environment(); }

  std::string m_file;
  std::string m_aside;
  bool m_isThere = false;
  bool m_isAside = false;
};

std::string targetFile(const std::string& target, const std::string& file) {
  bool exists = false;
  const bool isDirectory = installedHost()->environment().isDirectory(target, exists);
  return isDirectory ? joinPath(target, baseName(file)) : target;
}

bool isChangedAndStale(const std::string& file, void* context) {
  constexpr std::int32_t Both = scc::SCC_STATUS_MODIFIED | scc::SCC_STATUS_OUTOFDATE;
  std::int32_t status = scc::SCC_STATUS_INVALID;
  return SccQuery::query(file, status, context) == 0 && status != scc::SCC_STATUS_INVALID &&
         (status & Both) == Both;
}

bool getFile(const std::string& file, void* context, UnitReport& report) {
  FileNames files(file);
  return succeeds(callOnFiles(providerState().dll.SccGet, CallLines::PrePostAndReturn, context,
                              parentWindow(), files, scc::LONG{0}, CMProperty::getPvOptions()),
                  &report);
}

}  // namespace

bool fetchBeside(const std::string& file, const std::string& target, const FetchToPlace& fetch,
                 UnitReport& report) {
  const SetAside aside(file);
  if (aside.isInTheWay()) return refuse(MessageId::FileNotMoved, file, report);
  if (!fetch(file, report)) return false;
  const std::string to = targetFile(target, file);
  IEnvironment& environment = installedHost()->environment();
  environment.removeFile(to);
  return environment.moveFile(file, to) || refuse(MessageId::FileNotMoved, file, report);
}

bool fetchBesideByProvider(IUnit* unit, const std::string& file, const std::string& target,
                           UnitReport& report) {
  const pvContextStruct* const context = contextFor(unit, FetchContextLine);
  if (context == nullptr) {
    report.endsAs(UnitEnd::NotRun);
    return false;
  }
  void* const provider = context->getpvContextPtr();
  if (isChangedAndStale(file, provider)) return refuse(MessageId::ChangedAndStale, file, report);
  return fetchBeside(
      file, target,
      [provider](const std::string& name, UnitReport& way) { return getFile(name, provider, way); },
      report);
}

bool fetchInPlace(IUnit* unit, const std::string& file, UnitReport& report) {
  const pvContextStruct* const context = contextFor(unit, FetchContextLine);
  const KeptCopy kept(KeepRule::EveryFile, file, "Fetch from Archive");
  if (mustStay(kept, report)) return false;
  if (context != nullptr) return getFile(file, context->getpvContextPtr(), report);
  report.endsAs(UnitEnd::NotRun);
  return false;
}

}  // namespace veldra
