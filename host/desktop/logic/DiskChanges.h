#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "host/model/Project.h"

namespace veldra::host::desktop {

/// What happened to the files of a project since they were last looked at. Names are absolute.
struct DiskChange {
  std::vector<std::string> reload;    ///< Changed, and nothing unsaved stands against it.
  std::vector<std::string> conflict;  ///< Changed here and on the disk.
  std::vector<std::string> vanished;
  std::vector<std::string> mode;  ///< Only the write permission is another.
  bool isEmpty() const {
    return reload.empty() && conflict.empty() && vanished.empty() && mode.empty();
  }
};

/// Remembers how the files of a project looked, and tells what others have changed since.
class DiskChanges {
 public:
  /// From now on the files count as known as they are.
  void remember(const Project& project);
  /// The same for one of them; any other file is left out.
  void remember(const std::string& file);
  /// The differences, each told once.
  DiskChange look(const Project& project);

 private:
  struct Facts {
    bool exists = false;
    long long time = 0;
    unsigned long long size = 0;
    bool isWritable = false;
    bool operator==(const Facts&) const = default;
  };
  static Facts factsOf(const std::string& file);

  std::unordered_map<std::string, Facts> m_known;
};

}  // namespace veldra::host::desktop
