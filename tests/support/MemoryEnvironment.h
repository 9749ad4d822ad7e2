#pragma once

#include <map>
#include <string>
#include <utility>

#include "cm/host/IEnvironment.h"
#include "tests/support/MemoryFiles.h"

namespace veldra::test {

/// Surroundings that a test sets as it likes. Nothing of the real process is read or changed.
class MemoryEnvironment : public IEnvironment {
 public:
  explicit MemoryEnvironment(MemoryFiles& files) : m_files(files) {}

  std::map<std::pair<std::string, std::string>, std::string> settings;
  std::string root = "/opt/veldra";
  bool rootKnown = true;
  char separator = '/';
  std::string time = "12:34:56";
  std::string date = "2001-02-03";
  std::string user = "ada";
  std::string currentDirectory = "/start";  ///< Empty: it cannot be had.
  std::string unenterableDirectory;         ///< Exists, but nobody may go there.
  bool diskFull = false;

  int omGetRoot(std::string& rootOut) override;
  int omGetEnvVar(const std::string& section, const std::string& name, std::string& value,
                  const std::string& defaultValue) override;
  std::string omGetTempDir() override { return "/tmp"; }
  char omPathSeparator() const override { return separator; }
  bool omIsAbsolutePath(const std::string& path) override;
  std::string omGetCurrentTime() override { return time; }
  std::string omGetCurrentDate() override { return date; }
  std::string omGetCurrentUser() override { return user; }
  bool omFileExist(const std::string& path) override {
    return m_files.find(path) != nullptr || m_files.isDirectory(path);
  }
  bool omFileExistsAndNonEmpty(const std::string& path) override {
    const MemoryFiles::File* const file = m_files.find(path);
    return file != nullptr && !file->content.empty();
  }
  bool createDirectory(const std::string& path) override {
    if (!diskFull) m_files.makeDirectory(path);
    return !diskFull;
  }
  bool omFileHasWritePermission(const std::string& path) override;
  std::optional<std::int64_t> omGetFileTime(const std::string& path) override {
    const MemoryFiles::File* const file = m_files.find(path);
    return file != nullptr ? std::optional(file->time) : std::nullopt;
  }
  bool isDirectory(const std::string& path, bool& exists) override;
  std::string omGetFullPathOfDirectory(const std::string& path, std::string& errorText) override;
  bool setCurrentDirectory(const std::string& path) override;
  std::string omGetErrorCodeString() override { return m_lastError; }
  std::string createTempFile(const std::string& content) override;
  void removeFile(const std::string& path) override { m_files.remove(path); }
  bool moveFile(const std::string& from, const std::string& to) override {
    return m_files.move(from, to);
  }

 private:
  MemoryFiles& m_files;
  std::string m_lastError;
  int m_tempFiles = 0;
};

}  // namespace veldra::test
