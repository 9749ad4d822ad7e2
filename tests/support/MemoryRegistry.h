#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "cm/core/TextTools.h"
#include "cm/host/IRegistry.h"

namespace veldra::test {

/// A registry of the values that a test writes.
class MemoryRegistry : public IRegistry {
 public:
  void write(const std::string& subkey, const std::string& name, const std::string& value) {
    m_values[keyOf(subkey, name)] = value;
  }
  void erase(const std::string& subkey, const std::string& name) {
    m_values.erase(keyOf(subkey, name));
  }

  std::optional<std::string> localMachineText(const std::string& subkey,
                                              const std::string& name) override {
    const auto found = m_values.find(keyOf(subkey, name));
    return found == m_values.end() ? std::nullopt : std::optional(found->second);
  }

 private:
  using Key = std::pair<std::string, std::string>;
  static Key keyOf(const std::string& subkey, const std::string& name) {
    return {lowerCase(subkey), lowerCase(name)};
  }

  std::map<Key, std::string> m_values;
};

}  // namespace veldra::test
