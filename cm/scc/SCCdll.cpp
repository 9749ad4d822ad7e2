#include "cm/scc/SCCdll.h"

#include <exception>

#include "cm/core/ModuleState.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/CallbackThread.h"

namespace veldra {

namespace {

/// Tells the host that the provider has the word.
class CallWatch {
 public:
  explicit CallWatch(const char* entryPoint)
      : m_progress(installedHost() != nullptr ? installedHost()->progress() : nullptr) {
    if (m_progress != nullptr) m_progress->providerCallStarted(entryPoint);
  }
  ~CallWatch() {
    if (m_progress != nullptr) m_progress->providerCallEnded();
  }
  CallWatch(const CallWatch&) = delete;
  CallWatch& operator=(const CallWatch&) = delete;

 private:
  IProgress* m_progress;
};

}  // namespace

EntryPoint SCCdll::resolve(EntryName& slot) const {
  if (!isLoaded()) return nullptr;
  if (slot.marker != EntryName::Resolved || slot.generation != generation()) {
    slot.found = find(slot.name);
    slot.generation = generation();
    slot.marker = EntryName::Resolved;
  }
  return slot.found;
}

void SCCdll::refuseIfBroken() const {
  if (!m_breakdown.empty()) throw ProviderFailure(m_breakdown);
}

void SCCdll::guarded(const char* name, const std::function<void()>& body) {
  callBegins();
  try {
    const CallWatch watch(name);
    const CallbackThread::Scope callbacks;
    guardFaults(body);
  } catch (const std::exception& e) {
    breakDown(name, e.what());
  } catch (...) {
    breakDown(name, "an exception without a text");
  }
  callEnds();
}

void SCCdll::breakDown(const char* name, const char* what) {
  ++moduleState().providerBreakdowns;
  m_breakdown = formatMessage(MessageId::ProviderFailed, {name, what});
  VELDRA_TRACE(m_breakdown);
  abandon();
  callEnds();
  throw ProviderFailure(m_breakdown);
}

}  // namespace veldra
