#include <optional>
#include <string>

#include "cm/core/CMUnit.h"
#include "cm/templates/CMProperty.h"
#include "host/cli/ExpansionArgument.h"
#include "host/cli/Session.h"
#include "host/cli/UnitSelection.h"
#include "host/cli/printing/BytesAsText.h"
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

/// The expansion itself stands alone on the output, without a line end.
void tellFailure(const Invocation& invocation, const std::string& expansion) {
  const std::optional<std::string>& property = invocation.options.property;
  const bool isMissing = property && CMProperty::getToolProperty(*property) == nullptr;
  if (!expansion.empty()) invocation.console.err << '\n';
  invocation.console.err << (isMissing ? "There is no property \"" + textForPeople(*property) +
                                             "\". \"veldra-cm property list\" shows all.\n"
                                       : "The expansion failed. --explain shows each step.\n");
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
  if (result != 1 && !options.explain) tellFailure(invocation, text);
  return result == 1 ? ExitCode::AllDone : ExitCode::SomeFailed;
}

}  // namespace veldra::host::cli
