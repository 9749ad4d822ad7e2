#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <tuple>

#include "cm/host/IProperty.h"

namespace veldra::test {

/// A property with a value of its own and, once set, an override on top of it.
class MemoryProperty : public IProperty {
 public:
  MemoryProperty(std::string name, std::string value)
      : m_name(std::move(name)), m_value(std::move(value)) {}

  std::string getName() const override { return m_name; }
  std::string getValue() const override { return m_override.value_or(m_value); }
  bool getBool() const override;
  void setValue(const std::string& value) override { m_override = value; }
  std::unique_ptr<IProperty> copy() const override;

  const std::string& ownValue() const { return m_value; }
  bool isOverridden() const { return m_override.has_value(); }

 private:
  std::string m_name;
  std::string m_value;
  std::optional<std::string> m_override;
};

/// The properties stored on one object, by subject, metaclass and name.
class PropertyTable {
 public:
  IProperty* find(const std::string& subject, const std::string& metaclass,
                  const std::string& name) const;
  void attach(const std::string& subject, const std::string& metaclass,
              std::unique_ptr<IProperty> property);
  void erase(const std::string& subject, const std::string& metaclass, const std::string& name);

 private:
  using Key = std::tuple<std::string, std::string, std::string>;
  std::map<Key, std::unique_ptr<IProperty>> m_properties;
};

}  // namespace veldra::test
