#include "host/tandel/TandelOptions.h"

#include <algorithm>
#include <array>

namespace veldra::host::tandel {

namespace {

struct Switch {
  const char* name;
  bool TandelOptions::*target;
};

constexpr std::array<Switch, 7> Switches{{{"-fromVeldra", &TandelOptions::fromVeldra},
                                          {"-recursive", &TandelOptions::isRecursive},
                                          {"-mergeBack", &TandelOptions::mergesBack},
                                          {"-cm1", &TandelOptions::isFirstControlled},
                                          {"-cm2", &TandelOptions::isSecondControlled},
                                          {"-print", &TandelOptions::prints},
                                          {"-help", &TandelOptions::helps}}};

Result<TandelOptions> wrong(const std::string& sentence) {
  return Result<TandelOptions>::failure(sentence);
}

}  // namespace

Result<TandelOptions> parseOptions(const std::vector<std::string>& arguments) {
  TandelOptions options;
  std::vector<std::string> files;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    const auto* const found = std::ranges::find(Switches, argument, &Switch::name);
    if (found != Switches.end()) {
      options.*found->target = true;
    } else if (argument == "-origId") {
      // A project without an identifier leaves nothing before the next option.
      const bool hasValue = i + 1 < arguments.size() && !arguments[i + 1].starts_with('-');
      if (hasValue) options.projectIdentifier = arguments[++i];
    } else if (argument.starts_with('-')) {
      return wrong("'" + argument + "' is no option.");
    } else {
      files.push_back(argument);
    }
  }
  if (options.helps) return options;
  if (files.size() != 2) return wrong("Name two files, or two folders.");
  options.first = files[0];
  options.second = files[1];
  return options;
}

}  // namespace veldra::host::tandel
