#include "cm/scc/PDLL.h"

#include <utility>
#include <vector>

#include "cm/host/Host.h"

namespace veldra {

bool PDLL::load() {
  if (++m_useCount != 1 || !m_path) return false;
  Host* const host = installedHost();
  ILibraries* const libraries = host != nullptr ? host->libraries() : nullptr;
  m_loadError.clear();
  ++m_generation;
  if (libraries != nullptr) {
    m_library = libraries->load(*m_path, m_loadError);
  } else {
    m_loadError = "this program cannot load libraries";
  }
  return m_library != nullptr;
}

void PDLL::release() {
  if (m_useCount == 0) return;
  if (--m_useCount < 1) unload();
}

PDLL::~PDLL() = default;

bool PDLL::setPath(const char* path) {
  if (isLoaded()) return false;
  m_path = path != nullptr ? std::optional<std::string>(path) : std::nullopt;
  return true;
}

EntryPoint PDLL::find(const char* name) const {
  return m_library != nullptr ? m_library->find(name) : nullptr;
}

void PDLL::callEnds() {
  if (--m_callDepth == 0 && std::exchange(m_unloadsAfterCall, false)) unload();
}

void PDLL::abandon() {
  // Never destroyed, not even when the process ends.
  static auto& abandoned = *new std::vector<std::unique_ptr<ILibrary>>;
  if (m_library != nullptr) abandoned.push_back(std::move(m_library));
}

void PDLL::unload() {
  if (m_callDepth > 0) {
    m_unloadsAfterCall = true;
    return;
  }
  m_library.reset();
  ++m_generation;
  m_path.reset();
}

}  // namespace veldra
