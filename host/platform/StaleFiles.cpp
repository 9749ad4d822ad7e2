#include "host/platform/StaleFiles.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "host/platform/Program.h"

namespace veldra::host {

namespace {

/// The process whose number the name carries; 0 when it is another file's name.
long ownerOf(std::string_view name) {
  constexpr std::string_view Prefix = "veldra-cm-";
  constexpr std::size_t SuffixLength = sizeof("-XXXXXX") - 1;
  if (!name.starts_with(Prefix) || name.size() <= Prefix.size() + SuffixLength) return 0;
  const std::string_view digits =
      name.substr(Prefix.size(), name.size() - Prefix.size() - SuffixLength);
  long process = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, process);
  return error == std::errc() && stop == end && *end == '-' && process > 0 ? process : 0;
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
bool isOldSide(const std::filesystem::directory_entry& entry) {
  if (!isComparisonSide(entry.path().filename().native())) return false;
  std::error_code unknown;
  const auto written = entry.last_write_time(unknown);
  return !unknown &&
         entry.symlink_status(unknown).type() == std::filesystem::file_type::directory &&
         written < std::filesystem::file_time_type::clock::now() - std::chrono::weeks(1) &&
         belongsToUser(entry.path().string());
}

bool isStale(const std::filesystem::directory_entry& entry) {
  const long process = ownerOf(entry.path().filename().native());
  return process != 0 ? !isProcessAlive(process) : isOldSide(entry);
}

}  // namespace

std::size_t removeStaleTempFiles(const std::string& directory) {
  std::size_t removed = 0;
  std::error_code error;
  for (std::filesystem::directory_iterator at(directory, error), end; !error && at != end;
       at.increment(error)) {
    if (!isStale(*at)) continue;
    std::error_code refused;
    if (std::filesystem::remove_all(at->path(), refused) > 0 && !refused) ++removed;
  }
  return removed;
}

}  // namespace veldra::host
