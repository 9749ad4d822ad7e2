#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace veldra {

/// A search pattern held in a CM property, looked up once for any number of texts.
class PropertyPattern {
 public:
  explicit PropertyPattern(const std::string& propertyName);

  /// What a text has of the field that the pattern describes.
  enum class Field {
    Absent,        ///< The pattern does not match, or there is none.
    WithoutValue,  ///< It matches, but its first group took no part.
    WithValue
  };
  /// On `WithValue`, `out` is the text of the first group; otherwise untouched.
  Field read(std::string_view text, std::string& out) const;

  /// As `CMProperty::ExtractByProperty`.
  int extract(std::string_view text, std::string& out, int& found, std::string& extra) const;

 private:
  std::string m_name;
  std::optional<std::string> m_pattern;
};

}  // namespace veldra
