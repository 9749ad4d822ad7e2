#include "host/cli/Comment.h"

#include <cstddef>
#include <iterator>
#include <optional>

#include "cm/host/IUserMessages.h"
#include "cm/ui/logic/BatchResults.h"
#include "host/cli/ExitCode.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/kept/ProjectRecords.h"
#include "host/platform/AtomicFile.h"

namespace veldra::host::cli {

namespace {
constexpr std::size_t CommentLimit = std::size_t{64} << 20;
}

std::string readComment(const Options& options, std::istream& standardInput) {
  if (options.message && options.messageFile) {
    throw CommandError(ExitCode::WrongUsage,
                       "There are two comments. Give either --message or --file.");
  }
  if (options.message) return *options.message;
  if (!options.messageFile) return {};
  if (*options.messageFile == "-") {
    return {std::istreambuf_iterator<char>(standardInput), std::istreambuf_iterator<char>()};
  }
  const Result<std::string> text = readFile(*options.messageFile, CommentLimit);
  if (!text)
    throw CommandError(ExitCode::WrongUsage, "The comment cannot be read. " + text.error());
  return *text;
}

void offerLastComment(Session& session, std::string& comment) {
  const Options& options = session.options();
  const bool hasOther = options.message || options.messageFile;
  if (hasOther && options.lastComment) {
    throw CommandError(ExitCode::WrongUsage,
                       "There are two comments. Give either --last-comment or another one.");
  }
  if (hasOther || options.dryRun) return;
  const std::string last = lastComment(session.project().getProjectDirectory());
  if (last.empty()) {
    if (!options.lastComment) return;
    throw CommandError(ExitCode::WrongUsage, "There is no comment of a command that failed.");
  }
  const std::string start = textForPeople(firstLines(last, 1));
  if (!options.lastComment && !session.console().asks) {
    session.console().err << "The comment of the command that failed is kept: " << start
                          << "\n--last-comment takes it.\n";
    return;
  }
  const std::string question = "Take the comment of the command that failed: " + start;
  const bool wants = options.lastComment ||
                     session.door().ask(question, MessageBox::YesNo) == MessageBox::AnswerYes;
  if (wants) comment = last;
}

void keepComment(Session& session, const std::string& comment, bool isDone) {
  if (comment.empty() || session.options().dryRun) return;
  const std::string folder = session.project().getProjectDirectory();
  if (const auto failure = rememberComment(folder, isDone ? std::string() : comment)) {
    session.console().err << "The comment cannot be kept. " << linesForPeople(*failure) << '\n';
  } else if (!isDone) {
    session.console().err << "The comment is kept; --last-comment takes it for the next try.\n";
  }
}

}  // namespace veldra::host::cli
