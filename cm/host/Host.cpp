#include "cm/host/Host.h"

namespace veldra {

namespace {
Host* theHost = nullptr;
unsigned generation = 0;
}  // namespace

void installHost(Host* host) {
  ++generation;
  theHost = host;
}

unsigned hostGeneration() {
  return generation;
}

Host* installedHost() {
  return theHost;
}

void traceLine(const char* file, int line, std::string_view text, std::string_view value) {
  LogTrace* log = theHost != nullptr ? theHost->trace() : nullptr;
  if (log == nullptr || !log->isOn()) return;
  if (value.empty()) {
    log->write(LogTrace::Log::Min, text, file, line);
    return;
  }
  std::string whole;
  whole.reserve(text.size() + value.size());
  whole.append(text).append(value);
  log->write(LogTrace::Log::Min, whole, file, line);
}

void guardFaults(const std::function<void()>& body) {
  CSignal2Exception* guard = theHost != nullptr ? theHost->faultGuard() : nullptr;
  if (guard != nullptr) {
    guard->guard(body);
  } else {
    body();
  }
}

}  // namespace veldra
