#pragma once

#include <array>
#include <cstddef>

namespace veldra::host {

/// What a number of the system's means: that of an error, a signal or an exception.
template <class Number>
struct NumberedText {
  Number number;
  const char* text;
};

/// The text of a number; null when the table does not have it.
template <class Number, std::size_t Size>
[[nodiscard]] constexpr const char* textOf(const std::array<NumberedText<Number>, Size>& table,
                                           Number number) {
  for (const NumberedText<Number>& row : table) {
    if (row.number == number) return row.text;
  }
  return nullptr;
}

}  // namespace veldra::host
