#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "cm/host/IKeptCopies.h"

namespace veldra::host {

/// One copy of a file as it was before a command.
struct KeptCopy {
  std::string id;          ///< Names the copy; later ones come later in the alphabet.
  std::string path;        ///< The file, relative to the project; in full for one outside of it.
  std::string time;        ///< "YYYY-MM-DD HH:MM:SS", local time.
  std::string operation;   ///< What the command was for, for example "undo check out".
  std::uint64_t size = 0;  ///< In bytes.
};

/// How much is kept.
struct KeptLimits {
  std::uint64_t bytes = std::uint64_t{256} << 20;
  unsigned days = 30;
};

/// The copies of a project, in its hidden folder ".veldra/kept": a folder per copy, and in it the
/// file under its own path, so that everything can also be found without this program.
///
/// Old copies go when the first one of a run is added: those above the age, then the oldest until
/// the rest fits. What the present run kept stays in any case.
class KeptCopies : public IKeptCopies {
 public:
  /// Answers with the folder of the open project, empty for none.
  using ProjectFolder = std::function<std::string()>;

  KeptCopies(ProjectFolder projectFolder, KeptLimits limits);

  bool keep(const std::string& fullFileName, const std::string& operation,
            std::string& reason) override;
  void settle(const std::string& fullFileName) override;

  /// Every copy, the newest first.
  std::vector<KeptCopy> list() const;
  /// The copy's own file.
  std::string fileOf(const KeptCopy& copy) const;
  /// The file that it is a copy of, in full.
  std::string originalOf(const KeptCopy& copy) const;
  /// Why the file could not be put back now, or nothing; see `restore`.
  std::optional<std::string> objectionTo(const KeptCopy& copy, bool force) const;
  /// Puts the file back as it was; what is there now is kept first. Nothing on success, otherwise a
  /// sentence that says why not; a file that is read-only is replaced only with `force`.
  [[nodiscard]] std::optional<std::string> restore(const KeptCopy& copy, bool force);

 private:
  std::string store() const;
  std::string copyFile(const std::string& from, const std::string& operation, std::string& id);
  void prune();

  ProjectFolder m_projectFolder;
  KeptLimits m_limits;
  bool m_isPruned = false;
  std::map<std::string, std::string> m_open;  ///< From a file to the copy that awaits its end.
  std::set<std::string> m_own;
};

}  // namespace veldra::host
