#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "host/model/Problem.h"

namespace veldra::host {

/// The texts that the module shows, by number, from `resources/messages.<language>.toml` below the
/// installation root. What a language lacks is shown in English.
class MessageCatalogue {
 public:
  MessageCatalogue() = default;
  /// `language` is a code such as "en" or "de_DE"; of the latter, "de" is used when there is no
  /// file of the full code. Files that are not valid are reported in `problems` and skipped.
  MessageCatalogue(const std::string& installationRoot, const std::string& language,
                   Problems& problems);

  /// The text with its placeholders %1, %2, ...; empty for an unknown number.
  std::string text(int id) const;
  /// The same with the values in place of the placeholders.
  std::string format(int id, const std::vector<std::string>& values) const;
  std::size_t size() const { return m_texts.size(); }

 private:
  void add(const std::string& file, Problems& problems);

  std::unordered_map<int, std::string> m_texts;
};

/// The language of the process: LC_ALL, LC_MESSAGES or LANG without its encoding; "en" for none.
std::string userLanguage();

}  // namespace veldra::host
