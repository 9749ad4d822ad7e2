#include "host/cli/printing/FailureListing.h"

#include <cctype>
#include <cstddef>
#include <sstream>
#include <string_view>

#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/Listing.h"

namespace veldra::host::cli {

namespace {

bool isInName(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || static_cast<unsigned char>(c) >= 0x80;
}

/// Erases the name, but not letters inside of other words.
void eraseName(std::string_view name, std::string& text) {
  if (name.empty()) return;
  for (std::size_t at = text.find(name); at != std::string::npos; at = text.find(name, at)) {
    const std::size_t end = at + name.size();
    const bool isPart =
        (at > 0 && isInName(text[at - 1])) || (end < text.size() && isInName(text[end]));
    if (isPart) {
      ++at;
    } else {
      text.erase(at, name.size());
    }
  }
}

/// What the unit shares with others that failed for the same reason: all but its own name, and the
/// commands, which name temporary files besides.
std::string reasonOf(const UnitRecord& unit) {
  std::string reason = resultWord(unit.result);
  std::istringstream lines(unit.message);
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with("command: ")) reason += '\n' + line;
  }
  eraseName(unit.path, reason);
  return reason;
}

}  // namespace

void FailureListing::add(const UnitRecord& unit) {
  std::string reason = reasonOf(unit);
  const bool isTold = reason == m_lastReason && !unit.message.empty();
  m_out << resultWord(unit.result) << "  " << textForPeople(unit.path)
        << (isTold ? "  (as above)\n" : "\n");
  if (!isTold) printRemark(unit.message, m_out);
  m_lastReason = std::move(reason);
}

}  // namespace veldra::host::cli
