#include "host/cli/printing/Report.h"

#include <algorithm>

#include "host/cli/printing/BytesAsText.h"

namespace veldra::host::cli {

namespace {

using Json = nlohmann::ordered_json;

Json jsonOf(const UnitPlan& plan) {
  Json commands = Json::array();
  for (const std::vector<std::string>& command : plan.commands) {
    Json arguments = Json::array();
    for (const std::string& argument : command) arguments.push_back(jsonText(argument));
    commands.push_back(std::move(arguments));
  }
  Json json;
  json["commands"] = std::move(commands);
  json["file"] = jsonText(plan.file);
  json["lock"] = jsonText(plan.lock);
  return json;
}

Json jsonOf(const UnitRecord& unit) {
  Json json;
  json["path"] = jsonText(unit.path);
  json["name"] = jsonText(unit.name);
  json["type"] = jsonText(unit.type);
  json["version"] = jsonText(unit.version);
  json["mode"] = unit.mode;
  json["locker"] = jsonText(unit.locker);
  if (!unit.state.empty()) json["state"] = unit.state;
  json["result"] = resultWord(unit.result);
  json["message"] = jsonText(unit.message);
  if (unit.result == UnitResult::Planned) json["plan"] = jsonOf(unit.plan);
  return json;
}

}  // namespace

ExitCode exitCodeOf(const std::vector<UnitRecord>& units) {
  const auto done = std::ranges::count_if(units, [](const UnitRecord& unit) {
    return unit.result == UnitResult::Done || unit.result == UnitResult::Planned;
  });
  if (done == 0) return ExitCode::NothingDone;
  return static_cast<std::size_t>(done) == units.size() ? ExitCode::AllDone : ExitCode::SomeFailed;
}

Json jsonText(const std::string& bytes) {
  return textForJson(bytes);
}

void printJson(const Report& report, std::ostream& out) {
  Json units = Json::array();
  for (const UnitRecord& unit : report.units) units.push_back(jsonOf(unit));
  Json document;
  document["command"] = report.command;
  document["units"] = std::move(units);
  if (!report.message.empty()) document["message"] = jsonText(report.message);
  printJson(document, out);
}

void printJson(const Json& document, std::ostream& out) {
  out << document.dump(2) << '\n';
}

}  // namespace veldra::host::cli
