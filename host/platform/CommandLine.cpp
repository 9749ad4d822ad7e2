#include "host/platform/CommandLine.h"

namespace veldra::host {

namespace {

constexpr std::string_view Separators = " \t";

/// Walks over one command line and takes the arguments off its front.
class Splitter {
 public:
  explicit Splitter(std::string_view line) : m_line(line) {}

  /// Moves to the next argument; false when only separators were left.
  bool findNext() {
    m_at = m_line.find_first_not_of(Separators, m_at);
    return m_at != std::string_view::npos;
  }

  std::string takeArgument() {
    std::string argument;
    while (m_at < m_line.size() && (m_inQuotes || !isSeparator(m_line[m_at]))) takePiece(argument);
    return argument;
  }

  bool inQuotes() const { return m_inQuotes; }
  std::size_t quoteStart() const { return m_quoteStart; }

 private:
  static bool isSeparator(char c) { return Separators.find(c) != std::string_view::npos; }

  void takePiece(std::string& argument) {
    if (m_line[m_at] == '\\') {
      takeBackslashes(argument);
    } else if (m_line[m_at] == '"') {
      m_inQuotes = !m_inQuotes;
      m_quoteStart = m_at++;
    } else {
      argument += m_line[m_at++];
    }
  }

  void takeBackslashes(std::string& argument) {
    const std::size_t end = std::min(m_line.find_first_not_of('\\', m_at), m_line.size());
    const std::size_t count = end - m_at;
    m_at = end;
    if (end == m_line.size() || m_line[end] != '"') {
      argument.append(count, '\\');
      return;
    }
    argument.append(count / 2, '\\');
    if (count % 2 == 0) return;
    argument += '"';
    ++m_at;
  }

  std::string_view m_line;
  std::size_t m_at = 0;
  std::size_t m_quoteStart = 0;
  bool m_inQuotes = false;
};

}  // namespace

Result<std::vector<std::string>> splitCommandLine(std::string_view commandLine) {
  using Arguments = Result<std::vector<std::string>>;
  if (const auto nul = commandLine.find('\0'); nul != std::string_view::npos) {
    return Arguments::failure("The command line has a NUL byte at position " +
                              std::to_string(nul + 1) + ", which no argument can carry.");
  }
  std::vector<std::string> arguments;
  Splitter splitter(commandLine);
  while (splitter.findNext()) arguments.push_back(splitter.takeArgument());
  if (splitter.inQuotes()) {
    return Arguments::failure("The double quote at position " +
                              std::to_string(splitter.quoteStart() + 1) +
                              " of the command line is never closed.");
  }
  return arguments;
}

std::string quotedArgument(std::string_view argument) {
  std::string quoted = "\"";
  std::size_t backslashes = 0;
  for (const char c : argument) {
    if (c == '"') quoted.append(backslashes + 1, '\\');
    backslashes = c == '\\' ? backslashes + 1 : 0;
    quoted += c;
  }
  quoted.append(backslashes, '\\');
  return quoted += '"';
}

std::string joinCommandLine(const std::vector<std::string>& arguments) {
  std::string line;
  for (const std::string& argument : arguments) {
    if (!line.empty()) line += ' ';
    const bool isPlain = !argument.empty() && argument.find_first_of(" \t\"") == std::string::npos;
    line += isPlain ? argument : quotedArgument(argument);
  }
  return line;
}

}  // namespace veldra::host
