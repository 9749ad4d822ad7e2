#include "host/cli/manual/Manual.h"

#include <sstream>
#include <string_view>

namespace veldra::host::cli {

namespace {

std::vector<std::string> split(const std::string& text, char sign) {
  std::vector<std::string> parts;
  std::istringstream in(text);
  for (std::string part; std::getline(in, part, sign);) parts.push_back(part);
  return parts;
}

}  // namespace

std::vector<const OptionRow*> rowsOf(unsigned sets) {
  std::vector<const OptionRow*> rows;
  for (const OptionRow& row : optionTable()) {
    if ((row.sets & sets) != 0) rows.push_back(&row);
  }
  return rows;
}

std::vector<std::string> namesOf(const OptionRow& row) {
  return split(row.names, ',');
}

std::vector<std::string> wordsOf(const OptionRow& row) {
  const std::string value = row.value;
  return value.find('|') != std::string::npos ? split(value, '|') : std::vector<std::string>();
}

bool namesUnits(const OptionRow& row) {
  return std::string_view(row.value) == "UNIT";
}

}  // namespace veldra::host::cli
