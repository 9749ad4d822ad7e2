#include "host/platform/StaleFiles.h"

#include <charconv>
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

}  // namespace

std::size_t removeStaleTempFiles(const std::string& directory) {
  std::size_t removed = 0;
  std::error_code error;
  for (std::filesystem::directory_iterator at(directory, error), end; !error && at != end;
       at.increment(error)) {
    const long process = ownerOf(at->path().filename().native());
    if (process == 0 || isProcessAlive(process)) continue;
    std::error_code refused;
    if (std::filesystem::remove_all(at->path(), refused) > 0 && !refused) ++removed;
  }
  return removed;
}

}  // namespace veldra::host
