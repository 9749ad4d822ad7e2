#include <string>

#include "cm/host/IUserMessages.h"
#include "host/cli/Session.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/Report.h"

namespace veldra::host::cli {

namespace {

using Json = nlohmann::ordered_json;
using Commands = std::vector<ForeignCommand>;

void printDocument(const Invocation& invocation, const Commands& commands, bool isTrusted) {
  Json document;
  document["command"] = invocation.command.name;
  document["trusted"] = isTrusted;
  document["commands"] = Json::array();
  for (const ForeignCommand& command : commands) {
    Json json;
    json["subject"] = jsonText(command.key.subject);
    json["metaclass"] = jsonText(command.key.metaclass);
    json["name"] = jsonText(command.key.name);
    json["value"] = jsonText(command.value);
    json["below"] = command.below ? jsonText(*command.below) : Json();
    json["source"] = jsonText(command.source);
    document["commands"].push_back(std::move(json));
  }
  printJson(document, invocation.console.out);
}

void printCommands(const Commands& commands, std::ostream& out) {
  for (const ForeignCommand& command : commands) {
    out << textForPeople(command.key.metaclass) << '.' << textForPeople(command.key.name)
        << "\n    now     " << textForPeople(command.value) << '\n';
    if (command.below) out << "    before  " << textForPeople(*command.below) << '\n';
    if (!command.source.empty()) out << "    from    " << textForPeople(command.source) << '\n';
  }
}

bool userAgrees(Session& session, const Options& options) {
  if (options.yes) return true;
  if (!session.console().asks) {
    throw CommandError(
        ExitCode::NothingDone,
        "Nothing is trusted: there is nobody to ask. Look at the commands, then give "
        "--yes.");
  }
  return session.door().ask("Are these commands to be run on this computer?", MessageBox::YesNo) ==
         MessageBox::AnswerYes;
}

}  // namespace

ExitCode runTrust(const Invocation& invocation) {
  const Options& options = invocation.options;
  Console& console = invocation.console;
  Session session(invocation);
  const Project& project = session.openToLook();
  CommandTrust& trust = session.host().trust();
  const Commands commands = trust.commands();
  const bool changes = !options.list && !options.dryRun && !trust.isTrusted();
  if (!options.json) printCommands(commands, console.out);
  const bool agrees = changes && userAgrees(session, options);
  if (agrees) {
    if (const std::optional<std::string> failure = trust.trust(project.getFullFileName())) {
      throw CommandError(ExitCode::NothingDone, *failure);
    }
  }
  if (options.json) {
    printDocument(invocation, commands, trust.isTrusted());
  } else if (commands.empty()) {
    console.out << "The project brings no commands of its own.\n";
  } else {
    console.out << (trust.isTrusted() ? "trusted\n" : "not trusted\n");
  }
  return changes && !agrees ? ExitCode::NothingDone : ExitCode::AllDone;
}

}  // namespace veldra::host::cli
