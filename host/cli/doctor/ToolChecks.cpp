#include <algorithm>
#include <filesystem>
#include <system_error>

#include "cm/core/CMArchive.h"
#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/BatchResults.h"
#include "host/cli/Connection.h"
#include "host/cli/Packs.h"
#include "host/cli/UnitOutcome.h"
#include "host/cli/doctor/Checks.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/model/PathNames.h"
#include "host/packs/PackCheck.h"
#include "host/platform/CommandLine.h"
#include "host/platform/Program.h"
#include "host/platform/Secrets.h"
#include "host/resources/MessageCatalogue.h"

namespace veldra::host::cli {

namespace fs = std::filesystem;

namespace {

/// A property of the tool's own, without a project that would select the tool.
std::string valueOf(Session& session, const std::string& tool, const char* name) {
  const host::Property* const property = session.host().properties().find({IPN::CM, tool, name});
  return property != nullptr ? property->value() : std::string();
}

/// The words of a command line, without a leading "env" and its settings. Values of the tool's own
/// properties are filled in once.
std::vector<std::string> wordsOf(Session& session, const std::string& tool, std::string command) {
  if (command.starts_with('$')) {
    const std::size_t end = std::min(command.find(' '), command.size());
    command = valueOf(session, tool, command.substr(1, end - 1).c_str()) + command.substr(end);
  }
  const Result<std::vector<std::string>> split = splitCommandLine(command);
  return split ? *split : std::vector<std::string>();
}

std::string programOf(const std::vector<std::string>& words) {
  const auto at = std::ranges::find_if(words, [](const std::string& word) {
    return word != "env" && word.find('=') == std::string::npos;
  });
  return at != words.end() ? *at : std::string();
}

DoctorCheck packCheck(Session& session, const std::string& tool) {
  const PackDescription& pack = packNamed(session.host().properties(), tool);
  const std::vector<PackMistake> mistakes = checkPack(
      pack.file,
      {session.host().properties(), session.host().patterns(), session.host().installationRoot()});
  DoctorCheck check{.name = "pack", .isFine = mistakes.empty(), .finding = pack.file};
  if (check.isFine) return check;
  check.finding = sentence(mistakes.front());
  check.advice = "Correct the pack; \"veldra-cm pack check " + tool + "\" lists all mistakes.";
  return check;
}

DoctorCheck programCheck(const std::string& program) {
  const std::string place = locateProgram(program);
  if (!place.empty()) return {.name = "program", .finding = place};
  return {.name = "program",
          .isFine = false,
          .finding = "\"" + program + "\" is not found on PATH.",
          .advice = "Install it, or set its full path in the tool's properties."};
}

DoctorCheck versionCheck(Session& session, const std::string& tool,
                         const std::vector<std::string>& words) {
  const std::string reason = whyNothingIsStarted(session);
  if (!reason.empty()) return {.name = "version", .finding = reason};
  const std::unique_ptr<RunThread> run =
      session.host().processes()->createRunThread(joinCommandLine(words));
  constexpr std::uint32_t Patience = 30'000;
  run->getStatus(Patience);
  std::string output;
  run->outputLines().moveTo(output);
  run->errorLines().moveTo(output);
  std::string error;
  PatternMatch match;
  const auto pattern =
      session.host().patterns().compile(valueOf(session, tool, "VersionPattern"), "i", error);
  const bool isFound =
      pattern != nullptr && pattern->match(output, 0, match) == PatternEnd::Matched;
  if (run->end() == ProcessEnd::Exited && run->endCode() == 0 && isFound &&
      match.captures.size() > 1) {
    return {.name = "version", .finding = std::string(match.captures[1])};
  }
  return {.name = "version",
          .isFine = false,
          .finding = "The tool does not tell its version: " + firstLines(output, 2),
          .advice = "Run \"" + joinCommandLine(words) + "\" by hand and see to what it says."};
}

}  // namespace

DoctorChecks checkTool(Session& session, const std::string& tool) {
  DoctorChecks checks = {packCheck(session, tool)};
  const std::vector<std::string> words =
      wordsOf(session, tool, valueOf(session, tool, "VersionCommand"));
  if (words.empty()) {
    checks.push_back({.name = "program",
                      .isFine = false,
                      .finding = "The pack does not say how to ask the tool for its version.",
                      .advice = "Set its properties VersionCommand and VersionPattern."});
  } else {
    checks.push_back(programCheck(programOf(words)));
    if (checks.back().isFine) checks.push_back(versionCheck(session, tool, words));
  }
  checks.push_back({.name = "language",
                    .finding = "messages in " + userLanguage() +
                               "; the tool's own words are asked for in English"});
  const std::string encoding = userEncoding();
  checks.push_back({.name = "encoding",
                    .finding = (encoding.empty() ? "not set" : encoding) +
                               "; names and comments beyond ASCII are tried in the round trip"});
  const std::string policy = valueOf(session, tool, "LockPolicy");
  checks.push_back({.name = "locks", .finding = policy.empty() ? "not said by the pack" : policy});
  return checks;
}

DoctorChecks checkProject(Session& session) {
  DoctorChecks checks;
  const std::string folder = session.project().getProjectDirectory();
  checks.push_back({.name = "folder", .isFine = canWriteInto(folder), .finding = folder});
  if (!checks.back().isFine) {
    checks.back().advice = "You may not write there. Give yourself the right.";
  }
  if (!session.host().trust().isTrusted()) {
    checks.push_back({.name = "trust",
                      .isFine = false,
                      .finding = "The project brings commands that you have not trusted.",
                      .advice = "Look at them with \"veldra-cm trust --list\"."});
    return checks;
  }
  const std::string archive = CMArchive::getMainArchive();
  if (archive.empty()) {
    checks.push_back({.name = "archive",
                      .isFine = false,
                      .finding = "The project has no archive.",
                      .advice = "Give \"veldra-cm connect --archive WHERE\"."});
    return checks;
  }
  checks.push_back(checkListing(session, withoutSecrets(archive), "tool"));
  std::error_code unknown;
  if (isLocalPlace(archive) && fs::is_directory(archive, unknown) && !canWriteInto(archive)) {
    checks.push_back({.name = "rights",
                      .isFine = false,
                      .finding = "You may not write to " + archive + ".",
                      .advice = "Ask its owner for the right to write."});
  }
  return checks;
}

}  // namespace veldra::host::cli
