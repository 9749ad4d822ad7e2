#pragma once

#include <filesystem>
#include <system_error>

namespace veldra::host {

/// Removes a file, one that is read-only too, or an empty folder. True when there was one.
/// `failed` says why it is still there.
bool removeEntry(const std::filesystem::path& path, std::error_code& failed);

/// Removes a file, or a folder with everything in it, read-only files too. Links are removed, not
/// followed. True when there was something and nothing of it is left.
///
/// The standard function for this does not come back from a folder in a folder with GCC 12 for
/// Windows.
bool removeTree(const std::filesystem::path& path) noexcept;

}  // namespace veldra::host
