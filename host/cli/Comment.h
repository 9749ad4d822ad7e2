#pragma once

#include <istream>
#include <string>

#include "host/cli/Options.h"
#include "host/cli/Session.h"

namespace veldra::host::cli {

/// The comment that the options name, byte for byte; empty without one. Ends the command when there
/// are two or the file cannot be read.
std::string readComment(const Options& options, std::istream& standardInput);

/// Without a comment, takes that of the last command that failed when the user wants it: by
/// --last-comment, or by the answer to a question where one can be asked.
void offerLastComment(Session& session, std::string& comment);

/// Keeps the comment for the next try, unless `isDone`: the command did all of its work, and the
/// comment is in the archive. Then what was kept is forgotten.
void keepComment(Session& session, const std::string& comment, bool isDone);

}  // namespace veldra::host::cli
