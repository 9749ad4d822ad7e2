#include "host/cli/printing/Listing.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "host/cli/printing/BytesAsText.h"
#include "host/platform/CommandLine.h"

namespace veldra::host::cli {

namespace {

std::vector<std::string> rowOf(const UnitRecord& unit) {
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

void printTable(const std::vector<std::vector<std::string>>& rows, std::ostream& out) {
  std::vector<std::size_t> widths;
  for (const auto& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], widthOf(row[i]));
  }
  std::string text;
  for (const auto& row : rows) {
    for (std::size_t i = 0; i + 1 < row.size(); ++i) {
      text += row[i];
      text.append(widths[i] - widthOf(row[i]) + 2, ' ');
    }
    if (!row.empty()) text += row.back();
    text += '\n';
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

void printListing(const std::vector<UnitRecord>& units, std::ostream& out) {
  const bool hasState =
      std::ranges::any_of(units, [](const UnitRecord& unit) { return !unit.state.empty(); });
  std::vector<std::vector<std::string>> rows{
      {"STATE", "MODE", "VERSION", "LOCKER", "TYPE", "NAME", "PATH"}};
  rows.reserve(units.size() + 1);
  for (const UnitRecord& unit : units) rows.push_back(rowOf(unit));
  if (!hasState) {
    for (auto& row : rows) row.erase(row.begin());
  }
  printTable(rows, out);
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

}  // namespace veldra::host::cli
