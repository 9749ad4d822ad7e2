#include "tests/support/MemoryFiles.h"

#include <vector>

namespace veldra::test {

void MemoryFiles::write(const std::string& path, std::string content, bool writable) {
  const std::string full = fullNameOf(path);
  m_files[full] = {.content = std::move(content), .writable = writable};
  makeDirectory(directoryOf(full));
}

bool MemoryFiles::move(const std::string& from, const std::string& to) {
  if (m_files.contains(to) || isDirectory(to)) return false;
  std::vector<std::string> names;
  for (const auto& [name, file] : m_files) {
    if (name == from || name.starts_with(from + '/')) names.push_back(name);
  }
  std::erase_if(m_directories, [&from](const std::string& name) {
    return name == from || name.starts_with(from + '/');
  });
  for (const std::string& name : names) {
    auto node = m_files.extract(name);
    node.key() = to + name.substr(from.size());
    makeDirectory(directoryOf(node.key()));
    m_files.insert(std::move(node));
  }
  return !names.empty();
}

void MemoryFiles::makeDirectory(const std::string& path) {
  for (std::string rest = path; !rest.empty(); rest = directoryOf(rest)) m_directories.insert(rest);
}

MemoryFiles::File* MemoryFiles::find(const std::string& path) {
  const auto found = m_files.find(fullNameOf(path));
  return found == m_files.end() ? nullptr : &found->second;
}

std::string MemoryFiles::fullNameOf(const std::string& path) const {
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
