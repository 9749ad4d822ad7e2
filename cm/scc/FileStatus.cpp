#include "cm/scc/FileStatus.h"

#include <unordered_map>

#include "cm/host/IEnvironment.h"
#include "cm/scc/CallbackThread.h"
#include "cm/scc/ProviderCall.h"
#include "cm/scc/ProviderUnit.h"
#include "cm/scc/SccQuery.h"

namespace veldra {

namespace {

using Holders = std::unordered_map<std::string, std::string>;

scc::BOOL SCC_CALL collectHolder(scc::LPVOID holders, scc::LPCSTR fileName, scc::LPCSTR holder) {
  if (holders == nullptr || fileName == nullptr || holder == nullptr) return 1;
  auto* const collected = static_cast<Holders*>(holders);
  const auto collect = [collected, file = std::string(fileName), name = std::string(holder)] {
    collected->insert_or_assign(file, name);
  };
  CallbackThread::run(collect, collected);
  return 1;
}

Holders holdersOf(const std::vector<std::string>& names, void* context) {
  Holders holders;
  SCCdll& dll = providerState().dll;
  if (!dll.has(dll.SccQueryHolders)) return holders;
  FileNames files(names);
  const CallbackThread::Place place(&holders);
  const TracedCall traced("SccQueryHolders", files, 1, CallLines::PreAndReturn);
  traced.returned(dll.call(dll.SccQueryHolders, context, files.count(), files.data(),
                           &collectHolder, static_cast<void*>(&holders)));
  return holders;
}

}  // namespace

bool queryFileStatus(const std::vector<std::string>& names, void* context,
                     std::vector<UnitStatus>& status) {
  if (names.empty()) return true;
  std::vector<std::int32_t> words(names.size(), scc::SCC_STATUS_INVALID);
  const long code = SccQuery::query(names, words.data(), context);
  // Without a context there is nobody to ask, and nothing to tell the user about.
  if (context != nullptr && !succeeds(code, nullptr)) return false;
  const Holders holders = holdersOf(names, context);
  for (std::size_t i = 0; i < names.size(); ++i) {
    const auto held = holders.find(names[i]);
    UnitStatus answer{words[i], held != holders.end() ? held->second : std::string()};
    const bool isMine =
        words[i] != scc::SCC_STATUS_INVALID && (words[i] & scc::SCC_STATUS_CHECKEDOUT) != 0;
    if (answer.holder.empty() && isMine) answer.holder = omGetCurrentUser();
    status.push_back(std::move(answer));
  }
  return true;
}

}  // namespace veldra
