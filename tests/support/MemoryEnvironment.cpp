#include "tests/support/MemoryEnvironment.h"

namespace veldra::test {

int MemoryEnvironment::omGetRoot(std::string& rootOut) {
  if (!rootKnown) return 0;
  rootOut = root;
  return 1;
}

int MemoryEnvironment::omGetEnvVar(const std::string& section, const std::string& name,
                                   std::string& value, const std::string& defaultValue) {
  const auto found = settings.find({section, name});
  value = found == settings.end() ? defaultValue : found->second;
  return found == settings.end() ? 0 : 1;
}

bool MemoryEnvironment::omIsAbsolutePath(const std::string& path) {
  return path.starts_with('/') || (path.size() > 2 && path[1] == ':');
}

bool MemoryEnvironment::omFileHasWritePermission(const std::string& path) {
  const MemoryFiles::File* file = m_files.find(path);
  return file != nullptr && file->writable;
}

bool MemoryEnvironment::isDirectory(const std::string& path, bool& exists) {
  exists = m_files.isDirectory(path) || m_files.find(path) != nullptr;
  return m_files.isDirectory(path);
}

std::string MemoryEnvironment::omGetFullPathOfDirectory(const std::string& path,
                                                        std::string& errorText) {
  if (!path.empty()) return path;
  if (currentDirectory.empty()) errorText = m_lastError = "the current directory is gone";
  return currentDirectory;
}

bool MemoryEnvironment::setCurrentDirectory(const std::string& path) {
  if ((path != ".." && !m_files.isDirectory(path)) || path == unenterableDirectory) {
    m_lastError = "no such directory";
    return false;
  }
  // The parent counts only as a step back, as tests ask for it.
  currentDirectory = path == ".." ? MemoryFiles::directoryOf(currentDirectory) : path;
  m_files.enter(currentDirectory);
  return true;
}

std::string MemoryEnvironment::createTempFile(const std::string& content) {
  if (diskFull) {
    m_lastError = "no space left";
    return {};
  }
  const std::string path = omGetTempDir() + "/veldra" + std::to_string(++m_tempFiles);
  m_files.write(path, content, true);
  return path;
}

}  // namespace veldra::test
