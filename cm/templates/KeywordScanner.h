#pragma once

#include <string>
#include <string_view>

namespace veldra {

/// Walks the keyword references of a text from left to right: a dollar sign, an optional opening
/// brace, a name, an optional closing brace. A replacement touches the reference that was found and
/// nothing else, and is itself searched next. The whole walk takes time in proportion to the
/// characters it sees.
class KeywordScanner {
 public:
  explicit KeywordScanner(std::string_view text) : m_rest(text.rbegin(), text.rend()) {}

  /// Finds the next reference; false when there is none.
  bool next();

  /// The reference that was found, whole and its bare name.
  const std::string& reference() const { return m_reference; }
  const std::string& name() const { return m_name; }

  /// Puts `value` in the place of the reference that was found.
  void replace(std::string_view value);

  /// The text as it stands now.
  std::string text() const;

 private:
  bool matchAt(std::size_t dollar);

  std::string m_done;  // searched, without any reference
  std::string m_rest;  // still to be searched, last character first: the next one is at its back
  std::string m_reference;
  std::string m_name;
};

}  // namespace veldra
