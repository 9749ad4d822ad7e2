#include "host/packs/TemplateCheck.h"

#include <algorithm>
#include <cctype>

namespace veldra::host {

namespace {

bool isNameStart(char c) {
  return std::isalpha(static_cast<unsigned char>(c)) != 0 || c == '_';
}

bool isNamePart(char c) {
  return isNameStart(c) || std::isdigit(static_cast<unsigned char>(c)) != 0;
}

}  // namespace

std::vector<std::string> keywordsIn(std::string_view text) {
  std::vector<std::string> names;
  for (std::size_t at = text.find('$'); at != std::string_view::npos; at = text.find('$', at)) {
    ++at;
    if (at < text.size() && text[at] == '{') ++at;
    if (at >= text.size() || !isNameStart(text[at])) continue;
    const std::string_view rest = text.substr(at);
    const std::string name(rest.begin(), std::ranges::find_if_not(rest, isNamePart));
    if (std::ranges::find(names, name) == names.end()) names.push_back(name);
  }
  return names;
}

std::optional<std::string> formMistake(std::string_view text) {
  if (std::ranges::count(text, '"') % 2 != 0) return "A double quote is never closed.";
  const std::size_t open = text.find('(');
  const std::size_t question = open == std::string_view::npos ? open : text.find('?', open);
  if (question == std::string_view::npos) return std::nullopt;
  const std::size_t last = text.rfind(')');
  if (last == std::string_view::npos || last < question) {
    return "The conditional section ( ? ) is never closed.";
  }
  const std::string_view section = text.substr(open, last + 1 - open);
  if (std::ranges::count(section, '?') > 1) {
    return "There are two conditional sections, but the first one takes everything up to the last "
           "parenthesis. Put one of them into a property of its own.";
  }
  if (std::ranges::count(section, '(') != std::ranges::count(section, ')')) {
    return "The parentheses of the conditional section do not match.";
  }
  return std::nullopt;
}

}  // namespace veldra::host
