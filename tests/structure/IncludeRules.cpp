#include "tests/structure/IncludeRules.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <optional>
#include <regex>
#include <set>

namespace veldra::test {
namespace {

namespace fs = std::filesystem;

bool isSource(const fs::path& path) {
  return path.extension() == ".h" || path.extension() == ".cpp";
}

/// A quoted name counts from its file's folder first, then from the root, as the compiler has it.
std::string resolve(const fs::path& root, const std::string& file, const std::string& header) {
  for (const fs::path& base : {fs::path(file).parent_path(), fs::path()}) {
    const fs::path candidate = (base / header).lexically_normal();
    if (fs::is_regular_file(root / candidate)) return candidate.generic_string();
  }
  return {};
}

void readFile(const fs::path& root, const std::string& file, std::vector<Include>& includes) {
  static const std::regex pattern(R"re(^\s*#\s*include\s*(?:"([^"]*)"|<([^>]*)>|(\S+)))re");
  std::ifstream stream(root / file);
  int number = 0;
  for (std::string line; std::getline(stream, line);) {
    ++number;
    std::smatch match;
    if (!std::regex_search(line, match, pattern)) continue;
    Include include{file, number, match[1].matched ? match[1] : match[2], !match[1].matched, ""};
    if (match[3].matched) include.header = match[3];  // A macro: no rule can judge it.
    if (match[1].matched) include.resolved = resolve(root, file, include.header);
    includes.push_back(std::move(include));
  }
}

// --- what is allowed where ---

const std::set<std::string>& standardHeaders() {
  static const std::set<std::string> headers{"algorithm",
                                             "any",
                                             "array",
                                             "atomic",
                                             "barrier",
                                             "bit",
                                             "bitset",
                                             "cassert",
                                             "cctype",
                                             "cerrno",
                                             "cfenv",
                                             "cfloat",
                                             "charconv",
                                             "chrono",
                                             "cinttypes",
                                             "climits",
                                             "clocale",
                                             "cmath",
                                             "codecvt",
                                             "compare",
                                             "complex",
                                             "concepts",
                                             "condition_variable",
                                             "coroutine",
                                             "csetjmp",
                                             "csignal",
                                             "cstdarg",
                                             "cstddef",
                                             "cstdint",
                                             "cstdio",
                                             "cstdlib",
                                             "cstring",
                                             "ctime",
                                             "cwchar",
                                             "cwctype",
                                             "deque",
                                             "exception",
                                             "execution",
                                             "filesystem",
                                             "format",
                                             "forward_list",
                                             "fstream",
                                             "functional",
                                             "future",
                                             "initializer_list",
                                             "iomanip",
                                             "ios",
                                             "iosfwd",
                                             "iostream",
                                             "istream",
                                             "iterator",
                                             "latch",
                                             "limits",
                                             "list",
                                             "locale",
                                             "map",
                                             "memory",
                                             "memory_resource",
                                             "mutex",
                                             "new",
                                             "numbers",
                                             "numeric",
                                             "optional",
                                             "ostream",
                                             "queue",
                                             "random",
                                             "ranges",
                                             "ratio",
                                             "regex",
                                             "scoped_allocator",
                                             "semaphore",
                                             "set",
                                             "shared_mutex",
                                             "source_location",
                                             "span",
                                             "sstream",
                                             "stack",
                                             "stdexcept",
                                             "stop_token",
                                             "streambuf",
                                             "string",
                                             "string_view",
                                             "system_error",
                                             "thread",
                                             "tuple",
                                             "type_traits",
                                             "typeindex",
                                             "typeinfo",
                                             "unordered_map",
                                             "unordered_set",
                                             "utility",
                                             "valarray",
                                             "variant",
                                             "vector",
                                             "version"};
  return headers;
}

/// The libraries that the reference host is built on; what is not named here counts as the
/// operating system's.
bool isHostLibrary(const std::string& header) {
  static const std::regex pattern(R"(^(nlohmann/|toml\+\+/|CLI/|svn_|apr|Q[A-Z]|pcre2\.h$))");
  return std::regex_search(header, pattern);
}

bool isBelow(const std::string& file, const std::string& room) {
  return file.starts_with(room + '/');
}

/// Who may not include whom inside the module. The composition at the top of `cm` is in no room.
struct RoomRule {
  const char* room;
  std::vector<const char*> keepsOutOf;
};

const std::vector<RoomRule>& roomRules() {
  static const std::vector<RoomRule> rules{
      {"cm/host", {"cm/core", "cm/templates", "cm/tool", "cm/scc", "cm/ui"}},
      {"cm/core", {"cm/tool", "cm/scc", "cm/ui"}},
      {"cm/templates", {"cm/tool", "cm/scc", "cm/ui"}},
      {"cm/tool", {"cm/scc", "cm/ui"}},
      {"cm/scc", {"cm/tool", "cm/ui"}},
  };
  return rules;
}

using Reason = std::optional<std::string>;

Reason judgeAngled(const Include& include) {
  if (standardHeaders().contains(include.header)) return std::nullopt;
  const std::string& file = include.file;
  if (isBelow(file, "cm/ui")) {
    if (include.header.starts_with('Q')) return std::nullopt;
    return "the dialogs use the standard library and Qt only";
  }
  if (isBelow(file, "cm")) return "below cm/ui the module uses the standard library only";
  const bool isPlatform =
      isBelow(file, "host/platform/posix") || isBelow(file, "host/platform/win32");
  if (isPlatform || isHostLibrary(include.header)) return std::nullopt;
  return "operating-system headers stay in host/platform/posix and host/platform/win32";
}

Reason judgeQuoted(const Include& include) {
  if (include.resolved.empty()) return "there is no such file";
  if (!isBelow(include.file, "cm")) return std::nullopt;
  if (!isBelow(include.resolved, "cm")) return "the module includes nothing outside itself";
  for (const RoomRule& rule : roomRules()) {
    if (!isBelow(include.file, rule.room)) continue;
    for (const char* room : rule.keepsOutOf)
      if (isBelow(include.resolved, room)) return std::string(rule.room) + " keeps out of " + room;
  }
  return std::nullopt;
}

// --- circles ---

class CircleFinder {
 public:
  explicit CircleFinder(const std::vector<Include>& includes) {
    for (const Include& include : includes)
      if (!include.resolved.empty()) m_graph[include.file].insert(include.resolved);
  }
  std::vector<std::string> find() {
    for (const auto& [file, ignored] : m_graph) visit(file);
    return m_circles;
  }

 private:
  void visit(const std::string& file) {
    const auto open = std::find(m_path.begin(), m_path.end(), file);
    if (open != m_path.end()) {
      std::string circle;
      for (auto at = open; at != m_path.end(); ++at) circle += *at + " -> ";
      m_circles.push_back(circle + file);
      return;
    }
    if (!m_seen.insert(file).second) return;
    m_path.push_back(file);
    const auto next = m_graph.find(file);
    if (next != m_graph.end())
      for (const std::string& header : next->second) visit(header);
    m_path.pop_back();
  }

  std::map<std::string, std::set<std::string>> m_graph;
  std::set<std::string> m_seen;
  std::vector<std::string> m_path;
  std::vector<std::string> m_circles;
};

}  // namespace

std::vector<Include> readIncludes(const fs::path& root, const std::vector<std::string>& rooms) {
  std::vector<Include> includes;
  for (const std::string& room : rooms) {
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root / room))
      if (entry.is_regular_file() && isSource(entry.path()))
        readFile(root, entry.path().lexically_relative(root).generic_string(), includes);
  }
  return includes;
}

std::vector<std::string> forbiddenIncludes(const std::vector<Include>& includes) {
  std::vector<std::string> found;
  for (const Include& include : includes) {
    const Reason reason = include.angled ? judgeAngled(include) : judgeQuoted(include);
    if (reason)
      found.push_back(include.file + ':' + std::to_string(include.line) + " includes " +
                      include.header + ": " + *reason);
  }
  return found;
}

std::vector<std::string> includeCircles(const std::vector<Include>& includes) {
  return CircleFinder(includes).find();
}

}  // namespace veldra::test
