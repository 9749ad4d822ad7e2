// The parts of a conditional section are pieces of the text, and the section lies where it says.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "cm/templates/CMProperty.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

void checkSection(std::string_view text, int start, int end, const std::string& condition,
                  const std::string& thenPart, const std::string& elsePart) {
  const auto first = static_cast<std::size_t>(start);
  const auto last = static_cast<std::size_t>(end);
  require(start >= 0 && first < last && last < text.size());
  require(text[first] == '(' && text[last] == ')');
  require(text.find('(') == first && text.rfind(')') == last);
  for (const std::string& part : {condition, thenPart, elsePart}) {
    require(text.substr(first, last - first).find(part) != std::string_view::npos);
    require(part.empty() || (part.front() != ' ' && part.back() != ' '));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  int start = 0;
  int end = 0;
  std::string condition;
  std::string thenPart;
  std::string elsePart;
  if (veldra::CMProperty::ExtractCondition(text, start, end, condition, thenPart, elsePart) != 0) {
    checkSection(text, start, end, condition, thenPart, elsePart);
  } else {
    require(start == -1 && end == -1 && condition.empty() && thenPart.empty() && elsePart.empty());
  }
  return 0;
}
