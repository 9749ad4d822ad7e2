#pragma once

#include <optional>
#include <string>

#include "host/model/Property.h"

namespace veldra::host::cli {

/// A property as the user names it.
///
/// SUBJECT.METACLASS.NAME is the whole key; METACLASS.NAME leaves the subject to be
/// ConfigurationManagement; NAME alone is looked for in the tool's metaclass and then in General.
struct PropertyName {
  std::optional<std::string> subject;
  std::optional<std::string> metaclass;
  std::string name;
};

/// Nothing for a text that is no such name.
std::optional<PropertyName> parsePropertyName(const std::string& text);

/// The key, with `metaclass` where the name leaves it open.
PropertyKey keyIn(const PropertyName& name, const std::string& metaclass);

}  // namespace veldra::host::cli
