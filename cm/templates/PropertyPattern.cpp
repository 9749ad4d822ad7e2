#include "cm/templates/PropertyPattern.h"

#include <vector>

#include "cm/core/DebugEcho.h"
#include "cm/host/IProperty.h"
#include "cm/host/SPString.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// One match of a pattern against a text.
PropertyPattern::Field readField(const std::string& pattern, std::string_view text,
                                 std::string& out) {
  using Field = PropertyPattern::Field;
  thread_local std::vector<std::string_view> captures;
  if (!SPString(text).m(pattern, "i", &captures)) return Field::Absent;
  // A pattern without a group says where, but not what; that is no value.
  if (captures.size() < 2 || captures[1].data() == nullptr) return Field::WithoutValue;
  out = captures[1];
  return Field::WithValue;
}

}  // namespace

PropertyPattern::PropertyPattern(const std::string& propertyName) : m_name(propertyName) {
  const IProperty* const property = CMProperty::getToolProperty(propertyName);
  if (property != nullptr) m_pattern = property->getValue();
}

PropertyPattern::Field PropertyPattern::read(std::string_view text, std::string& out) const {
  return m_pattern && !m_pattern->empty() ? readField(*m_pattern, text, out) : Field::Absent;
}

int PropertyPattern::extract(std::string_view text, std::string& out, int& found,
                             std::string& extra) const {
  if (!m_pattern) return 0;
  if (m_pattern->empty()) {
    found = 0;
    debugEcho({"The property '", m_name, "is empty'\n"});
    out.clear();
    return 1;
  }
  found = 1;
  return CMProperty::ExtractBySearchPattern(*m_pattern, text, out, extra);
}

int CMProperty::ExtractByProperty(const std::string& propertyName, std::string_view text,
                                  std::string& out, int& found, std::string& extra) {
  return PropertyPattern(propertyName).extract(text, out, found, extra);
}

int CMProperty::ExtractBySearchPattern(const std::string& pattern, std::string_view text,
                                       std::string& out, std::string& /*extra*/) {
  if (readField(pattern, text, out) == PropertyPattern::Field::WithValue) return 1;
  debugEcho({"Failed to match '", pattern, "' in '", text, "'\n"});
  return 0;
}

}  // namespace veldra
