#pragma once

#include <functional>
#include <optional>
#include <string>

#include "cm/host/IEnvironment.h"

namespace veldra::host {

/// The installation root, below which `packs` and `resources` lie: the variable VELDRA_ROOT, or
/// `../share/veldra-cm` beside the directory of the running program. Empty when there is neither.
[[nodiscard]] std::string findInstallationRoot();

/// Why a directory cannot be had, for the user; the empty path is the current one.
[[nodiscard]] std::string unusableDirectory(const std::string& path, int error);

/// Files, settings and the surroundings of this process.
class Environment : public IEnvironment {
 public:
  /// Answers for a setting of a section, or nothing when it does not exist.
  using Settings = std::function<std::optional<std::string>(const std::string& section,
                                                            const std::string& name)>;

  /// An empty root counts as unknown. `settings` may be empty.
  explicit Environment(std::string installationRoot, Settings settings = {});

  int omGetRoot(std::string& root) override;
  /// A variable VELDRA_<NAME> of the process (the setting's name in capitals, for example
  /// VELDRA_DEBUG_CM) wins over the setting of that name in the section "General".
  int omGetEnvVar(const std::string& section, const std::string& name, std::string& value,
                  const std::string& defaultValue) override;

  /// TMPDIR when it names an existing directory absolutely, otherwise the system's. Without a
  /// separator at its end.
  std::string omGetTempDir() override;
  char omPathSeparator() const override;
  bool omIsAbsolutePath(const std::string& path) override;

  std::string omGetCurrentTime() override;  ///< "HH:MM:SS", local time.
  std::string omGetCurrentDate() override;  ///< "YYYY-MM-DD", local time.
  std::string omGetCurrentUser() override;

  bool omFileExist(const std::string& path) override;
  bool omFileExistsAndNonEmpty(const std::string& path) override;
  bool omFileHasWritePermission(const std::string& path) override;
  std::optional<std::int64_t> omGetFileTime(const std::string& path) override;
  bool isDirectory(const std::string& path, bool& exists) override;
  std::string omGetFullPathOfDirectory(const std::string& path, std::string& errorText) override;
  bool createDirectory(const std::string& path) override;
  bool setCurrentDirectory(const std::string& path) override;
  std::string omGetErrorCodeString() override;

  /// The file is named "veldra-cm-<process>-<unique>" and readable by its owner alone.
  std::string createTempFile(const std::string& content) override;
  void removeFile(const std::string& path) override;
  bool moveFile(const std::string& from, const std::string& to) override;

 private:
  std::string m_root;
  Settings m_settings;
  /// The system's number of the last error, 0 before the first.
  int m_lastError = 0;
};

}  // namespace veldra::host
