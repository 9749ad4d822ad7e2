#include "host/resources/MessageCatalogue.h"

#include <charconv>
#include <cstdlib>
#include <initializer_list>

#include "host/model/PathNames.h"
#include "host/model/TomlSettings.h"

namespace veldra::host {
namespace {

constexpr char Section[] = "messages";

std::string fileOf(const std::string& root, const std::string& language) {
  return joinPath(joinPath(root, "resources"), "messages." + language + ".toml");
}

/// A code that may become part of a file name.
bool isLanguageCode(const std::string& code) {
  return !code.empty() && code.find_first_not_of(
                              "abcdefghijklmnopqrstuvwxyz"
                              "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-") == std::string::npos;
}

}  // namespace

const MessageCatalogue::Texts& MessageCatalogue::texts() const {
  Problems problems;
  std::call_once(m_isRead, [&] { problems = read(); });
  // Only now, because whoever is told may ask for a text.
  for (const Problem& problem : problems) m_report(problem);
  return m_texts;
}

Problems MessageCatalogue::read() const {
  Problems problems;
  add("en", problems);
  if (!isLanguageCode(m_language) || m_language == "en") return problems;
  const std::string general = m_language.substr(0, m_language.find('_'));
  if (general != "en") add(general, problems);
  if (general != m_language) add(m_language, problems);
  return problems;
}

void MessageCatalogue::add(const std::string& language, Problems& problems) const {
  for (auto& [place, value] : readTomlSettings(fileOf(m_root, language), problems).settings) {
    const auto& [section, name] = place;
    int id = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), id);
    if (section == Section && error == std::errc() && end == name.data() + name.size()) {
      m_texts[id] = value;
    }
  }
}

std::string MessageCatalogue::text(int id) const {
  const auto found = texts().find(id);
  return found == m_texts.end() ? std::string() : found->second;
}

std::string MessageCatalogue::format(int id, const std::vector<std::string>& values) const {
  const std::string pattern = text(id);
  std::string out;
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    const std::size_t place = pattern[at] == '%' && at + 1 < pattern.size()
                                  ? static_cast<std::size_t>(pattern[at + 1] - '1')
                                  : values.size();
    if (place < values.size()) {
      out += values[place];
      ++at;
    } else {
      out += pattern[at];
    }
  }
  return out;
}

namespace {
/// The first of the variables that is set and not empty.
std::string firstSet(std::initializer_list<const char*> variables) {
  for (const char* name : variables) {
    const char* const value = std::getenv(name);
    if (value && *value) return value;
  }
  return {};
}
}  // namespace

std::string userLanguage() {
  const std::string locale = firstSet({"LC_ALL", "LC_MESSAGES", "LANG"});
  const std::string code = locale.substr(0, locale.find_first_of(".@"));
  return code.empty() || code == "C" || code == "POSIX" ? "en" : code;
}

std::string userEncoding() {
  const std::string locale = firstSet({"LC_ALL", "LC_CTYPE", "LANG"});
  const std::size_t dot = locale.find('.');
  if (dot == std::string::npos) return {};
  return locale.substr(dot + 1, locale.find('@', dot) - dot - 1);
}

}  // namespace veldra::host
