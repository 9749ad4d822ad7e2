#pragma once

#include <cstddef>
#include <string>

namespace veldra::host {

/// Removes from the directory for temporary files what killed runs of this program and of its
/// helpers left there: "veldra-cm-PROCESS-" and six more characters, with a process that is gone;
/// and the directories of this user's comparisons that are older than a week. Returns how many were
/// removed.
std::size_t removeStaleTempFiles(const std::string& directory);

}  // namespace veldra::host
