#include "cm/scc/ProviderCall.h"

#include "cm/core/CMOutputer.h"
#include "cm/host/Host.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {
void trace(const std::string& line) {
  if (!line.empty()) VELDRA_TRACE(line);
}
}  // namespace

FileNames::FileNames(const std::vector<std::string>& names) {
  m_names.reserve(names.size());
  for (const std::string& name : names) m_names.push_back(name.c_str());
}

TracedCall::TracedCall(const char* entryPoint, FileNames& files, long shown, CallLines lines)
    : m_entryPoint(entryPoint), m_lines(lines) {
  std::string line;
  CMProperty::getPreSCCCallLogMsg(m_entryPoint, shown, files.data(), line);
  trace(line);
}

TracedCall::TracedCall(const char* entryPoint, const std::string& file, CallLines lines)
    : m_entryPoint(entryPoint), m_lines(lines) {
  std::string line;
  CMProperty::getPreSCCCallLogMsg(m_entryPoint, file.c_str(), line);
  trace(line);
}

TracedCall::TracedCall(const char* entryPoint)
    : m_entryPoint(entryPoint), m_lines(CallLines::PrePostAndReturn) {
  std::string line;
  CMProperty::getPreSCCCallLogMsg(m_entryPoint, line);
  trace(line);
}

long TracedCall::returned(long code) const {
  std::string line;
  if (m_lines == CallLines::PrePostAndReturn) {
    CMProperty::getPostSCCCallLogMsg(m_entryPoint, line);
    trace(line);
  }
  CMProperty::getSCCReturnLogMsg(m_entryPoint, code, line);
  trace(line);
  return code;
}

void* parentWindow() {
  Host* const host = installedHost();
  IAbstractCMManager* const manager = host != nullptr ? host->cmManager() : nullptr;
  IWindow* const window =
      CMOutputer::getTopMostWindow(manager != nullptr ? manager->outputWindow() : nullptr);
  return window != nullptr ? window->nativeHandle() : nullptr;
}

}  // namespace veldra
