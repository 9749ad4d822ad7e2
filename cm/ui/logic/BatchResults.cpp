#include "cm/ui/logic/BatchResults.h"

#include <algorithm>
#include <unordered_set>

#include "cm/core/TextTools.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/ui/logic/UnitTexts.h"

namespace veldra {

namespace {

constexpr std::size_t MostLines = 4;

int meaningMessage(UnitEnd end) {
  switch (end) {
    case UnitEnd::Refused:
      return MessageId::UnitRefused;
    case UnitEnd::Declined:
      return MessageId::UnitDeclined;
    case UnitEnd::NotExpanded:
      return MessageId::CommandNotExpanded;
    case UnitEnd::NotRun:
      return MessageId::CommandNotRun;
    case UnitEnd::NotReloaded:
      return MessageId::UnitNotReloaded;
    default:
      return MessageId::ToolFailedSilently;
  }
}

bool speaksOf(const CMDiagnostic& diagnostic, const UnitResult& result) {
  const std::string& message = diagnostic.getMessage();
  const bool isSameText = !result.words.empty() && message.find(result.words) != std::string::npos;
  return isSameText || message.find(result.file) != std::string::npos;
}

/// Which units the diagnostics speak of already. Most are told word for word; only the others need
/// a search.
class Told {
 public:
  explicit Told(const DiagnosticList& diagnostics) : m_diagnostics(diagnostics) {
    for (const CMDiagnostic& diagnostic : diagnostics) m_messages.insert(diagnostic.getMessage());
  }
  bool contains(const UnitResult& result) const {
    if (!result.words.empty() && m_messages.contains(result.words)) return true;
    return std::ranges::any_of(m_diagnostics, [&result](const CMDiagnostic& diagnostic) {
      return speaksOf(diagnostic, result);
    });
  }

 private:
  const DiagnosticList& m_diagnostics;
  std::unordered_set<std::string_view> m_messages;
};

}  // namespace

std::string meaningOf(UnitEnd end) {
  return end == UnitEnd::Done ? std::string() : loadMessage(meaningMessage(end));
}

std::string firstLines(std::string_view text, std::size_t count) {
  std::string out;
  for (std::size_t taken = 0; taken < count && !text.empty();) {
    const std::size_t end = text.find('\n');
    const std::string_view line = trimmed(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.empty()) continue;
    if (taken++ > 0) out += '\n';
    out += line;
  }
  return out;
}

std::string firstWords(const std::string& words) {
  return firstLines(words, MostLines);
}

std::vector<std::string> failuresOfNoUnit(const DiagnosticList& diagnostics,
                                          const std::vector<UnitResult>& results) {
  // Most are told word for word with their unit; only the others need a search.
  std::unordered_set<std::string_view> told;
  for (const UnitResult& result : results) told.insert(result.words);
  std::vector<std::string> failures;
  for (const CMDiagnostic& diagnostic : diagnostics) {
    const std::string& message = diagnostic.getMessage();
    const bool isFailure = diagnostic.getStatus() == CMDiagnostic::Failed && !message.empty();
    if (!isFailure || told.contains(message)) continue;
    const bool isOfUnit =
        std::any_of(results.begin(), results.end(),
                    [&](const UnitResult& result) { return speaksOf(diagnostic, result); });
    if (!isOfUnit) failures.push_back(message);
  }
  return failures;
}

void BatchResults::start() {
  m_results.clear();
  m_wasCancelled = false;
}

void BatchResults::unitEnded(const ProgressStep& step, UnitEnd end, const std::string& words) {
  m_results.push_back({step.unit, end, words});
}

std::set<std::string> BatchResults::failedFiles() const {
  std::set<std::string> files;
  for (const UnitResult& result : m_results) {
    const bool isFine = result.end == UnitEnd::Done || result.end == UnitEnd::Declined;
    if (!isFine) files.insert(result.file);
  }
  return files;
}

std::string BatchResults::remarks() const {
  std::string lines;
  for (const UnitResult& result : m_results) {
    if (result.end != UnitEnd::Done || result.words.empty()) continue;
    if (!lines.empty()) lines += '\n';
    lines += result.words;
  }
  return lines;
}

void BatchResults::addFailures(DiagnosticList& diagnostics) const {
  const Told told(diagnostics);
  DiagnosticList untold;
  for (const UnitResult& result : m_results) {
    const bool isFine = result.end == UnitEnd::Done || result.end == UnitEnd::Declined;
    if (isFine || told.contains(result)) continue;
    untold.emplace_back(CMDiagnostic::Failed, shortPathOf(result.file) + ": " + reasonOf(result),
                        nullptr);
  }
  diagnostics.insert(diagnostics.end(), untold.begin(), untold.end());
}

std::string reasonOf(const UnitResult& result) {
  const std::string words = firstWords(result.words);
  return words.empty() ? meaningOf(result.end) : words;
}

}  // namespace veldra
