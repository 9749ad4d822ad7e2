#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/compare/FileComparison.h"
#include "host/compare/FolderComparison.h"

namespace veldra::host::tandel {

/// The files that are compared, and which side was chosen for each of their differences. What a
/// window shows and changes, without the window.
class CompareSession {
 public:
  using Side = compare::Side;

  explicit CompareSession(std::vector<compare::FilePair> files) : m_files(std::move(files)) {}

  const std::vector<compare::FilePair>& files() const { return m_files; }
  bool isSame() const;
  /// The files from `from` on, round the end, of which the next one differs; nothing when none
  /// does.
  std::optional<std::size_t> nextDifferent(std::size_t from) const;

  /// What differs in a file; read when it is first asked for. A file that a side lacks counts as
  /// empty there. Null, with a sentence, when it cannot be read.
  const compare::FileComparison* comparison(std::size_t file, std::string& problem);

  Side choice(std::size_t file, std::size_t difference) const;
  void choose(std::size_t file, std::size_t difference, Side side);
  void chooseAll(std::size_t file, Side side);
  /// Whether a choice has been made that is not saved.
  bool isModified(std::size_t file) const;
  bool isAnyModified() const;
  /// The bytes that the choices make of a file that has been read.
  std::string merged(std::size_t file) const;
  void markSaved(std::size_t file);

 private:
  struct Opened {
    explicit Opened(compare::FileComparison read)
        : comparison(std::move(read)), choices(comparison.size(), Side::First), saved(choices) {}
    compare::FileComparison comparison;
    std::vector<Side> choices;
    std::vector<Side> saved;
  };

  std::vector<compare::FilePair> m_files;
  std::map<std::size_t, std::unique_ptr<Opened>> m_opened;
};

}  // namespace veldra::host::tandel
