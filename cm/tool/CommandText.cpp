#include "cm/tool/CommandText.h"

#include "cm/host/IEnvironment.h"
#include "cm/templates/KeywordScanner.h"

namespace veldra {

namespace {

bool hasSection(std::string_view text) {
  const std::size_t open = text.find('(');
  const std::size_t question = open == std::string_view::npos ? open : text.find('?', open);
  return question != std::string_view::npos && text.find(')', question) != std::string_view::npos;
}

}  // namespace

std::optional<std::string> unsafeInCommand(std::string_view text) {
  if (text.find('"') != std::string_view::npos) return "a double quote";
  if (text.find('>') != std::string_view::npos) return "the redirection sign >";
  if (text.find_first_of(std::string_view("\n\r", 2)) != std::string_view::npos) {
    return "a line end";
  }
  if (text.find('\0') != std::string_view::npos) return "a zero byte";
  if (hasSection(text)) return "a conditional section ( ? )";
  if (text.ends_with('\\')) return "a backslash at its end";
  KeywordScanner scanner(text);
  if (scanner.next()) return "the keyword " + scanner.reference();
  return std::nullopt;
}

std::optional<std::string> unsafeAsFileName(std::string_view path) {
  if (std::optional<std::string> reason = unsafeInCommand(path)) return reason;
  const char separator = omPathSeparator();
  const std::string_view name = path.substr(path.rfind(separator) + 1);
  if (name.find('\\') != std::string_view::npos) return "a backslash";
  return std::nullopt;
}

}  // namespace veldra
