#include "host/tandel/Tandel.h"

#include <filesystem>
#include <sstream>
#include <system_error>

#include "host/cli/printing/BytesAsText.h"
#include "host/compare/ComparisonReport.h"
#include "host/platform/CommandLine.h"
#include "host/resources/MessageNumbers.h"

namespace veldra::host::tandel {

namespace fs = std::filesystem;

namespace {

using compare::FilePair;

/// The host's setting that names the user's own tool; its command gets the two names at its end.
constexpr char OwnToolSetting[] = "CompareTool";

class Program {
 public:
  Program(std::ostream& out, std::ostream& errors) : m_out(out), m_errors(errors), m_host({}) {}

  TandelEnd run(const std::vector<std::string>& arguments, const ShowWindow& show) {
    const Result<TandelOptions> options = parseOptions(arguments);
    if (!options) return fail(options.error() + '\n' + text(MessageNumber::TandelUsage));
    if (options->helps) {
      m_out << text(MessageNumber::TandelUsage) << '\n';
      return TandelEnd::Same;
    }
    Result<std::vector<FilePair>> files = filesOf(*options);
    if (!files) return fail(files.error());
    CompareSession session(std::move(*files));
    if (options->prints || !show) return print(session);
    if (!startsOwnTool(*options)) show(m_host, session, *options);
    return TandelEnd::Same;
  }

 private:
  std::string text(int number, const std::vector<std::string>& values = {}) const {
    return m_host.catalogue().format(number, values);
  }

  TandelEnd fail(const std::string& sentence) {
    m_errors << "Tandel: " << cli::linesForPeople(sentence) << '\n';
    return TandelEnd::Wrong;
  }

  /// Two files are a list of one pair.
  Result<std::vector<FilePair>> filesOf(const TandelOptions& options) const {
    std::error_code unknown;
    const bool isFirstFolder = fs::is_directory(options.first, unknown);
    const bool isSecondFolder = fs::is_directory(options.second, unknown);
    if (isFirstFolder && isSecondFolder) {
      return compare::compareFolders(options.first, options.second, options.isRecursive);
    }
    if (isFirstFolder || isSecondFolder) {
      return Result<std::vector<FilePair>>::failure(
          text(MessageNumber::FileAndFolder, {options.first, options.second}));
    }
    const auto comparison = compare::FileComparison::read(options.first, options.second);
    if (!comparison) return Result<std::vector<FilePair>>::failure(comparison.error());
    return std::vector<FilePair>{
        {.name = fs::path(options.first).filename().string(),
         .first = options.first,
         .second = options.second,
         .state = comparison->isSame() ? FilePair::State::Same : FilePair::State::Different}};
  }

  TandelEnd print(CompareSession& session) {
    const compare::Texts texts = [this](int number, const std::vector<std::string>& values) {
      return text(number, values);
    };
    bool isAnyUnreadable = false;
    for (std::size_t file = 0; file < session.files().size(); ++file) {
      const FilePair& pair = session.files()[file];
      if (pair.state == FilePair::State::Same) continue;
      std::ostringstream lines;
      if (session.files().size() > 1) {
        lines << wordFor(pair.state, texts) << ": " << pair.name << '\n';
      }
      std::string problem = pair.error;
      const bool isBoth = pair.state == FilePair::State::Different;
      const compare::FileComparison* const comparison =
          isBoth ? session.comparison(file, problem) : nullptr;
      if (comparison != nullptr) printComparison(*comparison, texts, lines);
      m_out << cli::linesForPeople(lines.str());
      if (problem.empty()) continue;
      isAnyUnreadable = true;
      fail(problem);
    }
    if (isAnyUnreadable) return TandelEnd::Wrong;
    if (!session.isSame()) return TandelEnd::Different;
    m_out << text(MessageNumber::CompareSame) << '\n';
    return TandelEnd::Same;
  }

  /// A tool that the user prefers, from his own settings; no project has a say in that.
  bool startsOwnTool(const TandelOptions& options) {
    const std::string command =
        m_host.properties().setting("General", OwnToolSetting).value_or(std::string());
    if (command.empty()) return false;
    const std::string line = command + ' ' + joinCommandLine({options.first, options.second});
    if (m_host.processes()->startDetached(line)) return true;
    m_errors << "Tandel: " << text(MessageNumber::OwnToolNotStarted, {command}) << '\n';
    return false;
  }

  std::ostream& m_out;
  std::ostream& m_errors;
  ReferenceHost m_host;
};

}  // namespace

TandelEnd runTandel(const std::vector<std::string>& arguments, std::ostream& out,
                    std::ostream& errors, const ShowWindow& show) {
  return Program(out, errors).run(arguments, show);
}

}  // namespace veldra::host::tandel
