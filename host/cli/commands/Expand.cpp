#include <optional>
#include <string>

#include "cm/core/CMUnit.h"
#include "cm/templates/CMProperty.h"
#include "host/cli/ExpansionArgument.h"
#include "host/cli/Session.h"
#include "host/cli/UnitSelection.h"
#include "host/cli/printing/Report.h"
#include "host/platform/Program.h"

namespace veldra::host::cli {

namespace {

void addUnit(Session& session, const std::string& name, CallArguments& arguments) {
  const UnitSelection selection = selectByName(session.openToLook(), {name});
  if (selection.units.empty()) {
    throw CommandError(ExitCode::NothingDone, name + ": " + selection.unknown.front().message);
  }
  arguments.add<CMUnit>(selection.units.front());
}

void print(const Invocation& invocation, const std::string& text, bool succeeded) {
  if (!invocation.options.json) {
    invocation.console.out << text;
    return;
  }
  nlohmann::ordered_json document;
  document["command"] = invocation.command.name;
  document["expansion"] = jsonText(text);
  document["succeeded"] = succeeded;
  printJson(document, invocation.console.out);
}

}  // namespace

ExitCode runExpand(const Invocation& invocation) {
  const Options& options = invocation.options;
  if (options.commandTemplate.has_value() == options.property.has_value()) {
    throw CommandError(ExitCode::WrongUsage, "Give a template or --property, one of the two.");
  }
  if (options.explain) setVariable("VELDRA_DEBUG_CM", "TRUE");
  Session session(invocation, options.explain ? WindowUse::Explain : WindowUse::Quiet);
  const bool hasProject = session.openProjectIfAny();
  if (options.property && !hasProject) session.openToLook();

  CallArguments arguments;
  for (const std::string& text : options.arguments) addExpansionArgument(text, arguments);
  if (options.unit) addUnit(session, *options.unit, arguments);
  std::string text;
  std::string extra;
  const int result =
      options.property
          ? CMProperty::ExpandProperty(*options.property, arguments.list(), text, extra)
          : CMProperty::Expand(*options.commandTemplate, arguments.list(), text, extra);
  print(invocation, text, result == 1);
  return result == 1 ? ExitCode::AllDone : ExitCode::SomeFailed;
}

}  // namespace veldra::host::cli
