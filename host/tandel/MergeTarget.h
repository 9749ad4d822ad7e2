#pragma once

#include <map>
#include <optional>
#include <string>

#include "host/ReferenceHost.h"
#include "host/platform/Result.h"

namespace veldra::host::tandel {

/// The open project that merged files go back into.
class MergeTarget {
 public:
  /// Opens the project that was remembered for the identifier. `host` must outlive the object.
  MergeTarget(ReferenceHost& host, const std::string& projectIdentifier);

  /// Why nothing can be merged back, as a sentence; empty when it can.
  const std::string& problem() const { return m_problem; }

  /// The file of the project's unit that the first side is a copy of: the unit with the same
  /// identifier, or without one the only unit whose file has that name.
  Result<std::string> fileOf(const std::string& firstSide);
  /// Whether the file still holds what the first side was taken from, or what was written last.
  bool isAsExpected(const std::string& file, const std::string& firstSide) const;
  /// Writes a merged file in one step; what it replaces is kept among the project's copies. Nothing
  /// on success, otherwise a sentence; the file is then as it was.
  [[nodiscard]] std::optional<std::string> write(const std::string& file, const std::string& bytes);

 private:
  ReferenceHost& m_host;
  std::string m_problem;
  std::map<std::string, std::string> m_written;  ///< What was written, by its file.
};

/// Writes a merged file that belongs to no project; what it replaces stays beside it as "FILE.orig"
/// unless there is such a file already. As above.
[[nodiscard]] std::optional<std::string> writeWithCopy(const std::string& file,
                                                       const std::string& bytes);

}  // namespace veldra::host::tandel
