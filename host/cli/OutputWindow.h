#pragma once

#include <ostream>
#include <streambuf>
#include <string>
#include <utility>

namespace veldra::host::cli {

/// The CM output window of a run: what is written goes on to another stream, is kept to be taken,
/// both or nowhere.
class OutputWindow : private std::streambuf, public std::ostream {
 public:
  /// `shown` may be null.
  OutputWindow(std::ostream* shown, bool keeps)
      : std::ostream(static_cast<std::streambuf*>(this)), m_shown(shown), m_keeps(keeps) {}

  /// What was written since the last call, when it is kept.
  std::string take() { return std::exchange(m_kept, {}); }

 private:
  std::streamsize xsputn(const char* text, std::streamsize size) override {
    if (m_keeps) m_kept.append(text, static_cast<std::size_t>(size));
    if (m_shown != nullptr) m_shown->write(text, size);
    return size;
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

  std::ostream* m_shown;
  bool m_keeps;
  std::string m_kept;
};

}  // namespace veldra::host::cli
