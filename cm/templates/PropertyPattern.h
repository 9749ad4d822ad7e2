#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cm/host/SPString.h"

namespace veldra {

/// A search pattern held in a CM property, looked up once for any number of texts.
class PropertyPattern {
 public:
  explicit PropertyPattern(const std::string& propertyName);

  /// Whether there is such a property, be it empty.
  bool exists() const { return m_pattern.has_value(); }

  /// What a text has of the field that the pattern describes.
  enum class Field {
    Absent,        ///< The pattern does not match, or there is none.
    WithoutValue,  ///< It matches, but its first group took no part.
    WithValue
  };

  /// What `CMProperty::ExtractByProperty` answers, and more exactly what the text has.
  struct Answer {
    int result = 0;
    int found = 0;
    Field field = Field::Absent;
  };
  Answer extract(std::string_view text, std::string& out) const;

 private:
  std::string m_name;
  std::optional<SPPattern> m_pattern;
  bool m_echoes;  ///< Debug lines are wanted; asked once, as texts come by the hundred thousand.
};

}  // namespace veldra
