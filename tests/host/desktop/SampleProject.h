#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "tests/host/platform/TempDirectory.h"

namespace veldra::host::desktop {

/// A copy of the sample model that may be changed.
class SampleProject {
 public:
  SampleProject() {
    namespace fs = std::filesystem;
    fs::copy(VELDRA_SAMPLE, folder(), fs::copy_options::recursive);
    for (const auto& entry : fs::recursive_directory_iterator(folder())) {
      fs::permissions(entry, fs::perms::owner_write, fs::perm_options::add);
    }
  }

  std::string folder() const { return m_directory.path() + "/model"; }
  std::string file(const std::string& relative) const { return folder() + "/" + relative; }
  std::string beside(const std::string& name) const { return m_directory.path() + "/" + name; }
  std::string read(const std::string& relative) const {
    std::ostringstream bytes;
    bytes << std::ifstream(file(relative)).rdbuf();
    return bytes.str();
  }
  void write(const std::string& relative, const std::string& bytes) const {
    std::ofstream(file(relative)) << bytes;
  }
  void makeReadOnly(const std::string& relative) const {
    using std::filesystem::perms;
    std::filesystem::permissions(file(relative),
                                 perms::owner_write | perms::group_write | perms::others_write,
                                 std::filesystem::perm_options::remove);
  }

 private:
  TempDirectory m_directory;
};

}  // namespace veldra::host::desktop
