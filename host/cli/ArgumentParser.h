#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/cli/Commands.h"

namespace veldra::host::cli {

/// What a command line asks for: a command with its options, or just an end.
struct ParsedArguments {
  const Command* command = nullptr;  ///< Null when there is nothing to run.
  Options options;
  ExitCode end = ExitCode::AllDone;  ///< Without a command: how to end.
};

/// Reads the arguments (without the program's name) by the tables of options and commands. Help,
/// version and complaints are printed here.
///
/// Arguments are bytes and arrive as they are: brackets, empty texts and whatever follows "--" have
/// no meaning of their own.
ParsedArguments parseArguments(const std::vector<std::string>& arguments, Console& console);

}  // namespace veldra::host::cli
