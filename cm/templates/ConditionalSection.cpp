// Conditional sections of templates: "(condition ? then : else)".

#include "cm/core/DebugEcho.h"
#include "cm/core/TextTools.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

int CMProperty::ExtractCondition(std::string_view text, int& start, int& end,
                                 std::string& condition, std::string& thenPart,
                                 std::string& elsePart) {
  constexpr std::size_t none = std::string_view::npos;
  start = end = -1;
  condition.clear();
  thenPart.clear();
  elsePart.clear();

  const std::size_t open = text.find('(');
  if (open == none) return 0;
  const std::size_t question = text.find('?', open);
  if (question == none) {
    debugEcho({"could not find the then part\n"});
    return 0;
  }
  // A section ends at the last parenthesis of the text, not at its own: tool packs rely on it.
  const std::size_t colon = text.find(':', question);
  const std::size_t close = text.rfind(')');
  const std::size_t lastMark = colon == none ? question : colon;
  if (close == none || close < lastMark) {
    debugEcho({"could not find the condition end after the ", colon == none ? "then" : "else",
               " part\n"});
    return 0;
  }

  const auto between = [&](std::size_t from, std::size_t to) {
    return std::string(trimmed(text.substr(from + 1, to - from - 1)));
  };
  condition = between(open, question);
  thenPart = between(question, colon == none ? close : colon);
  if (colon != none) elsePart = between(colon, close);
  start = static_cast<int>(open);
  end = static_cast<int>(close);
  debugEcho({"if: '", condition, "' Then: '", thenPart, "' Else: '", elsePart, "'\n"});
  return 1;
}

}  // namespace veldra
