#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace veldra::host {

/// A directory of its own for one test, removed afterwards.
class TempDirectory {
 public:
  TempDirectory() {
    std::string name = (std::filesystem::temp_directory_path() / "veldra-test-XXXXXX").string();
    m_path = ::mkdtemp(name.data());
  }
  ~TempDirectory() {
    std::error_code error;
    std::filesystem::remove_all(m_path, error);
  }
  TempDirectory(const TempDirectory&) = delete;
  TempDirectory& operator=(const TempDirectory&) = delete;

  std::string path() const { return m_path; }
  std::string file(const std::string& name) const { return m_path + "/" + name; }

  std::string write(const std::string& name, const std::string& bytes) const {
    std::ofstream(file(name), std::ios::binary) << bytes;
    return file(name);
  }
  std::string read(const std::string& name) const {
    std::ifstream stream(file(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  }
  std::size_t entries() const {
    namespace fs = std::filesystem;
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(m_path), fs::directory_iterator()));
  }

 private:
  std::string m_path;
};

}  // namespace veldra::host
