#pragma once

#include <string>
#include <string_view>

namespace veldra::host::cli {

/// The bytes as UTF-8 for a JSON document: a byte that is no UTF-8 stands as \xNN (two lower-case
/// hexadecimal digits), and a backslash before an "x" as \x5c. Whoever replaces every \xNN by its
/// byte has the original back.
std::string textForJson(std::string_view bytes);

/// The bytes for a terminal: control characters stand as \xNN, so that a file name can neither
/// break a line nor drive the terminal. Everything else stays.
std::string textForPeople(std::string_view bytes);

/// The same for a text of several lines: line ends and tabs stay.
std::string linesForPeople(std::string_view bytes);

}  // namespace veldra::host::cli
