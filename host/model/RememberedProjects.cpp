#include "host/model/RememberedProjects.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <vector>

#include "host/model/StateFile.h"
#include "host/platform/AtomicFile.h"

namespace veldra::host {

namespace {

constexpr char FileName[] = "projects";
constexpr std::size_t SizeLimit = std::size_t{1} << 20;
constexpr std::size_t Most = 200;

struct Entry {
  std::string identifier;
  std::string file;
};

std::string asInCommands(std::string identifier) {
  std::ranges::replace(identifier, ' ', '_');
  return identifier;
}

/// The newest first: a line a project, its identifier, a tab, its file.
std::vector<Entry> readEntries() {
  std::vector<Entry> entries;
  const Result<std::string> bytes = readFile(stateFile(FileName), SizeLimit);
  if (!bytes) return entries;
  std::string_view rest = *bytes;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    const std::size_t tab = line.find('\t');
    if (tab == std::string_view::npos) continue;
    entries.push_back({std::string(line.substr(0, tab)), std::string(line.substr(tab + 1))});
  }
  return entries;
}

bool canStandInALine(const std::string& text) {
  return !text.empty() && text.find_first_of("\n\t") == std::string::npos;
}

}  // namespace

void rememberProject(const std::string& identifier, const std::string& projectFile) {
  const std::string file = stateFile(FileName);
  if (file.empty() || !canStandInALine(identifier) || !canStandInALine(projectFile)) return;
  std::vector<Entry> entries = readEntries();
  const Entry wanted{asInCommands(identifier), projectFile};
  if (!entries.empty() && entries.front().identifier == wanted.identifier &&
      entries.front().file == wanted.file) {
    return;
  }
  std::erase_if(entries, [&](const Entry& one) { return one.identifier == wanted.identifier; });
  entries.insert(entries.begin(), wanted);
  if (entries.size() > Most) entries.resize(Most);
  std::string text;
  for (const Entry& one : entries) text += one.identifier + '\t' + one.file + '\n';
  std::error_code ignored;
  std::filesystem::create_directories(std::filesystem::path(file).parent_path(), ignored);
  (void)writeFileAtomically(file, text);
}

std::string rememberedProject(const std::string& identifier) {
  for (const Entry& one : readEntries()) {
    if (one.identifier == asInCommands(identifier)) return one.file;
  }
  return {};
}

}  // namespace veldra::host
