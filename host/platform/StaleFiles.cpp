#include "host/platform/StaleFiles.h"

#include <atomic>
#include <charconv>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "host/platform/AtomicFile.h"
#include "host/platform/Program.h"
#include "host/platform/RemoveTree.h"
#include "host/platform/Temporaries.h"

namespace veldra::host {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view TemporaryPrefix = ".veldra-cm-";
constexpr std::string_view TemporarySuffix = ".tmp";
constexpr std::string_view TempFilePrefix = "veldra-cm-";
constexpr std::size_t TempFileEnding = sizeof("-XXXXXX") - 1;

/// The number before the first hyphen; 0 when it is none, or `end` is not where that hyphen is.
long numberIn(std::string_view text, std::size_t end) {
  long process = 0;
  const char* const last = text.data() + std::min(end, text.size());
  const auto [stop, error] = std::from_chars(text.data(), last, process);
  const bool isNumber = error == std::errc() && stop != text.data() + text.size() && *stop == '-';
  return isNumber && process > 0 && (end == std::string_view::npos || stop == last) ? process : 0;
}

/// The process whose number the name of a temporary carries; 0 when it is another file's name.
long writerOf(std::string_view name) {
  if (!name.starts_with(TemporaryPrefix) || !name.ends_with(TemporarySuffix)) return 0;
  return numberIn(name.substr(TemporaryPrefix.size()), std::string_view::npos);
}

/// The same for a file or folder of the directory for temporary files.
long ownerOf(std::string_view name) {
  if (!name.starts_with(TempFilePrefix)) return 0;
  name.remove_prefix(TempFilePrefix.size());
  return name.size() > TempFileEnding ? numberIn(name, name.size() - TempFileEnding) : 0;
}

/// Removes what belongs to a process that is gone. Returns how much that was.
template <class ProcessOf>
std::size_t removeOfTheDead(const std::string& directory, ProcessOf processOf) {
  std::size_t removed = 0;
  std::error_code error;
  for (fs::directory_iterator at(directory, error), end; !error && at != end; at.increment(error)) {
    const long process = processOf(at->path().filename().string());
    if (process == 0 || isProcessAlive(process)) continue;
    if (removeTree(at->path())) ++removed;
  }
  return removed;
}

}  // namespace

std::string nextTemporaryName() {
  static std::atomic<unsigned> counter{0};
  std::string name(TemporaryPrefix);
  name += std::to_string(processNumber()) + '-' + std::to_string(counter++);
  return name.append(TemporarySuffix);
}

std::size_t removeStaleTempFiles(const std::string& directory) {
  return removeOfTheDead(directory, ownerOf);
}

std::size_t removeStaleTemporaries(const std::string& directory) {
  return removeOfTheDead(directory, writerOf);
}

}  // namespace veldra::host
