#include "host/packs/PackCheck.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <system_error>
#include <utility>

#include "cm/host/IPN.h"
#include "host/model/PathNames.h"
#include "host/model/TomlSettings.h"
#include "host/packs/NearestName.h"
#include "host/packs/TemplateCheck.h"
#include "host/settings/KnownProperties.h"

namespace veldra::host {

namespace {

using Entry = TomlSettings::Entry;

/// One pack under examination.
class Check {
 public:
  Check(const std::string& file, const PackSurroundings& surroundings)
      : m_file(file), m_surroundings(surroundings) {}

  std::vector<PackMistake> run() {
    Problems problems;
    m_pack = readTomlSettings(m_file, problems);
    for (const Problem& problem : problems) add(0, {}, problem.what);
    learnNames();
    // What could not be read at all has said so.
    const bool isRead = problems.empty() || m_pack.pack || !m_pack.properties.empty();
    if (isRead) checkHead();
    for (const Entry& entry : m_pack.properties) checkEntry(entry);
    std::ranges::stable_sort(m_mistakes, {}, &PackMistake::line);
    return std::move(m_mistakes);
  }

 private:
  void add(std::size_t line, const std::string& property, std::string what,
           std::string nearest = {}) {
    m_mistakes.push_back({m_file, line, property, std::move(what), std::move(nearest)});
  }

  std::string packName() const { return m_pack.pack ? m_pack.pack->name : std::string(); }

  void learnNames() {
    for (const Entry& entry : m_pack.properties) {
      m_defined.insert(entry.key.name);
      for (std::string& keyword : keywordsIn(entry.value)) m_referred.insert(std::move(keyword));
    }
    for (const PropertyEntry& entry : m_surroundings.layers.entries()) {
      const bool isCommon = entry.key.subject == IPN::CM && entry.key.metaclass == IPN::General;
      if (isCommon) m_defined.insert(entry.key.name);
    }
  }

  void checkHead() {
    // What all tools have in common, or all providers.
    const bool isCommon = std::ranges::all_of(m_pack.properties, [](const Entry& entry) {
      return entry.key.metaclass == IPN::General || entry.key.metaclass == IPN::SCC;
    });
    if (packName().empty() && !(isCommon && !m_pack.pack && !m_pack.properties.empty())) {
      add(0, {}, "There is no table [pack] with the name of the tool.");
    }
  }

  void checkEntry(const Entry& entry) {
    if (entry.key.subject != IPN::CM) {
      return add(entry.line, entry.key.name,
                 "Nobody reads the subject \"" + entry.key.subject + "\".", IPN::CM);
    }
    const bool isOfPack = entry.key.metaclass == packName() || entry.key.metaclass == IPN::General;
    if (!isOfPack && !packName().empty()) {
      return add(entry.line, entry.key.name,
                 "It stands under \"" + entry.key.metaclass +
                     "\", but the properties of this pack are read under its name.",
                 packName());
    }
    const KnownProperty* const known = knownProperty(entry.key.name);
    if (known == nullptr && !m_referred.contains(entry.key.name)) {
      return add(entry.line, entry.key.name, "Nobody reads this property.",
                 nearestName(entry.key.name, propertyNames()));
    }
    checkValue(entry, known != nullptr ? known->kind : PropertyKind::Command);
  }

  void checkValue(const Entry& entry, PropertyKind kind) {
    switch (kind) {
      case PropertyKind::Command:
      case PropertyKind::Place:
        return checkTemplate(entry);
      case PropertyKind::Pattern:
        return checkPattern(entry, false);
      case PropertyKind::Extraction:
        return checkPattern(entry, true);
      case PropertyKind::Word:
        return checkWord(entry);
      case PropertyKind::Text:
        return;
    }
  }

  void checkTemplate(const Entry& entry) {
    if (const auto wrong = formMistake(entry.value)) add(entry.line, entry.key.name, *wrong);
    for (const std::string& keyword : keywordsIn(entry.value)) {
      if (m_defined.contains(keyword) || isArgumentKeyword(keyword)) continue;
      add(entry.line, entry.key.name, "Nothing answers to the keyword $" + keyword + ".",
          nearestName(keyword, keywordNames()));
    }
    checkHelpers(entry);
  }

  /// A template names its helpers below the installation root.
  void checkHelpers(const Entry& entry) {
    constexpr std::string_view Root = "$OMROOT/";
    const std::string& text = entry.value;
    for (std::size_t at = text.find(Root); at != std::string::npos; at = text.find(Root, at)) {
      at += Root.size();
      const std::size_t end = std::min(text.find_first_of("\" \t$", at), text.size());
      const std::string name = text.substr(at, end - at);
      if (end < text.size() && text[end] == '$') continue;
      std::error_code unknown;
      if (std::filesystem::exists(joinPath(m_surroundings.installationRoot, name), unknown)) {
        continue;
      }
      add(entry.line, entry.key.name, "The file $OMROOT/" + name + " does not exist.");
    }
  }

  void checkPattern(const Entry& entry, bool needsGroup) {
    if (entry.value.empty()) return;
    std::string error;
    if (m_surroundings.patterns.compile(entry.value, "i", error) == nullptr) {
      return add(entry.line, entry.key.name, "The pattern is not valid: " + error + ".");
    }
    // A reference to the first group is valid only where there is one.
    if (needsGroup &&
        m_surroundings.patterns.compile("(?:" + entry.value + "\n)|\\1", "i", error) == nullptr) {
      add(entry.line, entry.key.name,
          "The pattern has no group, so there is nothing to take out of what it finds. Put the "
          "part that is wanted into parentheses.");
    }
  }

  void checkWord(const Entry& entry) {
    const bool isNumber =
        std::ranges::all_of(entry.value, [](char c) { return c >= '0' && c <= '9'; });
    if (entry.key.name == IPN::CMChildThreadTimeOut && !isNumber) {
      add(entry.line, entry.key.name, "It is no number of milliseconds.");
    }
  }

  static std::vector<std::string> propertyNames() {
    std::vector<std::string> names;
    for (const KnownProperty& known : knownProperties()) names.emplace_back(known.name);
    return names;
  }

  std::vector<std::string> keywordNames() const {
    std::vector<std::string> names(m_defined.begin(), m_defined.end());
    for (const std::string_view keyword : argumentKeywords()) names.emplace_back(keyword);
    return names;
  }

  std::string m_file;
  const PackSurroundings& m_surroundings;
  TomlSettings m_pack;
  std::set<std::string> m_defined;   ///< Properties that a keyword may stand for.
  std::set<std::string> m_referred;  ///< Keywords that stand somewhere in the pack.
  std::vector<PackMistake> m_mistakes;
};

}  // namespace

std::vector<PackMistake> checkPack(const std::string& file, const PackSurroundings& surroundings) {
  std::error_code unknown;
  if (!std::filesystem::is_regular_file(file, unknown)) {
    return {{file, 0, {}, "There is no such file.", {}}};
  }
  return Check(file, surroundings).run();
}

std::string sentence(const PackMistake& mistake) {
  std::string text = mistake.file;
  if (mistake.line > 0) text += ':' + std::to_string(mistake.line);
  text += ": ";
  if (!mistake.property.empty()) text += mistake.property + ": ";
  text += mistake.what;
  if (!mistake.nearest.empty()) text += " Perhaps you mean " + mistake.nearest + ".";
  return text;
}

}  // namespace veldra::host
