#pragma once

#include <filesystem>

namespace veldra::host {

/// Removes a file, or a folder with everything in it, read-only files too. Links are removed, not
/// followed. True when there was something and nothing of it is left.
///
/// The standard function for this does not come back from a folder in a folder with GCC 12 for
/// Windows.
bool removeTree(const std::filesystem::path& path) noexcept;

}  // namespace veldra::host
