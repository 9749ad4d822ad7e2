#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "host/model/Problem.h"

namespace veldra::host {

/// The texts that the module shows, by number, from `resources/messages.<language>.toml` below the
/// installation root. What a language lacks is shown in English.
class MessageCatalogue {
 public:
  using Report = std::function<void(const Problem&)>;

  /// `language` is a code such as "en" or "de_DE"; of the latter, "de" is used when there is no
  /// file of the full code. The files are read when the first text is asked for: many a command
  /// shows none. Those that are not valid are reported then, and skipped.
  MessageCatalogue(std::string installationRoot, std::string language, Report report)
      : m_root(std::move(installationRoot)),
        m_language(std::move(language)),
        m_report(std::move(report)) {}

  /// The text with its placeholders %1, %2, ...; empty for an unknown number.
  std::string text(int id) const;
  /// The same with the values in place of the placeholders.
  std::string format(int id, const std::vector<std::string>& values) const;
  std::size_t size() const { return texts().size(); }

 private:
  using Texts = std::unordered_map<int, std::string>;
  const Texts& texts() const;
  Problems read() const;
  void add(const std::string& language, Problems& problems) const;

  std::string m_root;
  std::string m_language;
  Report m_report;
  mutable std::once_flag m_isRead;
  mutable Texts m_texts;
};

/// The language of the process: LC_ALL, LC_MESSAGES or LANG without its encoding; "en" for none.
std::string userLanguage();
/// The encoding of the process: what stands behind the language in LC_ALL, LC_CTYPE or LANG; empty
/// for none.
std::string userEncoding();

}  // namespace veldra::host
