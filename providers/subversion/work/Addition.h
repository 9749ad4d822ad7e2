#pragma once

#include "providers/subversion/session/FileNames.h"
#include "providers/subversion/session/Project.h"

namespace veldra::subversion {

/// Files on their way into the store, with the directories above them that it lacks. What is not
/// committed when this object goes is no longer scheduled; the files stay as they are.
class Addition {
 public:
  explicit Addition(Project& project) : m_project(project) {}
  Addition(const Addition&) = delete;
  Addition& operator=(const Addition&) = delete;
  ~Addition();

  /// `flags` are those of `SccFileType`.
  void schedule(const std::string& file, scc::LONG flags);
  svn_revnum_t commit(const char* comment);

 private:
  void setProperties(const std::string& file, scc::LONG flags);
  void setProperty(const std::string& file, const char* name, const char* value);

  Project& m_project;
  FileNames m_scheduled;
};

}  // namespace veldra::subversion
