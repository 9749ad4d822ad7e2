#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>

namespace veldra::host {

/// Copies of a file, or of all files of a folder and below, as long as this lives: they put back
/// what a command has spoilt. The records of CM tools are left out; they are the tool's own.
class KeptFiles {
 public:
  /// Copies now; `error` says why it was not possible, and is empty otherwise.
  KeptFiles(std::string path, std::string& error);
  KeptFiles(const KeptFiles&) = delete;
  KeptFiles& operator=(const KeptFiles&) = delete;
  ~KeptFiles();

  /// Makes every file that is missing or changed what it was, and takes away what stands for it
  /// below `other`. Nothing on success; otherwise which file could not be put back, and where its
  /// copy is, which then stays.
  [[nodiscard]] std::optional<std::string> restore(const std::string& other = {});
  /// Moves those of the files that are still there to `path`, unless there is one already.
  void moveOriginals(const std::string& path) const;
  /// Removes those of the files that are still there and that `mayGo` lets go, and the folders that
  /// are empty then.
  void removeOriginals(const std::function<bool(const std::string& file)>& mayGo) const;

 private:
  void keep(const std::string& file);

  std::string m_path;
  std::string m_folder;                         ///< Of the copies.
  std::map<std::string, std::string> m_copies;  ///< By the name below `m_path`.
  bool m_stays = false;
};

}  // namespace veldra::host
