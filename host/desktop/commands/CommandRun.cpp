#include "host/desktop/commands/CommandRun.h"

#include <algorithm>
#include <string_view>

#include "cm/core/CMArchive.h"
#include "cm/core/CMAskOnCheckoutGuard.h"
#include "cm/core/CMFacade.h"
#include "host/cli/Connection.h"

namespace veldra::host::desktop {
namespace {

/// What a tool said first; what follows is mostly its own trace.
std::string firstLines(const std::string& words) {
  constexpr int MostLines = 4;
  std::size_t end = 0;
  for (int line = 0; line < MostLines && end != std::string::npos; ++line) {
    end = words.find('\n', end == 0 ? 0 : end + 1);
  }
  std::string first = words.substr(0, end);
  while (!first.empty() && (first.back() == '\n' || first.back() == '\r')) first.pop_back();
  return first;
}

/// The values of one call, in the order in which commands ask for them.
class Arguments {
 public:
  Arguments(CMMode::Mode mode, const CommandChoice& choice, const std::string& directory)
      : m_mode(mode),
        m_label(choice.label),
        m_logFile(choice.comment),
        m_workspace(directory),
        m_log(choice.comment),
        m_list{&m_mode, &m_label, &m_logFile, &m_workspace, &m_log} {}
  ArgumentList& list() { return m_list; }

 private:
  CMMode m_mode;
  CMLabel m_label;
  CMLogFile m_logFile;
  CMWorkspace m_workspace;
  // Last, because a project may let the comment answer to every keyword.
  CMLog m_log;
  ArgumentList m_list;
};

CommandReport reportOf(const DiagnosticList& diagnostics, const ResultCollector& collector) {
  CommandReport report;
  report.wasCancelled = collector.wasCancelled();
  for (const UnitResult& result : collector.results()) {
    if (result.end == UnitEnd::Done) {
      ++report.done;
    } else {
      report.failures.push_back(result);
    }
  }
  const auto isTold = [&report](const std::string& message) {
    return std::ranges::any_of(report.failures, [&message](const UnitResult& failure) {
      return message.find(failure.file) != std::string::npos || message == failure.words;
    });
  };
  for (const CMDiagnostic& diagnostic : diagnostics) {
    const bool isFailure = diagnostic.getStatus() == CMDiagnostic::Failed;
    if (isFailure && !diagnostic.getMessage().empty() && !isTold(diagnostic.getMessage())) {
      report.messages.push_back(diagnostic.getMessage());
    }
  }
  return report;
}

}  // namespace

void ResultCollector::unitEnded(const ProgressStep& step, UnitEnd end, const std::string& words) {
  m_results.push_back({step.unit, end, words});
}

CommandReport runCommand(const CommandRow& row, UnitList units, const CommandChoice& choice,
                         Project& project, ResultCollector& collector) {
  collector.start();
  DiagnosticList diagnostics;
  Arguments arguments(row.mode, choice, project.getProjectDirectory());
  const CMAskOnCheckoutGuard guard;
  row.run(units, arguments.list(), diagnostics);
  return reportOf(diagnostics, collector);
}

CommandReport runOnArchive(Project& project, ResultCollector& collector,
                           const std::function<void(ArgumentList&, DiagnosticList&)>& call) {
  collector.start();
  DiagnosticList diagnostics;
  Arguments arguments(CMMode::ReadOnly, {}, project.getProjectDirectory());
  call(arguments.list(), diagnostics);
  return reportOf(diagnostics, collector);
}

CommandReport connectToArchive(Project& project, ResultCollector& collector) {
  if (const auto failure = cli::createArchive(CMArchive::getMainArchive())) {
    return {.messages = {*failure}};
  }
  return runOnArchive(project, collector, [](ArgumentList& arguments, DiagnosticList& diagnostics) {
    UnitList units;
    CMFacade::ConnectToArchive(units, arguments, diagnostics);
  });
}

std::string reasonOf(const UnitResult& result) {
  if (const std::string words = firstLines(result.words); !words.empty()) return words;
  switch (result.end) {
    case UnitEnd::Done:
      return {};
    case UnitEnd::Refused:
      return "It cannot take part in this operation.";
    case UnitEnd::Declined:
      return "The file is writable and stays as it is.";
    case UnitEnd::NotExpanded:
      return "The tool's command cannot be made. Look at its template in the CM settings.";
    case UnitEnd::NotRun:
      return "The tool's command cannot be run.";
    case UnitEnd::ToolFailed:
      return "The tool failed without a word, or ran out of time.";
    case UnitEnd::NotReloaded:
      return "The tool did its work, but the file cannot be loaded.";
  }
  return {};
}

}  // namespace veldra::host::desktop
