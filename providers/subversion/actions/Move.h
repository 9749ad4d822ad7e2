#pragma once

#include <string>
#include <utility>
#include <vector>

#include "providers/subversion/session/FileNames.h"
#include "providers/subversion/session/Project.h"

namespace veldra::subversion {

/// A file or directory that gets another name in the store while the disk stays as the program has
/// it: under the old name, or under the new one when the program was quicker.
///
/// libsvn moves what is on the disk along with what it knows, and commits what it moves. So files
/// that are checked out and have changes are put aside, the versions of the store take their places
/// for the move, and at the end the changes lie where they lay. What was checked out stays so.
class Move {
 public:
  Move(Project& project, std::string from, std::string to);
  Move(const Move&) = delete;
  Move& operator=(const Move&) = delete;
  /// Undoes what was not committed.
  ~Move();

  /// Returns the revision. Throws when the store refuses; everything is then as it was.
  svn_revnum_t commit();

 private:
  void prepare();
  void dropSchedule();
  void prepareDirectory();
  void putAside(const FileNames& files);
  void putBack();
  void holdAgain();
  void leaveDiskAsItWas();

  Project& m_project;
  std::string m_from;
  std::string m_to;
  std::vector<std::pair<std::string, std::string>> m_aside;  ///< Changed files, where they wait.
  FileNames m_held;                                          ///< What is checked out, by old names.
  bool m_wasRenamed = false;  ///< The program has renamed it already.
  bool m_isScheduled = false;
  FileNames m_newDirectories;
};

}  // namespace veldra::subversion
