#pragma once

#include <string>

#include "cm/core/CallArguments.h"

namespace veldra::host::cli {

/// In a dry run no file for the comment is made; its path stands as this in commands.
inline constexpr char PlannedCommentFile[] = "\x01comment\x01";

/// The same for the list of units that a batch command gets.
inline constexpr char PlannedUnitList[] = "\x01units\x01";

/// The arguments of a call; in a dry run with these in place of files.
CallArguments callArguments(CallValues values, bool isPlan);

}  // namespace veldra::host::cli
