#include "cm/ui/logic/BatchResults.h"

#include <algorithm>

#include "cm/core/TextTools.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/ui/logic/UnitTexts.h"

namespace veldra {

namespace {

// A tool's first lines say what is wrong; what follows is mostly its own trace.
constexpr int MostLines = 4;

std::string firstLines(const std::string& words) {
  std::size_t end = 0;
  for (int line = 0; line < MostLines && end != std::string::npos; ++line) {
    end = words.find('\n', end == 0 ? 0 : end + 1);
  }
  return std::string(trimmed(std::string_view(words).substr(0, end)));
}

int meaningOf(UnitEnd end) {
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

bool isTold(const UnitResult& result, const DiagnosticList& diagnostics) {
  return std::any_of(diagnostics.begin(), diagnostics.end(), [&](const CMDiagnostic& diagnostic) {
    const std::string& message = diagnostic.getMessage();
    const bool isSameText =
        !result.words.empty() && message.find(result.words) != std::string::npos;
    return isSameText || message.find(result.file) != std::string::npos;
  });
}

}  // namespace

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
  DiagnosticList untold;
  for (const UnitResult& result : m_results) {
    const bool isFine = result.end == UnitEnd::Done || result.end == UnitEnd::Declined;
    if (isFine || isTold(result, diagnostics)) continue;
    untold.emplace_back(CMDiagnostic::Failed, shortPathOf(result.file) + ": " + reasonOf(result),
                        nullptr);
  }
  diagnostics.insert(diagnostics.end(), untold.begin(), untold.end());
}

std::string reasonOf(const UnitResult& result) {
  std::string words = firstLines(result.words);
  if (!words.empty() || result.end == UnitEnd::Done) return words;
  return loadMessage(meaningOf(result.end));
}

}  // namespace veldra
