#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace veldra {

/// Comparison and search without regard to the case of ASCII letters, whatever the locale.
bool equalsNoCase(std::string_view a, std::string_view b);
bool startsWithNoCase(std::string_view text, std::string_view prefix);
std::size_t findNoCase(std::string_view text, std::string_view what, std::size_t from = 0);
char lowerCase(char c);
std::string lowerCase(std::string_view text);

/// The text without the blanks (spaces, tabs, line ends) at its two ends.
std::string_view trimmed(std::string_view text);

/// Replaces every occurrence of `what`; the replacement itself is not searched again.
std::string replaceAll(std::string_view text, std::string_view what, std::string_view by);
std::string replaceAllNoCase(std::string_view text, std::string_view what, std::string_view by);

/// In double quotes when the text contains one of `reasons`; bare otherwise.
std::string quotedIfContains(const std::string& text, std::string_view reasons);

/// The position of the last separator of either kind; npos when there is none.
std::size_t lastSeparator(std::string_view path);
/// What stands before the last separator; the whole path when there is none.
std::string_view cutAtLastSeparator(std::string_view path);
/// What stands after the last separator; the whole path when there is none.
std::string_view baseName(std::string_view path);

/// What stands after the last backslash, or without one after the last slash. Archive listings are
/// read this way whatever the system.
std::string_view afterLastBackslash(std::string_view path);

/// A directory and a name with the host's separator between them; the name alone without a
/// directory.
std::string joinPath(std::string_view directory, std::string_view name);
/// Without the host's separators at its two ends.
std::string_view withoutOuterSeparators(std::string_view path);

}  // namespace veldra
