#include "tests/host/platform/FolderTime.h"

#include <chrono>
#include <filesystem>

namespace veldra::host {

void setFolderAge(const std::string& folder, int days) {
  namespace fs = std::filesystem;
  fs::last_write_time(folder, fs::file_time_type::clock::now() - std::chrono::hours(24 * days));
}

}  // namespace veldra::host
