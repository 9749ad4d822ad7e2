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
    // What a process that was killed left aside comes back first.
    if (!omFileExist(m_file) && omFileExist(m_aside)) environment().moveFile(m_aside, m_file);
    m_isThere = omFileExist(file);
    m_isAside = m_isThere && environment().moveFile(m_file, m_aside);
  }
  SetAside(const SetAside&) = delete;
  SetAside& operator=(const SetAside&) = delete;
  ~SetAside() {
    // Somebody may have brought it back meanwhile; then there is nothing that may be removed.
    if (!m_isAside || !omFileExist(m_aside)) return;
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

/// Why a file cannot be fetched over and come back; 0 when it can.
int objectionTo(const std::string& file, void* context) {
  std::int32_t status = scc::SCC_STATUS_INVALID;
  const bool isKnown =
      SccQuery::query(file, status, context) == 0 && status != scc::SCC_STATUS_INVALID;
  if (!isKnown || (status & scc::SCC_STATUS_OUTOFDATE) == 0) return 0;
  return (status & scc::SCC_STATUS_MODIFIED) != 0 ? MessageId::ChangedAndStale : MessageId::Stale;
}

bool getFile(const std::string& file, void* context, UnitReport& report) {
  FileNames files(file);
  return succeeds(callOnFiles(providerState().dll.SccGet, CallLines::PrePostAndReturn, context,
                              parentWindow(), files, scc::LONG{0}, CMProperty::getPvOptions()),
                  &report);
}

bool getFileTo(const std::string& file, const std::string& target, void* context,
               UnitReport& report) {
  SCCdll& dll = providerState().dll;
  const std::string to = targetFile(target, file);
  const TracedCall traced("SccGetTo", file, CallLines::PrePostAndReturn);
  const long code =
      traced.returned(dll.call(dll.SccGetTo, context, parentWindow(), file.c_str(), to.c_str()));
  return succeeds(code, &report);
}

}  // namespace

bool fetchBeside(const std::string& file, const std::string& target, const FetchToPlace& fetch,
                 UnitReport& report) {
  // Whatever becomes of this process: there is a copy.
  const KeptCopy kept(KeepRule::EveryFile, file, "Fetch for Comparison");
  if (mustStay(kept, report)) return false;
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
  if (providerState().dll.has(providerState().dll.SccGetTo)) {
    return getFileTo(file, target, provider, report);
  }
  const int objection = objectionTo(file, provider);
  if (objection != 0) return refuse(objection, file, report);
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
