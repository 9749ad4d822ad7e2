#include "host/model/Property.h"

#include <array>
#include <utility>

#include "host/model/PathNames.h"

namespace veldra::host {

std::string_view originName(Origin origin) {
  constexpr std::array<std::string_view, 5> names = {"pack", "site", "user", "project", "unit"};
  return names.at(static_cast<std::size_t>(origin));
}

Property::Property(std::string name, std::string value, Origin origin, std::string source)
    : m_name(std::move(name)),
      m_ownValue(std::move(value)),
      m_origin(origin),
      m_source(std::move(source)) {}

bool Property::getBool() const {
  const std::string text = lowerCase(value());
  return text == "true" || text == "yes" || text == "on" || text == "1";
}

void Property::setValue(const std::string& value) {
  const bool changes = value != this->value();
  m_override = value;
  if (changes && m_listener) m_listener(*this);
}

std::unique_ptr<IProperty> Property::copy() const {
  auto copied = std::make_unique<Property>(m_name, m_ownValue, m_origin);
  copied->m_override = m_override;
  return copied;
}

Property* PropertyTable::find(const PropertyKeyView& key) const {
  const auto found = m_properties.find(key);
  return found == m_properties.end() ? nullptr : found->second.get();
}

Property& PropertyTable::put(std::string subject, std::string metaclass,
                             std::unique_ptr<Property> property) {
  PropertyKey key{std::move(subject), std::move(metaclass), property->getName()};
  return *m_properties.insert_or_assign(std::move(key), std::move(property)).first->second;
}

void PropertyTable::remove(const PropertyKeyView& key) {
  const auto found = m_properties.find(key);
  if (found != m_properties.end()) m_properties.erase(found);
}

}  // namespace veldra::host
