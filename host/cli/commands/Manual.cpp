#include "host/cli/manual/Manual.h"

#include <string_view>

#include "host/cli/Session.h"
#include "host/cli/UnitDescription.h"
#include "host/cli/UnitSelection.h"
#include "host/cli/printing/BytesAsText.h"

namespace veldra::host::cli {

namespace {

/// The units of the project, a line each. Without a project there are none.
void printUnits(const Invocation& invocation) {
  Session session(invocation);
  if (!session.openProjectIfAny()) return;
  for (IUnit* unit : selectAll(AllUnits::Every).units) {
    invocation.console.out << textForPeople(projectPath(*unit)) << '\n';
  }
}

}  // namespace

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
  if (invocation.options.action != "units") {
    throw CommandError(
        ExitCode::WrongUsage,
        "It is \"manual man\", \"manual bash\", \"manual zsh\" or \"manual units\".");
  }
  printUnits(invocation);
  return ExitCode::AllDone;
}

}  // namespace veldra::host::cli
