#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace veldra::host {

/// What stands behind the name of a command template for another form of it: one command for many
/// units, and one that does quickly what nearly always has to be done.
inline constexpr std::array<std::string_view, 2> TemplateForms = {"Batch", "Quick"};

/// The template that a property of this name is another form of; nothing for other names.
constexpr std::optional<std::string_view> templateOfForm(std::string_view name) {
  for (const std::string_view form : TemplateForms) {
    if (name.ends_with(form)) return name.substr(0, name.size() - form.size());
  }
  return std::nullopt;
}

}  // namespace veldra::host
