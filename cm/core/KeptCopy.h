#pragma once

#include <string>

namespace veldra {

/// Which files an operation may overwrite, so that a copy of them is kept before its command runs.
enum class KeepRule { Nothing, WritableFiles, EveryFile };

/// The host's copy of one file, around the command that may overwrite it.
class KeptCopy {
 public:
  KeptCopy(KeepRule rule, std::string fullFileName, const char* operation);
  KeptCopy(const KeptCopy&) = delete;
  KeptCopy& operator=(const KeptCopy&) = delete;
  ~KeptCopy();

  /// Why the command must not run: no copy could be made. Empty when it may.
  const std::string& objection() const { return m_objection; }

 private:
  std::string m_file;
  bool m_isKept = false;
  std::string m_objection;
};

}  // namespace veldra
