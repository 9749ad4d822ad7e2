#pragma once

#include <span>
#include <string_view>

namespace veldra::host {

/// What the value of a property is.
enum class PropertyKind {
  Command,     ///< A command template, or a text that becomes a part of one.
  Pattern,     ///< A regular expression that is searched for.
  Extraction,  ///< The same with a first group, which is the value that is looked for.
  Place,       ///< An archive, a path in it, an address.
  Word,        ///< A switch, a number or a name, without blanks.
  Text         ///< For people.
};

/// A property of the subject "ConfigurationManagement" that the module or this host reads.
struct KnownProperty {
  std::string_view name;
  PropertyKind kind;
};

/// All of them, by their kinds. Tools add properties of their own that their templates refer to.
std::span<const KnownProperty> knownProperties();

/// The property of exactly that name, or null. A command template with "Batch" or "Quick" behind
/// its name counts as the template.
const KnownProperty* knownProperty(std::string_view name);

/// The names that a template may refer to without any property behind them: those that arguments
/// answer to, and the predefined ones. Without the dollar sign.
std::span<const std::string_view> argumentKeywords();

/// Whether an argument or the module itself answers to the keyword, the case of letters aside.
bool isArgumentKeyword(std::string_view name);

}  // namespace veldra::host
