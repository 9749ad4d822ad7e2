#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/model/PropertyLayers.h"

namespace veldra::host {

/// A command, or a text that can become a part of one, which came with a project or one of its
/// units.
struct ForeignCommand {
  PropertyKey key;
  std::string value;
  std::optional<std::string> below;  ///< What would count without the project; nothing for nothing.
  std::string source;                ///< The file that brought it.
};

/// What the open project and its units bring or change, by subject, metaclass and name. A value
/// that only repeats what counts anyway is none, nor is one that can do no harm (`isHarmless`).
std::vector<ForeignCommand> foreignCommands(const PropertyLayers& layers);

/// Whether the property may have this value wherever it comes from: the place of an archive, a
/// switch, a number or a text for people, and nothing in it that a command line would take for more
/// than one plain argument. What is not known is never harmless.
bool isHarmless(const PropertyKey& key, std::string_view value);

}  // namespace veldra::host
