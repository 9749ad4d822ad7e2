#include "tests/structure/ExportedSymbols.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace veldra::test {
namespace {

namespace fs = std::filesystem;

void readMarks(const fs::path& header, ExportMarks& marks) {
  static const std::regex aClass(R"(^\s*(?:class|struct)\s+VELDRA_CM_EXPORT\s+(\w+))");
  static const std::regex aFunction(R"(^\s*VELDRA_CM_EXPORT\s[^(]*?(\w+)\s*\()");
  std::ifstream stream(header);
  for (std::string line; std::getline(stream, line);) {
    std::smatch match;
    if (std::regex_search(line, match, aClass)) {
      marks.classes.insert(match[1]);
    } else if (std::regex_search(line, match, aFunction)) {
      marks.functions.insert(match[1]);
    }
  }
}

/// What an exported name belongs to: a class with everything in it, or a function.
struct Owner {
  std::string name;
  bool isFunction = false;
};

Owner ownerOf(const std::string& symbol) {
  static const std::regex pattern(
      R"(^(?:typeinfo for |typeinfo name for |vtable for |guard variable for )?)"
      R"(veldra::(\w+)(?:\[abi:\w+\])?(\(|::|$))");
  std::smatch match;
  if (!std::regex_search(symbol, match, pattern)) return {};
  return {match[1], match[2] == "("};
}

bool isMarked(const Owner& owner, const ExportMarks& marks) {
  return (owner.isFunction ? marks.functions : marks.classes).contains(owner.name);
}

std::string outputOf(const std::string& command) {
  FILE* const pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) throw std::runtime_error("cannot run: " + command);
  std::string output;
  std::array<char, 4096> piece;
  while (const std::size_t count = std::fread(piece.data(), 1, piece.size(), pipe))
    output.append(piece.data(), count);
  if (pclose(pipe) != 0) throw std::runtime_error("failed: " + command);
  return output;
}

}  // namespace

ExportMarks readExportMarks(const fs::path& folder) {
  ExportMarks marks;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder))
    if (entry.path().extension() == ".h") readMarks(entry.path(), marks);
  return marks;
}

std::vector<std::string> exportedNames(const fs::path& library) {
  const std::string command = "nm -DC --defined-only '" + library.string() + "'";
  static const std::regex pattern(R"(^[0-9a-f]* ([A-Za-z]) (.*)$)");
  std::vector<std::string> names;
  std::istringstream stream(outputOf(command));
  for (std::string line; std::getline(stream, line);) {
    std::smatch match;
    // Absolute symbols are the names of versions.
    if (std::regex_match(line, match, pattern) && match[1] != "A") names.push_back(match[2]);
  }
  return names;
}

std::vector<std::string> unmarkedNames(const std::vector<std::string>& names,
                                       const ExportMarks& marks) {
  std::vector<std::string> found;
  for (const std::string& name : names)
    if (!isMarked(ownerOf(name), marks)) found.push_back(name);
  return found;
}

std::vector<std::string> missingNames(const std::vector<std::string>& names,
                                      const ExportMarks& marks) {
  std::set<std::string> missing = marks.classes;
  missing.insert(marks.functions.begin(), marks.functions.end());
  for (const std::string& name : names) missing.erase(ownerOf(name).name);
  return {missing.begin(), missing.end()};
}

}  // namespace veldra::test
