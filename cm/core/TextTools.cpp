#include "cm/core/TextTools.h"

#include <algorithm>

#include "cm/host/IEnvironment.h"

namespace veldra {

namespace {

bool sameNoCase(char a, char b) {
  return lowerCase(a) == lowerCase(b);
}

template <class Find>
std::string replaceFound(std::string_view text, std::size_t length, std::string_view by,
                         Find find) {
  std::string result;
  std::size_t from = 0;
  for (std::size_t at = find(from); length > 0 && at != std::string_view::npos; at = find(from)) {
    result.append(text.substr(from, at - from)).append(by);
    from = at + length;
  }
  result.append(text.substr(from));
  return result;
}

}  // namespace

char lowerCase(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string lowerCase(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), [](char c) { return lowerCase(c); });
  return result;
}

bool equalsNoCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), sameNoCase);
}

bool startsWithNoCase(std::string_view text, std::string_view prefix) {
  return text.starts_with(prefix) || equalsNoCase(text.substr(0, prefix.size()), prefix);
}

std::size_t findNoCase(std::string_view text, std::string_view what, std::size_t from) {
  if (from > text.size()) return std::string_view::npos;
  const auto start = text.begin() + static_cast<std::ptrdiff_t>(from);
  const auto at = std::search(start, text.end(), what.begin(), what.end(), sameNoCase);
  return at == text.end() && !what.empty() ? std::string_view::npos
                                           : static_cast<std::size_t>(at - text.begin());
}

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n\f\v";
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string replaceAll(std::string_view text, std::string_view what, std::string_view by) {
  return replaceFound(text, what.size(), by,
                      [&](std::size_t from) { return text.find(what, from); });
}

std::string replaceAllNoCase(std::string_view text, std::string_view what, std::string_view by) {
  return replaceFound(text, what.size(), by,
                      [&](std::size_t from) { return findNoCase(text, what, from); });
}

std::string quotedIfContains(const std::string& text, std::string_view reasons) {
  return text.find_first_of(reasons) == std::string::npos ? text : '"' + text + '"';
}

std::size_t lastSeparator(std::string_view path) {
  // Asked for every line of a long listing, for which `find_last_of` is slow.
  std::size_t at = path.size();
  while (at > 0 && path[at - 1] != '/' && path[at - 1] != '\\') --at;
  return at - 1;  // The number before 0 is npos.
}

std::string_view cutAtLastSeparator(std::string_view path) {
  return path.substr(0, lastSeparator(path));
}

std::string_view baseName(std::string_view path) {
  const std::size_t at = lastSeparator(path);
  return at == std::string_view::npos ? path : path.substr(at + 1);
}

std::string_view afterLastBackslash(std::string_view path) {
  const std::size_t backslash = path.rfind('\\');
  const std::size_t at = backslash != std::string_view::npos ? backslash : path.rfind('/');
  return at == std::string_view::npos ? path : path.substr(at + 1);
}

std::string joinPath(std::string_view directory, std::string_view name) {
  if (directory.empty()) return std::string(name);
  std::string path;
  path.reserve(directory.size() + 1 + name.size());
  path.append(directory).append(1, omPathSeparator()).append(name);
  return path;
}

std::string_view withoutOuterSeparators(std::string_view path) {
  const char separator = omPathSeparator();
  while (!path.empty() && path.front() == separator) path.remove_prefix(1);
  while (!path.empty() && path.back() == separator) path.remove_suffix(1);
  return path;
}

}  // namespace veldra
