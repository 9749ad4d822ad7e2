#include "cm/scc/MemberMove.h"

#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/ProviderCall.h"
#include "cm/scc/ProviderUnit.h"
#include "cm/scc/SCCTextOutProc.h"
#include "cm/scc/SccQuery.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// The status of a file; what a provider cannot tell counts as controlled and not checked out.
std::int32_t statusOf(const std::string& file, void* context) {
  std::int32_t status = scc::SCC_STATUS_INVALID;
  const bool isKnown =
      SccQuery::query(file, status, context) == 0 && status != scc::SCC_STATUS_INVALID;
  return isKnown ? status : scc::SCC_STATUS_CONTROLLED;
}

long renameInArchive(const std::string& from, const std::string& to, void* context) {
  SCCdll& dll = providerState().dll;
  const TracedCall traced("SccRename", from, CallLines::PrePostAndReturn);
  return traced.returned(
      dll.call(dll.SccRename, context, parentWindow(), from.c_str(), to.c_str()));
}

/// The move stands whatever becomes of this; a file that stays checked out is told of.
void checkIn(const std::string& file, const std::string& comment, void* context,
             UnitReport& report) {
  FileNames files(file);
  const long code =
      callOnFiles(providerState().dll.SccCheckin, CallLines::PreAndReturn, context, parentWindow(),
                  files, comment.c_str(), scc::LONG{0}, CMProperty::getPvOptions());
  if (!succeeds(code, nullptr)) report.endsAs(UnitEnd::Done, SCCTextOutProc::messageOf(code).text);
}

/// Some providers move the local file themselves.
bool isMovedOnDisk(const std::string& from, const std::string& to) {
  return !omFileExist(from) || installedHost()->environment().moveFile(from, to);
}

}  // namespace

bool moveMember(const pvContextStruct& context, const std::string& from, const std::string& to,
                const std::string& comment, UnitReport& report) {
  if (from == to) return true;
  if (omFileExist(to)) return refuse(MessageId::TargetExists, to, report);
  void* const provider = context.getpvContextPtr();
  const std::int32_t status = statusOf(from, provider);
  const bool isOnDiskOnly = (status & scc::SCC_STATUS_CONTROLLED) == 0;
  if (!isOnDiskOnly && !succeeds(renameInArchive(from, to, provider), &report)) return false;
  if (!isMovedOnDisk(from, to)) {
    if (!isOnDiskOnly) renameInArchive(to, from, provider);
    return refuse(MessageId::FileNotMoved, from, report);
  }
  const bool isOut = !isOnDiskOnly && (status & scc::SCC_STATUS_CHECKEDOUT) != 0;
  if (isOut) checkIn(to, comment, provider, report);
  return true;
}

}  // namespace veldra
