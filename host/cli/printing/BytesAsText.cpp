#include "host/cli/printing/BytesAsText.h"

#include <cstddef>

namespace veldra::host::cli {

namespace {

unsigned at(std::string_view text, std::size_t position) {
  return position < text.size() ? static_cast<unsigned char>(text[position]) : 0;
}

bool continues(unsigned byte) {
  return (byte & 0xC0U) == 0x80U;
}

/// The length of the UTF-8 character at the beginning of a text that is not empty; 0 for none.
std::size_t characterLength(std::string_view text) {
  const unsigned first = at(text, 0);
  const unsigned second = at(text, 1);
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first <= 0xDF) return continues(second) ? 2 : 0;
  if (first >= 0xE0 && first <= 0xEF) {
    const bool tooLong = first == 0xE0 && second < 0xA0;
    const bool surrogate = first == 0xED && second > 0x9F;
    return continues(second) && continues(at(text, 2)) && !tooLong && !surrogate ? 3 : 0;
  }
  if (first >= 0xF0 && first <= 0xF4) {
    const bool outside = (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F);
    return continues(second) && continues(at(text, 2)) && continues(at(text, 3)) && !outside ? 4
                                                                                             : 0;
  }
  return 0;
}

void appendEscaped(std::string& out, unsigned byte) {
  constexpr char Digits[] = "0123456789abcdef";
  out += "\\x";
  out += Digits[byte >> 4U];
  out += Digits[byte & 0xFU];
}

template <class IsKept>
std::string withoutControls(std::string_view bytes, IsKept isKept) {
  std::string out;
  out.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte < 0x20 || byte == 0x7F) && !isKept(c)) {
      appendEscaped(out, byte);
    } else {
      out += c;
    }
  }
  return out;
}

}  // namespace

std::string textForJson(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size());
  while (!bytes.empty()) {
    const std::size_t length = characterLength(bytes);
    if (length == 0 || bytes.starts_with("\\x")) {
      appendEscaped(out, at(bytes, 0));
      bytes.remove_prefix(1);
    } else {
      out += bytes.substr(0, length);
      bytes.remove_prefix(length);
    }
  }
  return out;
}

std::string textForPeople(std::string_view bytes) {
  return withoutControls(bytes, [](char) { return false; });
}

std::string linesForPeople(std::string_view bytes) {
  return withoutControls(bytes, [](char c) { return c == '\n' || c == '\t'; });
}

}  // namespace veldra::host::cli
