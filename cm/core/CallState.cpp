#include "cm/core/CallState.h"

#include "cm/core/ModuleState.h"
#include "cm/host/Host.h"

namespace veldra {

namespace {

std::string currentDirectory() {
  std::string errorText;
  return installedHost() != nullptr ? omGetFullPathOfDirectory("", errorText) : std::string();
}

}  // namespace

CallState::CallState()
    : m_transcations(moduleState().transcations.size()),
      m_openUndos(moduleState().openUndos),
      m_checkoutGuards(moduleState().checkoutGuards),
      m_directory(currentDirectory()) {}

void CallState::restore() const {
  ModuleState& state = moduleState();
  // The objects are gone with the stack they lay on; only their number is still known.
  if (state.transcations.size() > m_transcations) state.transcations.resize(m_transcations);
  if (state.transcations.empty()) state.notices.reset();
  state.checkoutGuards = m_checkoutGuards;
  state.expansion = {};
  Host* const host = installedHost();
  if (host == nullptr) return;
  Undoer* const undoer = host->undoer();
  for (; state.openUndos > m_openUndos; --state.openUndos) {
    if (undoer != nullptr) undoer->endTransaction();
  }
  if (!m_directory.empty()) host->environment().setCurrentDirectory(m_directory);
}

}  // namespace veldra
