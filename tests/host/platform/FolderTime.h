#pragma once

#include <string>

namespace veldra::host {

/// Makes a folder look last written that many days ago. GCC's library for Windows does so for files
/// alone.
void setFolderAge(const std::string& folder, int days);

}  // namespace veldra::host
