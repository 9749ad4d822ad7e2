#include "host/settings/KnownFailures.h"

#include <optional>

#include "cm/templates/CMProperty.h"
#include "host/resources/MessageNumbers.h"

namespace veldra::host {

namespace {

namespace Id = MessageNumber;

constexpr KnownFailure Failures[] = {
    {"FailureToolMissing", Id::ToolMissing, ""},
    {"FailureDiskFull", Id::DiskFull, ""},
    {"FailureFileName", Id::FileNameNotTaken, ""},
    {"FailureAuthentication", Id::Authentication, ""},
    {"FailureUnreachable", Id::Unreachable, ""},
    {"FailureNotConnected", Id::NotConnected, ""},
    {"FailureInterrupted", Id::RunInterrupted, ""},
    {"FailureLocked", Id::LockedByOther, "another user"},
    {"FailureNotCheckedOut", Id::NotCheckedOut, ""},
    {"FailureConflict", Id::Conflict, ""},
    {"FailureOutOfDate", Id::OutOfDate, ""},
    {"FailureNoSuchRevision", Id::NoSuchRevision, ""},
    {"FailureNotInArchive", Id::NotInArchive, ""},
    {"FailureNoUserName", Id::NoUserName, ""},
    {"FailurePermission", Id::NotPermitted, ""},
};

/// The name that the words give, "" for none; nothing when the failure is another one.
std::optional<std::string> nameIn(std::string_view words, const KnownFailure& failure,
                                  IPatternEngine& patterns) {
  std::string text;
  if (!CMProperty::getToolPropertyValue(failure.property, text) || text.empty()) return {};
  std::string error;
  const auto pattern = patterns.compile(text, "i", error);
  PatternMatch match;
  if (pattern == nullptr || pattern->match(words, 0, match) != PatternEnd::Matched) return {};
  return match.captures.size() > 1 ? std::string(match.captures[1]) : std::string();
}

}  // namespace

std::span<const KnownFailure> knownFailures() {
  return Failures;
}

std::string adviceOn(Host& host, std::string_view words) {
  for (const KnownFailure& failure : Failures) {
    const std::optional<std::string> name = nameIn(words, failure, host.patterns());
    if (!name) continue;
    std::string advice = host.messages().loadString(failure.advice);
    const std::size_t place = advice.find("%1");
    if (place != std::string::npos)
      advice.replace(place, 2, name->empty() ? failure.noName : *name);
    return advice;
  }
  return {};
}

}  // namespace veldra::host
