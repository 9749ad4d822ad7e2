#include "host/platform/StaleFiles.h"

#include <algorithm>
#include <atomic>
#include <charconv>
#include <chrono>
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

std::string nameOf(const fs::directory_entry& entry) {
  return entry.path().filename().string();
}

/// "_tmp2026_325_16_05_23_1": the date, the time and the side of a comparison.
bool isComparisonSide(std::string_view name) {
  constexpr std::string_view Pattern = "_tmp0000_000_00_00_00_0";
  return name.size() == Pattern.size() && (name.back() == '1' || name.back() == '2') &&
         std::ranges::equal(name, Pattern, [](char c, char wanted) {
           return wanted == '0' ? c >= '0' && c <= '9' : c == wanted;
         });
}

/// A tool may still read what is younger.
bool isOldSide(const fs::directory_entry& entry) {
  if (!isComparisonSide(nameOf(entry))) return false;
  std::error_code unknown;
  const auto written = entry.last_write_time(unknown);
  return !unknown && entry.symlink_status(unknown).type() == fs::file_type::directory &&
         written < fs::file_time_type::clock::now() - std::chrono::weeks(1) &&
         belongsToUser(entry.path().string());
}

/// Removes what is a leftover. Returns how much that was.
template <class IsStale>
std::size_t removeFrom(const std::string& directory, IsStale isStale) {
  std::size_t removed = 0;
  std::error_code error;
  for (fs::directory_iterator at(directory, error), end; !error && at != end; at.increment(error)) {
    if (isStale(*at) && removeTree(at->path())) ++removed;
  }
  return removed;
}

bool isOfTheDead(long process) {
  return process != 0 && !isProcessAlive(process);
}

}  // namespace

std::string nextTemporaryName() {
  static std::atomic<unsigned> counter{0};
  std::string name(TemporaryPrefix);
  name += std::to_string(processNumber()) + '-' + std::to_string(counter++);
  return name.append(TemporarySuffix);
}

std::size_t removeStaleTempFiles(const std::string& directory) {
  return removeFrom(directory, [](const fs::directory_entry& entry) {
    return isOfTheDead(ownerOf(nameOf(entry))) || isOldSide(entry);
  });
}

std::size_t removeStaleTemporaries(const std::string& directory) {
  return removeFrom(directory, [](const fs::directory_entry& entry) {
    return isOfTheDead(writerOf(nameOf(entry)));
  });
}

}  // namespace veldra::host
