#include "host/cli/doctor/Checks.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "cm/ui/logic/BatchResults.h"
#include "host/cli/ArchiveContent.h"

namespace veldra::host::cli {

DoctorCheck failedCheck(std::string name, const std::string& words, std::string otherwise) {
  constexpr std::string_view Mark = "\nadvice:";
  constexpr std::size_t ToldLines = 8;
  DoctorCheck check{.name = std::move(name), .isFine = false, .advice = std::move(otherwise)};
  const std::size_t at = words.find(Mark);
  check.finding = firstLines(words.substr(0, at), ToldLines);
  if (at != std::string::npos) {
    const std::string advice = firstLines(words.substr(at + Mark.size()), 1);
    check.advice = advice.substr(std::min(advice.find_first_not_of(' '), advice.size()));
  }
  return check;
}

std::string whyNothingIsStarted(Session& session) {
  if (session.options().dryRun) return "not asked in a dry run";
  if (!session.host().trust().isTrusted()) return "not asked before the project is trusted";
  return {};
}

DoctorCheck checkListing(Session& session, const std::string& place, const char* asked) {
  const std::string reason = whyNothingIsStarted(session);
  if (!reason.empty()) return {.name = "archive", .finding = place + ", " + reason};
  const ArchiveContent content = listArchive(session);
  if (!content.failure.empty()) {
    return failedCheck(
        "archive", place + "\n" + content.failure,
        std::string("See to what the ") + asked + " says, then try \"veldra-cm ls\".");
  }
  return {.name = "archive",
          .finding = place + ", " + std::to_string(content.files.size()) + " files"};
}

}  // namespace veldra::host::cli
