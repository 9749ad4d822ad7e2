#include "cm/scc/MemberMove.h"

#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/ProviderCall.h"
#include "cm/scc/ProviderUnit.h"
#include "cm/scc/SccQuery.h"

namespace veldra {

namespace {

bool refuse(int messageId, const std::string& file, UnitReport& report) {
  const std::string text = formatMessage(messageId, {file});
  notifyUserAndAsk(text, MessageBox::IconError);
  report.endsAs(UnitEnd::ToolFailed, text);
  return false;
}

bool isUncontrolled(const std::string& file, void* context) {
  std::int32_t status = scc::SCC_STATUS_INVALID;
  return SccQuery::query(file, status, context) == 0 && status != scc::SCC_STATUS_INVALID &&
         (status & scc::SCC_STATUS_CONTROLLED) == 0;
}

long renameInArchive(const std::string& from, const std::string& to, void* context) {
  SCCdll& dll = providerState().dll;
  const TracedCall traced("SccRename", from, CallLines::PrePostAndReturn);
  return traced.returned(
      dll.call(dll.SccRename, context, parentWindow(), from.c_str(), to.c_str()));
}

/// Some providers move the local file themselves.
bool isMovedOnDisk(const std::string& from, const std::string& to) {
  return !omFileExist(from) || installedHost()->environment().moveFile(from, to);
}

}  // namespace

bool moveMember(const pvContextStruct& context, const std::string& from, const std::string& to,
                UnitReport& report) {
  if (from == to) return true;
  if (omFileExist(to)) return refuse(MessageId::TargetExists, to, report);
  void* const provider = context.getpvContextPtr();
  const bool isOnDiskOnly = isUncontrolled(from, provider);
  if (!isOnDiskOnly && !succeeds(renameInArchive(from, to, provider), &report)) return false;
  if (isMovedOnDisk(from, to)) return true;
  if (!isOnDiskOnly) renameInArchive(to, from, provider);
  return refuse(MessageId::FileNotMoved, from, report);
}

}  // namespace veldra
