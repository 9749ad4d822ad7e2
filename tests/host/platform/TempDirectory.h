#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "host/platform/RemoveTree.h"

namespace veldra::host {

/// A directory of its own for one test, removed afterwards.
class TempDirectory {
 public:
  TempDirectory() {
    namespace fs = std::filesystem;
    static std::random_device random;
    fs::path path;
    do {
      path = fs::temp_directory_path() / ("veldra-test-" + std::to_string(random()));
    } while (!fs::create_directory(path));
    m_path = path.string();
  }
  ~TempDirectory() { removeTree(m_path); }
  TempDirectory(const TempDirectory&) = delete;
  TempDirectory& operator=(const TempDirectory&) = delete;

  std::string path() const { return m_path; }
  /// `name` may hold slashes; the result has the system's separators.
  std::string file(const std::string& name) const {
    return m_path + std::filesystem::path("/" + name).make_preferred().string();
  }

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
