#include "host/cli/printing/Report.h"

#include <algorithm>
#include <string_view>

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

/// Prints a part of a document whose lines begin with `lineStart`.
void printInside(const Json& part, std::string_view lineStart, std::ostream& out) {
  const std::string text = part.dump(2);
  std::size_t from = 0;
  for (std::size_t end = 0; (end = text.find('\n', from)) != std::string::npos; from = end + 1) {
    out << std::string_view(text).substr(from, end - from) << lineStart;
  }
  out << std::string_view(text).substr(from);
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
  // Unit by unit, because a document of many thousands takes longer to make than to print.
  out << "{\n  \"command\": " << Json(report.command).dump() << ",\n  \"units\": [";
  const char* separator = "\n    ";
  for (const UnitRecord& unit : report.units) {
    out << separator;
    printInside(jsonOf(unit), "\n    ", out);
    separator = ",\n    ";
  }
  out << (report.units.empty() ? "]" : "\n  ]");
  if (!report.message.empty()) out << ",\n  \"message\": " << jsonText(report.message).dump();
  out << "\n}\n";
}

void printJson(const Json& document, std::ostream& out) {
  out << document.dump(2) << '\n';
}

}  // namespace veldra::host::cli
