#include <algorithm>
#include <optional>

#include "cm/templates/CMProperty.h"
#include "host/cli/Packs.h"
#include "host/cli/doctor/Checks.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/Report.h"

namespace veldra::host::cli {

namespace {

using Json = nlohmann::ordered_json;

/// Whether the project's provider is meant.
bool isAboutProvider(Session& session, bool hasProject) {
  return hasProject && !session.options().tool && CMProperty::useSccCompliantTool() != 0;
}

/// The tool that is meant: the one named, else the project's.
std::string toolOf(Session& session) {
  const PropertyLayers& layers = session.host().properties();
  const std::string tool = session.options().tool.value_or(layers.chosenTool());
  if (!tool.empty()) return packNamed(layers, tool).name;
  throw CommandError(ExitCode::NothingDone,
                     "No tool is selected. Name one with --tool; \"veldra-cm pack list\" shows "
                     "those that there are.");
}

void print(const Invocation& invocation, const std::string& tool, const DoctorChecks& checks) {
  std::ostream& out = invocation.console.out;
  if (invocation.options.json) {
    Json document;
    document["command"] = invocation.command.name;
    document["tool"] = jsonText(tool);
    document["checks"] = Json::array();
    for (const DoctorCheck& check : checks) {
      Json json;
      json["name"] = check.name;
      json["ok"] = check.isFine;
      json["finding"] = jsonText(check.finding);
      json["advice"] = jsonText(check.advice);
      document["checks"].push_back(std::move(json));
    }
    return printJson(document, out);
  }
  out << textForPeople(tool) << '\n';
  for (const DoctorCheck& check : checks) {
    out << (check.isFine ? "ok    " : "FAIL  ") << check.name << ": "
        << linesForPeople(check.finding) << '\n';
    if (!check.isFine) out << "      advice: " << linesForPeople(check.advice) << '\n';
  }
}

ExitCode exitCodeOf(const DoctorChecks& checks) {
  const bool isFine = std::ranges::all_of(checks, &DoctorCheck::isFine);
  return isFine ? ExitCode::AllDone : ExitCode::SomeFailed;
}

}  // namespace

ExitCode runDoctor(const Invocation& invocation) {
  DoctorChecks checks;
  std::string tool;
  std::string tempDirectory;
  {
    Session session(invocation);
    const bool hasProject = session.openProjectIfAny();
    if (isAboutProvider(session, hasProject)) {
      checks = checkProvider(session);
      print(invocation, "source-control provider", checks);
      return exitCodeOf(checks);
    }
    tool = toolOf(session);
    tempDirectory = session.host().environment().omGetTempDir();
    checks = checkTool(session, tool);
    if (hasProject && !invocation.options.tool) {
      const DoctorChecks more = checkProject(session);
      checks.insert(checks.end(), more.begin(), more.end());
    }
  }
  const bool hasProgram = std::ranges::none_of(
      checks, [](const DoctorCheck& check) { return check.name == "program" && !check.isFine; });
  if (hasProgram && !invocation.options.dryRun) {
    const DoctorChecks more = checkRoundTrip(tool, tempDirectory);
    checks.insert(checks.end(), more.begin(), more.end());
  }
  print(invocation, tool, checks);
  return exitCodeOf(checks);
}

}  // namespace veldra::host::cli
