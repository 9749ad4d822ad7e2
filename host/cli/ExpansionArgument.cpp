#include "host/cli/ExpansionArgument.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

#include "cm/core/CMArchive.h"
#include "host/cli/ExitCode.h"
#include "host/model/PathNames.h"

namespace veldra::host::cli {

namespace {

template <class Argument>
void addText(const std::string& value, CallArguments& arguments) {
  arguments.add<Argument>(value);
}

void addMode(const std::string& value, CallArguments& arguments) {
  const std::string word = lowerCase(value);
  if (word == "0" || word == "ro") {
    arguments.add<CMMode>(CMMode::ReadOnly);
  } else if (word == "1" || word == "rw") {
    arguments.add<CMMode>(CMMode::ReadWrite);
  } else {
    throw CommandError(ExitCode::WrongUsage,
                       "\"" + value + "\" is no mode. It is 0 or RO, 1 or RW.");
  }
}

struct Kind {
  std::string_view name;
  void (*add)(const std::string& value, CallArguments& arguments);
};

constexpr Kind Kinds[] = {
    {"archive", addText<CMArchive>},
    {"label", addText<CMLabel>},
    {"log", addText<CMLog>},
    {"mode", addMode},
    {"targetDir", addText<CMTargetFile>},
    {"workspace", addText<CMWorkspace>},
};

}  // namespace

void addExpansionArgument(const std::string& text, CallArguments& arguments) {
  const std::size_t sign = text.find('=');
  const std::string kind = lowerCase(text.substr(0, sign));
  const auto* const at =
      std::ranges::find_if(Kinds, [&](const Kind& known) { return lowerCase(known.name) == kind; });
  if (sign != std::string::npos && at != std::end(Kinds)) {
    at->add(text.substr(sign + 1), arguments);
    return;
  }
  throw CommandError(ExitCode::WrongUsage,
                     "\"" + text +
                         "\" is no argument. It is KIND=VALUE, with a KIND of archive, label, log, "
                         "mode, targetDir and workspace.");
}

}  // namespace veldra::host::cli
