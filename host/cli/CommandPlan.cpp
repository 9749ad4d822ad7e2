#include "host/cli/CommandPlan.h"

#include "host/cli/UnitOutcome.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/Report.h"
#include "host/platform/CommandLine.h"

namespace veldra::host::cli {

namespace {

using Json = nlohmann::ordered_json;

Json asDocument(const Invocation& invocation, const std::vector<std::string>& sentences,
                const std::vector<std::string>& commands) {
  Json document;
  document["command"] = invocation.command.name;
  document["units"] = Json::array();
  Json plan;
  plan["steps"] = Json::array();
  for (const std::string& sentence : sentences) plan["steps"].push_back(jsonText(sentence));
  plan["commands"] = Json::array();
  for (const std::string& command : commands) {
    Json arguments = Json::array();
    for (const std::string& one : plannedArguments(command)) arguments.push_back(jsonText(one));
    plan["commands"].push_back(std::move(arguments));
  }
  document["plan"] = std::move(plan);
  return document;
}

}  // namespace

void printCommandPlan(const Invocation& invocation, const std::vector<std::string>& sentences,
                      const std::vector<std::string>& commands) {
  std::ostream& out = invocation.console.out;
  if (invocation.options.json) {
    printJson(asDocument(invocation, sentences, commands), out);
    return;
  }
  for (const std::string& sentence : sentences) out << "would " << textForPeople(sentence) << '\n';
  for (const std::string& command : commands) {
    out << "would run  " << textForPeople(joinCommandLine(plannedArguments(command))) << '\n';
  }
}

}  // namespace veldra::host::cli
