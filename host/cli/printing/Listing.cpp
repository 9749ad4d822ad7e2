#include "host/cli/printing/Listing.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "host/cli/printing/BytesAsText.h"
#include "host/platform/CommandLine.h"

namespace veldra::host::cli {

namespace {

constexpr std::size_t ColumnCount = 7;
using Row = std::array<std::string, ColumnCount>;

Row rowOf(const UnitRecord& unit) {
  return {unit.state,
          unit.mode,
          textForPeople(unit.version),
          textForPeople(unit.locker),
          textForPeople(unit.type),
          textForPeople(unit.name),
          textForPeople(unit.path)};
}

/// How many columns a text takes on a terminal: a character takes one, however many bytes it has.
std::size_t widthOf(std::string_view text) {
  return static_cast<std::size_t>(std::ranges::count_if(
      text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

/// The first line with a mark, the others below it.
void printIndented(std::string_view mark, std::string_view text, std::ostream& out) {
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t end = std::min(text.find('\n', from), text.size());
    out << "    " << mark << text.substr(from, end - from) << '\n';
    from = end + 1;
  }
}

}  // namespace

void printListing(const std::vector<UnitRecord>& units, std::ostream& out) {
  std::vector<Row> rows = {{"STATE", "MODE", "VERSION", "LOCKER", "TYPE", "NAME", "PATH"}};
  rows.reserve(units.size() + 1);
  for (const UnitRecord& unit : units) rows.push_back(rowOf(unit));
  std::array<std::size_t, ColumnCount> widths{};
  for (const Row& row : rows) {
    for (std::size_t i = 0; i < ColumnCount; ++i) widths[i] = std::max(widths[i], widthOf(row[i]));
  }
  const bool hasState =
      std::ranges::any_of(units, [](const UnitRecord& unit) { return !unit.state.empty(); });
  std::string text;
  for (const Row& row : rows) {
    for (std::size_t i = hasState ? 0 : 1; i + 1 < ColumnCount; ++i) {
      text += row[i];
      text.append(widths[i] - widthOf(row[i]) + 2, ' ');
    }
    text += row.back() + '\n';
  }
  out << text;
}

void printProperties(const UnitRecord& unit, std::ostream& out) {
  const std::pair<const char*, const std::string&> lines[] = {
      {"name     ", unit.name},    {"type     ", unit.type},   {"state    ", unit.state},
      {"version  ", unit.version}, {"locker   ", unit.locker}, {"mode     ", unit.mode},
  };
  out << textForPeople(unit.path) << '\n';
  for (const auto& [label, value] : lines) printIndented(label, textForPeople(value), out);
}

void printPlan(const UnitRecord& unit, const char* action, std::ostream& out) {
  out << "would " << action << "  " << textForPeople(unit.path) << '\n';
  for (const std::vector<std::string>& command : unit.plan.commands) {
    printIndented("command  ", textForPeople(joinCommandLine(command)), out);
  }
  printIndented("file     ", textForPeople(unit.plan.file), out);
  printIndented("lock     ", unit.plan.lock, out);
}

void printRemark(const std::string& remark, std::ostream& out) {
  printIndented("", linesForPeople(remark), out);
}

void printFailure(const UnitRecord& unit, std::ostream& out) {
  out << resultWord(unit.result) << "  " << textForPeople(unit.path) << '\n';
  printIndented("", linesForPeople(unit.message), out);
}

}  // namespace veldra::host::cli
