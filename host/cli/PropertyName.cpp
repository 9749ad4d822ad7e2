#include "host/cli/PropertyName.h"

#include <cstddef>

#include "cm/host/IPN.h"

namespace veldra::host::cli {

std::optional<PropertyName> parsePropertyName(const std::string& text) {
  PropertyName result;
  // A metaclass is named after a tool, so it may hold dots; the other two may not.
  const std::size_t last = text.rfind('.');
  result.name = last == std::string::npos ? text : text.substr(last + 1);
  if (last != std::string::npos) {
    const std::string owner = text.substr(0, last);
    const std::size_t first = owner.find('.');
    if (first != std::string::npos) result.subject = owner.substr(0, first);
    result.metaclass = first == std::string::npos ? owner : owner.substr(first + 1);
  }
  const bool isWhole = !result.name.empty() && (!result.subject || !result.subject->empty()) &&
                       (!result.metaclass || !result.metaclass->empty());
  return isWhole ? std::optional<PropertyName>(result) : std::nullopt;
}

PropertyKey keyIn(const PropertyName& name, const std::string& metaclass) {
  return {name.subject.value_or(IPN::CM), name.metaclass.value_or(metaclass), name.name};
}

}  // namespace veldra::host::cli
