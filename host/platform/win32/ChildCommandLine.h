#pragma once

#include <optional>
#include <string>
#include <vector>

namespace veldra::host {

/// The command line from which a program's own start-up code makes these very arguments, by the
/// rules that the compilers' libraries share: as `splitCommandLine` has them, except that the first
/// argument, the program, knows no backslashes and so must hold no double quote. Whatever is not
/// plain is quoted, because some libraries take an unquoted star or question mark for file names.
/// Nothing when an argument is not in UTF-8.
[[nodiscard]] std::optional<std::wstring> childCommandLine(
    const std::vector<std::string>& arguments);

}  // namespace veldra::host
