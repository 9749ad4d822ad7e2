#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veldra::host {

/// The names that a command template refers to, each once, in their order; without dollar signs.
std::vector<std::string> keywordsIn(std::string_view text);

/// What is wrong with the conditional sections and the quotes of a template; nothing for a sound
/// one. A section ends at the last closing parenthesis of the template, so there can be only one.
std::optional<std::string> formMistake(std::string_view text);

}  // namespace veldra::host
