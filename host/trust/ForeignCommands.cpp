#include "host/trust/ForeignCommands.h"

#include <algorithm>
#include <cctype>
#include <tuple>

#include "cm/host/IPN.h"
#include "host/settings/KnownProperties.h"

namespace veldra::host {

namespace {

/// One word: a switch, a number, the name of a tool.
bool isWord(std::string_view value) {
  return !value.starts_with('-') && std::ranges::all_of(value, [](char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_' || c == '-' || c == '.' ||
           c == '+' || c == ' ' || (static_cast<unsigned char>(c) & 0x80U) != 0;
  });
}

/// Between double quotes it is one argument, and no tool takes it for an option or for a command:
/// the host of "ssh://-oProxyCommand=..." reaches ssh as an option, and "ext::..." is run by Git.
bool isPlainArgument(std::string_view value) {
  const bool hasSign = std::ranges::any_of(value, [](char c) {
    return c == '"' || c == '>' || c == '`' || static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
  });
  return !hasSign && !value.starts_with('-') && value.find("://-") == std::string_view::npos &&
         value.find("@-") == std::string_view::npos && value.find("::") == std::string_view::npos &&
         !value.ends_with('\\');
}

ForeignCommand commandOf(const PropertyEntry& entry, const Property* below) {
  return {entry.key, entry.value,
          below != nullptr ? std::optional<std::string>(below->value()) : std::nullopt,
          entry.source};
}

bool isForeign(const ForeignCommand& command) {
  return command.below != command.value && !isHarmless(command.key, command.value);
}

}  // namespace

bool isHarmless(const PropertyKey& key, std::string_view value) {
  // The module reads no other subject.
  if (key.subject != IPN::CM) return true;
  const KnownProperty* const known = knownProperty(key.name);
  if (known == nullptr) return false;
  switch (known->kind) {
    case PropertyKind::Word:
      return isWord(value);
    case PropertyKind::Place:
    case PropertyKind::Text:
      return isPlainArgument(value);
    default:
      return false;
  }
}

std::vector<ForeignCommand> foreignCommands(const PropertyLayers& layers) {
  std::vector<ForeignCommand> commands;
  for (const PropertyEntry& entry : layers.projectEntries()) {
    commands.push_back(commandOf(entry, layers.belowProject(entry.key)));
  }
  for (const PropertyEntry& entry : layers.unitEntries()) {
    commands.push_back(commandOf(entry, layers.find(entry.key)));
  }
  std::erase_if(commands, [](const ForeignCommand& command) { return !isForeign(command); });
  std::ranges::sort(commands, {}, [](const ForeignCommand& command) {
    return std::tie(command.key.subject, command.key.metaclass, command.key.name, command.source);
  });
  return commands;
}

}  // namespace veldra::host
