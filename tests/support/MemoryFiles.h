#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>

namespace veldra::test {

/// Files and directories that exist nowhere but here. Paths are absolute; making a file makes its
/// directories.
class MemoryFiles {
 public:
  struct File {
    std::string content;
    bool writable = false;
    std::int64_t time = 1;
  };

  void write(const std::string& path, std::string content, bool writable = false);
  void remove(const std::string& path) { m_files.erase(path); }
  /// A directory takes along what is in it. False when there is nothing of that name, or something
  /// of the new one.
  bool move(const std::string& from, const std::string& to);
  void makeDirectory(const std::string& path);
  /// Names without a directory are meant in this one from now on.
  void enter(const std::string& path) { m_current = path; }

  /// Null when there is no such file. The pointer lives until the file is removed.
  File* find(const std::string& path);
  bool isDirectory(const std::string& path) const { return m_directories.contains(path); }
  const std::map<std::string, File>& all() const { return m_files; }

  /// Both kinds of separator, as paths out of archives have them.
  static std::string directoryOf(const std::string& path);
  static std::string nameOf(const std::string& path);

 private:
  std::string fullNameOf(const std::string& path) const;

  std::map<std::string, File> m_files;
  std::set<std::string> m_directories;
  std::string m_current;
};

}  // namespace veldra::test
