#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "cm/host/IProperty.h"

namespace veldra::host {

/// Where a property's value comes from, from the weakest to the strongest.
enum class Origin { Pack, Site, User, Project, Unit };

/// The word for an origin: "pack", "site", "user", "project" or "unit".
std::string_view originName(Origin origin);

/// One property of a layer or a unit.
class Property : public IProperty {
 public:
  /// Told when the effective value has really changed.
  using Listener = std::function<void(Property&)>;

  Property(std::string name, std::string value, Origin origin, std::string source = {});

  std::string getName() const override { return m_name; }
  std::string getValue() const override { return value(); }
  /// True for "true", "yes", "on" and "1" in any case.
  bool getBool() const override;
  void setValue(const std::string& value) override;
  /// The copy has the same value and override and no listener.
  std::unique_ptr<IProperty> copy() const override;

  const std::string& value() const { return m_override ? *m_override : m_ownValue; }
  const std::string& ownValue() const { return m_ownValue; }
  const std::optional<std::string>& overridingValue() const { return m_override; }
  Origin origin() const { return m_origin; }
  /// The file that the value was read from; empty for one that was set since.
  const std::string& source() const { return m_source; }

  void setListener(Listener listener) { m_listener = std::move(listener); }

 private:
  std::string m_name;
  std::string m_ownValue;
  std::optional<std::string> m_override;
  Origin m_origin;
  std::string m_source;
  Listener m_listener;
};

/// What names a property.
struct PropertyKey {
  std::string subject;
  std::string metaclass;
  std::string name;
  bool operator==(const PropertyKey&) const = default;
};

/// The same as views, for look-ups that copy nothing.
struct PropertyKeyView {
  std::string_view subject;
  std::string_view metaclass;
  std::string_view name;
  PropertyKeyView(std::string_view s, std::string_view m, std::string_view n)
      : subject(s), metaclass(m), name(n) {}
  PropertyKeyView(const PropertyKey& key)
      : subject(key.subject), metaclass(key.metaclass), name(key.name) {}
  bool operator==(const PropertyKeyView&) const = default;
};

struct PropertyKeyHash {
  using is_transparent = void;
  std::size_t operator()(const PropertyKeyView& key) const {
    const std::hash<std::string_view> hash;
    return hash(key.name) ^ (hash(key.metaclass) * 31) ^ (hash(key.subject) * 961);
  }
};

struct PropertyKeyEqual {
  using is_transparent = void;
  bool operator()(const PropertyKeyView& a, const PropertyKeyView& b) const { return a == b; }
};

template <class Value>
using PropertyMap = std::unordered_map<PropertyKey, Value, PropertyKeyHash, PropertyKeyEqual>;

/// The properties of one layer or unit.
class PropertyTable {
 public:
  Property* find(const PropertyKeyView& key) const;
  /// Adds the property, or replaces the one of that key; the former one is destroyed.
  Property& put(std::string subject, std::string metaclass, std::unique_ptr<Property> property);
  void remove(const PropertyKeyView& key);
  void clear() { m_properties.clear(); }
  bool empty() const { return m_properties.empty(); }
  auto begin() const { return m_properties.begin(); }
  auto end() const { return m_properties.end(); }

 private:
  PropertyMap<std::unique_ptr<Property>> m_properties;
};

}  // namespace veldra::host
