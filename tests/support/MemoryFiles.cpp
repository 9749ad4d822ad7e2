#include "tests/support/MemoryFiles.h"

namespace veldra::test {

void MemoryFiles::write(const std::string& path, std::string content, bool writable) {
  const std::string full = fullName(path);
  m_files[full] = {.content = std::move(content), .writable = writable};
  makeDirectory(directoryOf(full));
}

bool MemoryFiles::move(const std::string& from, const std::string& to) {
  if (!m_files.contains(from) || m_files.contains(to)) return false;
  auto node = m_files.extract(from);
  node.key() = to;
  m_files.insert(std::move(node));
  makeDirectory(directoryOf(to));
  return true;
}

void MemoryFiles::makeDirectory(const std::string& path) {
  for (std::string rest = path; !rest.empty(); rest = directoryOf(rest)) m_directories.insert(rest);
}

MemoryFiles::File* MemoryFiles::find(const std::string& path) {
  const auto found = m_files.find(fullName(path));
  return found == m_files.end() ? nullptr : &found->second;
}

std::string MemoryFiles::fullName(const std::string& path) const {
  const bool isBare = directoryOf(path).empty() && !m_current.empty();
  return isBare ? m_current + '/' + path : path;
}

std::string MemoryFiles::directoryOf(const std::string& path) {
  const std::size_t at = path.find_last_of("/\\");
  return at == std::string::npos ? std::string() : path.substr(0, at);
}

std::string MemoryFiles::nameOf(const std::string& path) {
  const std::size_t at = path.find_last_of("/\\");
  return at == std::string::npos ? path : path.substr(at + 1);
}

}  // namespace veldra::test
