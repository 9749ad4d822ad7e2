#pragma once

#include <string>
#include <vector>

#include "cm/core/CMDiagnostic.h"
#include "host/cli/BatchProgress.h"
#include "host/cli/UnitRecord.h"

namespace veldra::host::cli {

/// Why the work on a unit came to nothing: the tool's first words, or what the end means, the
/// commands that were run, and for a known failure what to do about it. `templateProperty` names
/// the property to look at when the command could not be made. Empty for work that is done.
std::string failureOf(const UnitTrace& trace, const char* templateProperty);

/// A line that says what to do about a failure with these words, behind a line end; empty when we
/// do not know.
std::string adviceLine(const std::string& words);

/// What became of a unit whose way through the operation is known; see `failureOf`.
void applyTrace(const UnitTrace& trace, const char* templateProperty,
                const DiagnosticList& diagnostics, UnitRecord& record);

/// The same for a unit that the operation never reached.
void applyAbsence(bool wasCancelled, const std::string& reason, UnitRecord& record);

/// What the operation said about no unit in particular, as lines.
std::string generalMessage(const DiagnosticList& diagnostics, const std::vector<UnitTrace>& traces);

/// Turns a record that is done into a plan with the commands of its trace.
void makePlan(const UnitTrace& trace, const char* lock, UnitRecord& record);

/// A command line as its arguments; the whole line as one when it cannot be split.
std::vector<std::string> plannedArguments(const std::string& command);

}  // namespace veldra::host::cli
