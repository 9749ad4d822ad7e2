#pragma once

#include <string>
#include <vector>

#include "host/cli/Commands.h"

namespace veldra::host::cli {

/// The manual page, in the language of man(7).
std::string manPage();

/// The script that completes command lines in bash.
std::string bashCompletion();

/// The same for zsh.
std::string zshCompletion();

// --- what the three of them share ---

// Two options that do not stand in the table.
inline constexpr char HelpText[] = "Show how the program or a command is called";
inline constexpr char VersionText[] = "Show the version";

/// The rows of a command's own options, in the order of the table.
std::vector<const OptionRow*> rowsOf(unsigned sets);

/// The names of an option: "-m" and "--message".
std::vector<std::string> namesOf(const OptionRow& row);

/// The words that a value may be, where it is one of a few ("get|set|list"); else nothing.
std::vector<std::string> wordsOf(const OptionRow& row);

/// Whether the value names units, which "veldra-cm manual units" lists.
bool namesUnits(const OptionRow& row);

}  // namespace veldra::host::cli
