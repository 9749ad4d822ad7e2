#include "host/cli/manual/Manual.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <string_view>

#include "host/cli/Session.h"
#include "host/cli/UnitDescription.h"
#include "host/cli/UnitSelection.h"
#include "host/cli/printing/BytesAsText.h"

namespace veldra::host::cli {

namespace {

/// The paths of the project's units, a line each. Without a project there are none.
void printUnits(const Invocation& invocation) {
  Session session(invocation);
  if (!session.openProjectIfAny()) return;
  for (IUnit* unit : selectAll(AllUnits::Every).units) {
    invocation.console.out << textForPeople(projectPath(*unit)) << '\n';
  }
}

/// The same for their names in the model, and for those of the packages that they are in.
void printNames(const Invocation& invocation) {
  Session session(invocation);
  if (!session.openProjectIfAny()) return;
  std::set<std::string> names;
  for (IUnit* unit : selectAll(AllUnits::Every).units) {
    const UnitCore* core = UnitCore::of(unit);
    while (core != nullptr && core != &session.project() &&
           names.insert(core->qualifiedName()).second) {
      core = core->owner();
    }
  }
  for (const std::string& name : names) invocation.console.out << textForPeople(name) << '\n';
}

}  // namespace

ExitCode runManual(const Invocation& invocation) {
  struct Form {
    std::string_view name;
    std::string (*text)();
    void (*print)(const Invocation& invocation);
  };
  static constexpr Form Forms[] = {{"man", manPage, nullptr},
                                   {"bash", bashCompletion, nullptr},
                                   {"zsh", zshCompletion, nullptr},
                                   {"units", nullptr, printUnits},
                                   {"names", nullptr, printNames}};
  const Form* const form = std::ranges::find(Forms, invocation.options.action, &Form::name);
  if (form == std::end(Forms)) {
    throw CommandError(ExitCode::WrongUsage,
                       "It is \"manual man\", \"manual bash\", \"manual zsh\", \"manual units\" or "
                       "\"manual names\".");
  }
  if (form->print != nullptr) {
    form->print(invocation);
  } else {
    invocation.console.out << form->text();
  }
  return ExitCode::AllDone;
}

}  // namespace veldra::host::cli
