#include "host/cli/printing/Report.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
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

using Word = std::uint64_t;

/// A word with this in each of its bytes.
constexpr Word everyByte(unsigned char byte) {
  return ~Word{0} / 0xFF * byte;
}

/// Sets the highest bit of some byte when one of them is below `bound`, which is at most 0x80.
constexpr Word hasBelow(Word word, unsigned char bound) {
  return (word - everyByte(bound)) & ~word;
}

/// Whether all bytes of a word stand in a document as they are: from the blank to the tilde, but
/// neither quote nor backslash.
constexpr bool isPlain(Word word) {
  const Word odd = word | hasBelow(word, ' ') | hasBelow(word ^ everyByte('"'), 1) |
                   hasBelow(word ^ everyByte('\\'), 1) | hasBelow(word ^ everyByte('\x7F'), 1);
  return (odd & everyByte(0x80)) == 0;
}

/// A word at a time: names and paths are most of what is printed.
bool isPlain(std::string_view bytes) {
  Word word = 0;
  for (; bytes.size() >= sizeof word; bytes.remove_prefix(sizeof word)) {
    std::memcpy(&word, bytes.data(), sizeof word);
    if (!isPlain(word)) return false;
  }
  word = everyByte(' ');
  std::memcpy(&word, bytes.data(), bytes.size());
  return isPlain(word);
}

/// What `jsonText` makes of the bytes, written out, without the quotes around it.
void appendInside(std::string_view bytes, std::string& text) {
  if (isPlain(bytes)) {
    text += bytes;
  } else {
    const std::string quoted = jsonText(std::string(bytes)).dump();
    text.append(quoted, 1, quoted.size() - 2);
  }
}

void appendText(std::string_view bytes, std::string& text) {
  text += '"';
  appendInside(bytes, text);
  text += '"';
}

struct TextField {
  std::string_view before;  ///< From the end of the value before to the beginning of this one.
  std::string UnitRecord::*value;
};

constexpr TextField TextFields[] = {
    {"{\"path\": \"", &UnitRecord::path},    {"\", \"name\": \"", &UnitRecord::name},
    {"\", \"type\": \"", &UnitRecord::type}, {"\", \"version\": \"", &UnitRecord::version},
    {"\", \"mode\": \"", &UnitRecord::mode}, {"\", \"locker\": \"", &UnitRecord::locker},
};

/// A unit on a line of its own. The library would take longer for many thousands than it takes to
/// list them.
void append(const UnitRecord& unit, std::string& text) {
  for (const TextField& field : TextFields) {
    text += field.before;
    appendInside(unit.*field.value, text);
  }
  if (!unit.state.empty()) {
    text += "\", \"state\": \"";
    appendInside(unit.state, text);
  }
  text += "\", \"result\": \"";
  text += resultWord(unit.result);
  text += "\", \"message\": \"";
  appendInside(unit.message, text);
  text += '"';
  if (unit.result == UnitResult::Planned) {
    text += ", \"plan\": " + jsonOf(unit.plan).dump();
  }
  text += '}';
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
