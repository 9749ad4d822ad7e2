#include "host/cli/manual/Manual.h"

#include <iterator>
#include <string_view>

namespace veldra::host::cli {

ExitCode runManual(const Invocation& invocation) {
  struct Form {
    std::string_view name;
    std::string (*text)();
  };
  static constexpr Form Forms[] = {
      {"man", manPage}, {"bash", bashCompletion}, {"zsh", zshCompletion}};
  for (const Form& form : Forms) {
    if (form.name != invocation.options.action) continue;
    invocation.console.out << form.text();
    return ExitCode::AllDone;
  }
  throw CommandError(ExitCode::WrongUsage,
                     "It is \"manual man\", \"manual bash\" or \"manual zsh\".");
}

}  // namespace veldra::host::cli
