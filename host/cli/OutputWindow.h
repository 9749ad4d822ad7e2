#pragma once

#include <cstddef>
#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>
#include <utility>

#include "host/platform/Secrets.h"

namespace veldra::host::cli {

/// The CM output window of a run: what is written goes on to another stream, is kept to be taken,
/// as far as there is room, or both. Passwords are masked in what arrives in one piece.
class OutputWindow : private std::streambuf, public std::ostream {
 public:
  /// `shown` may be null; `room` is how many bytes are kept between two calls of `take`.
  OutputWindow(std::ostream* shown, std::size_t room)
      : std::ostream(static_cast<std::streambuf*>(this)), m_shown(shown), m_room(room) {}

  /// From here on it goes there; null for nowhere.
  void show(std::ostream* shown) { m_shown = shown; }
  /// What was written since the last call.
  std::string take() { return std::exchange(m_kept, {}); }

 private:
  std::streamsize xsputn(const char* text, std::streamsize size) override {
    std::string_view bytes(text, static_cast<std::size_t>(size));
    // A flood that is neither shown nor kept need not be looked through, but a password may lie
    // across the border.
    const std::size_t unfilled = m_room - m_kept.size();
    if (m_shown == nullptr && unfilled < bytes.size()) {
      bytes = bytes.substr(0, unfilled + LongestSecret);
    }
    if (holdsSecret(bytes)) {
      put(withoutSecrets(bytes));
    } else {
      put(bytes);
    }
    return size;
  }
  void put(std::string_view bytes) {
    m_kept.append(bytes.substr(0, m_room - m_kept.size()));
    if (m_shown != nullptr) *m_shown << bytes;
  }
  std::streambuf::int_type overflow(std::streambuf::int_type c) override {
    if (std::streambuf::traits_type::eq_int_type(c, std::streambuf::traits_type::eof()))
      return std::streambuf::traits_type::not_eof(c);
    const char byte = std::streambuf::traits_type::to_char_type(c);
    xsputn(&byte, 1);
    return c;
  }
  int sync() override {
    if (m_shown != nullptr) m_shown->flush();
    return 0;
  }

  static constexpr std::size_t LongestSecret = 4096;

  std::ostream* m_shown;
  std::size_t m_room;
  std::string m_kept;
};

}  // namespace veldra::host::cli
