#include "host/cli/UnitOutcome.h"

#include <algorithm>
#include <sstream>

#include "cm/host/IProperty.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/BatchResults.h"
#include "host/cli/CallArguments.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/platform/CommandLine.h"
#include "host/settings/KnownFailures.h"

namespace veldra::host::cli {

namespace {

UnitResult resultOf(UnitEnd end) {
  switch (end) {
    case UnitEnd::Done:
      return UnitResult::Done;
    case UnitEnd::Refused:
      return UnitResult::Refused;
    case UnitEnd::Declined:
      return UnitResult::Declined;
    default:
      return UnitResult::Failed;
  }
}

/// What this program has to offer beside what an end means.
std::string wayOut(UnitEnd end, const char* templateProperty) {
  if (end == UnitEnd::Declined) return " --force overwrites it.";
  if (end != UnitEnd::NotExpanded) return {};
  const IProperty* const tool = CMProperty::getCMTool(nullptr, false);
  if (tool != nullptr && CMProperty::getToolProperty(templateProperty) == nullptr) {
    return " The tool \"" + tool->getValue() + "\" has no property " + templateProperty +
           ". \"veldra-cm pack list\" shows the tools that there are.";
  }
  return std::string(" \"veldra-cm expand --explain --property ") + templateProperty +
         "\" shows where it fails.";
}

/// What a provider said by itself. It goes to the output window, among the names of files; the
/// module's words tell only what the provider's code means.
std::string providerWords(const UnitTrace& trace) {
  if (trace.end != UnitEnd::ToolFailed || !trace.commands.empty()) return {};
  std::string words;
  std::istringstream lines(trace.output);
  for (std::string line; std::getline(lines, line);) {
    const bool isNew = line != trace.file && trace.words.find(line) == std::string::npos;
    if (isNew) words += line + '\n';
  }
  return words;
}

void putInPlace(std::string_view mark, std::string_view words, std::string& argument) {
  const std::size_t at = argument.find(mark);
  if (at != std::string::npos) argument.replace(at, mark.size(), words);
}

/// The diagnostic that speaks of the file, or nothing.
const CMDiagnostic* diagnosticOf(const std::string& file, const DiagnosticList& diagnostics) {
  const auto at = std::ranges::find_if(diagnostics, [&](const CMDiagnostic& diagnostic) {
    return diagnostic.getMessage().find(file) != std::string::npos;
  });
  return at != diagnostics.end() ? &*at : nullptr;
}

}  // namespace

std::string adviceLine(const std::string& words) {
  Host* const host = installedHost();
  const std::string advice = host != nullptr ? adviceOn(*host, words) : std::string();
  return advice.empty() ? advice : "\nadvice:  " + advice;
}

std::string failureOf(const UnitTrace& trace, const char* templateProperty) {
  if (trace.end == UnitEnd::Done) return {};
  std::string failure = firstWords(providerWords(trace) + trace.words);
  // Why nothing could be run was written to the output window alone.
  if (trace.end == UnitEnd::NotRun) failure = firstWords(trace.output);
  if (failure.empty()) failure = meaningOf(trace.end) + wayOut(trace.end, templateProperty);
  for (const std::string& command : trace.commands) failure += "\ncommand: " + command;
  return failure + adviceLine(trace.end == UnitEnd::NotRun ? trace.output : trace.words);
}

void applyTrace(const UnitTrace& trace, const char* templateProperty,
                const DiagnosticList& diagnostics, UnitRecord& record) {
  record.result = resultOf(trace.end);
  record.message = trace.end == UnitEnd::Done ? trace.words : failureOf(trace, templateProperty);
  if (trace.end != UnitEnd::Refused || !trace.words.empty()) return;
  const CMDiagnostic* const reason = diagnosticOf(trace.file, diagnostics);
  if (reason != nullptr) record.message = reason->getMessage();
}

void applyAbsence(bool wasCancelled, const std::string& reason, UnitRecord& record) {
  record.result = wasCancelled ? UnitResult::Cancelled : UnitResult::Skipped;
  record.message = wasCancelled ? "It was not its turn yet." : reason;
  if (record.message.empty()) record.message = "The operation left it out.";
}

std::string generalMessage(const DiagnosticList& diagnostics,
                           const std::vector<UnitTrace>& traces) {
  std::vector<veldra::UnitResult> results;
  results.reserve(traces.size());
  for (const UnitTrace& trace : traces) results.push_back({trace.file, trace.end, trace.words});
  std::string message;
  for (const std::string& failure : failuresOfNoUnit(diagnostics, results)) {
    if (!message.empty()) message += '\n';
    message += failure;
  }
  return message;
}

void makePlan(const UnitTrace& trace, const char* lock, UnitRecord& record) {
  if (record.result != UnitResult::Done) return;
  record.result = UnitResult::Planned;
  record.plan.file = trace.file;
  record.plan.lock = lock;
  for (const std::string& command : trace.commands) {
    record.plan.commands.push_back(plannedArguments(command));
  }
}

std::vector<std::string> plannedArguments(const std::string& command) {
  Result<std::vector<std::string>> split = splitCommandLine(command);
  std::vector<std::string> arguments = split ? *split : std::vector<std::string>{command};
  // A sign such as "@" may stand before them.
  for (std::string& argument : arguments) {
    putInPlace(PlannedCommentFile, "<comment>", argument);
    putInPlace(PlannedUnitList, "<units>", argument);
  }
  return arguments;
}

}  // namespace veldra::host::cli
