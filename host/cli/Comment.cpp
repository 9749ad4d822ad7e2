#include "host/cli/Comment.h"

#include <cstddef>
#include <iterator>

#include "host/cli/ExitCode.h"
#include "host/cli/printing/BytesAsText.h"
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

void refuseForbidden(std::string_view comment, std::string_view forbiddenCharacters) {
  std::string found;
  for (const char c : forbiddenCharacters) {
    if (comment.find(c) == std::string_view::npos) continue;
    if (!found.empty()) found += ' ';
    found += textForPeople(std::string_view(&c, 1));
  }
  if (found.empty()) return;
  throw CommandError(
      ExitCode::WrongUsage,
      "The tool cannot take these characters of the comment: " + found + ". Leave them out.");
}

}  // namespace veldra::host::cli
