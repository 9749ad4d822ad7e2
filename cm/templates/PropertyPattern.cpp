#include "cm/templates/PropertyPattern.h"

#include "cm/core/DebugEcho.h"
#include "cm/host/IProperty.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// One match of a pattern against a text.
PropertyPattern::Field readField(const SPPattern& pattern, std::string_view text,
                                 std::string& out) {
  using Field = PropertyPattern::Field;
  const SPPattern::Captures* const captures = pattern.find(text);
  if (captures == nullptr) return Field::Absent;
  // A pattern without a group says where, but not what; that is no value.
  if (captures->size() < 2 || (*captures)[1].data() == nullptr) return Field::WithoutValue;
  out = (*captures)[1];
  return Field::WithValue;
}

void echoFailure(const std::string& pattern, std::string_view text) {
  writeDebugEcho({"Failed to match '", pattern, "' in '", text, "'\n"});
}

}  // namespace

PropertyPattern::PropertyPattern(const std::string& propertyName)
    : m_name(propertyName), m_echoes(isDebugEchoOn()) {
  const IProperty* const property = CMProperty::getToolProperty(propertyName);
  if (property != nullptr) m_pattern.emplace(property->getValue(), "i");
}

PropertyPattern::Answer PropertyPattern::extract(std::string_view text, std::string& out) const {
  if (!m_pattern) return {};
  if (m_pattern->text().empty()) {
    if (m_echoes) writeDebugEcho({"The property '", m_name, "is empty'\n"});
    out.clear();
    return {.result = 1};
  }
  const Field field = readField(*m_pattern, text, out);
  const bool hasValue = field == Field::WithValue;
  if (!hasValue && m_echoes) echoFailure(m_pattern->text(), text);
  return {.result = hasValue ? 1 : 0, .found = 1, .field = field};
}

int CMProperty::ExtractByProperty(const std::string& propertyName, std::string_view text,
                                  std::string& out, int& found, std::string& /*extra*/) {
  const PropertyPattern pattern(propertyName);
  const PropertyPattern::Answer answer = pattern.extract(text, out);
  if (pattern.exists()) found = answer.found;
  return answer.result;
}

int CMProperty::ExtractBySearchPattern(const std::string& pattern, std::string_view text,
                                       std::string& out, std::string& /*extra*/) {
  if (readField(SPPattern(pattern, "i"), text, out) == PropertyPattern::Field::WithValue) return 1;
  if (isDebugEchoOn()) echoFailure(pattern, text);
  return 0;
}

}  // namespace veldra
