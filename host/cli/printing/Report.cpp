#include "host/cli/printing/Report.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "host/cli/printing/BytesAsText.h"

namespace veldra::host::cli {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::size_t PrintedAtOnce = std::size_t{1} << 16;

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

/// Whether a text stands in a document as it is. Without a way out in the middle, because this
/// takes several characters at once.
bool isPlain(std::string_view bytes) {
  bool plain = true;
  for (const char c : bytes) plain &= (c >= ' ') & (c <= '~') & (c != '"') & (c != '\\');
  return plain;
}

/// What `jsonText` makes of the bytes, written out.
void appendText(std::string_view bytes, std::string& text) {
  if (isPlain(bytes)) {
    text.append(1, '"').append(bytes).append(1, '"');
  } else {
    text += jsonText(std::string(bytes)).dump();
  }
}

/// A part of a document whose lines begin with `lineStart`.
void append(const Json& part, std::string_view lineStart, std::string& text) {
  for (const char c : part.dump(2)) {
    text += c;
    if (c == '\n') text += lineStart;
  }
}

/// The next field of a unit in a document, up to its value.
void appendName(std::string_view name, std::string& text) {
  if (text.back() != '{') text += ',';
  text.append("\n      \"").append(name).append("\": ");
}

struct TextField {
  std::string_view name;
  std::string UnitRecord::*value;
};

constexpr TextField TextFields[] = {
    {"path", &UnitRecord::path},       {"name", &UnitRecord::name}, {"type", &UnitRecord::type},
    {"version", &UnitRecord::version}, {"mode", &UnitRecord::mode}, {"locker", &UnitRecord::locker},
};

/// A unit as the library would write it, which for many thousands takes longer than to list them.
void append(const UnitRecord& unit, std::string& text) {
  text += '{';
  for (const TextField& field : TextFields) {
    appendName(field.name, text);
    appendText(unit.*field.value, text);
  }
  if (!unit.state.empty()) {
    appendName("state", text);
    appendText(unit.state, text);
  }
  appendName("result", text);
  appendText(resultWord(unit.result), text);
  appendName("message", text);
  appendText(unit.message, text);
  if (unit.result == UnitResult::Planned) {
    appendName("plan", text);
    append(jsonOf(unit.plan), "      ", text);
  }
  text += "\n    }";
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

JsonReport::JsonReport(std::string_view command, std::ostream& out) : m_out(out) {
  m_text = "{\n  \"command\": ";
  appendText(command, m_text);
  m_text += ",\n  \"units\": [";
}

void JsonReport::add(const UnitRecord& unit) {
  m_text += m_unitCount++ == 0 ? "\n    " : ",\n    ";
  append(unit, m_text);
  if (m_text.size() < PrintedAtOnce) return;
  m_out << m_text;
  m_text.clear();
}

void JsonReport::end(std::string_view message) {
  m_text += m_unitCount == 0 ? "]" : "\n  ]";
  if (!message.empty()) {
    m_text += ",\n  \"message\": ";
    appendText(message, m_text);
  }
  m_out << m_text << "\n}\n";
}

void printJson(const Report& report, std::ostream& out) {
  JsonReport document(report.command, out);
  for (const UnitRecord& unit : report.units) document.add(unit);
  document.end(report.message);
}

void printJson(const Json& document, std::ostream& out) {
  out << document.dump(2) << '\n';
}

}  // namespace veldra::host::cli
