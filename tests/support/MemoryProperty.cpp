#include "tests/support/MemoryProperty.h"

#include <algorithm>
#include <cctype>

namespace veldra::test {

bool MemoryProperty::getBool() const {
  std::string value = getValue();
  std::transform(value.begin(), value.end(), value.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return value == "true" || value == "yes" || value == "1";
}

std::unique_ptr<IProperty> MemoryProperty::copy() const {
  return std::make_unique<MemoryProperty>(*this);
}

IProperty* PropertyTable::find(const std::string& subject, const std::string& metaclass,
                               const std::string& name) const {
  const auto found = m_properties.find(Key(subject, metaclass, name));
  return found == m_properties.end() ? nullptr : found->second.get();
}

void PropertyTable::attach(const std::string& subject, const std::string& metaclass,
                           std::unique_ptr<IProperty> property) {
  Key key(subject, metaclass, property->getName());
  m_properties.insert_or_assign(std::move(key), std::move(property));
}

void PropertyTable::erase(const std::string& subject, const std::string& metaclass,
                          const std::string& name) {
  m_properties.erase(Key(subject, metaclass, name));
}

}  // namespace veldra::test
