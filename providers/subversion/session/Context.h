#pragma once

#include <memory>
#include <mutex>

#include "cm/scc/interface/SccTypes.h"
#include "providers/subversion/session/Project.h"

namespace veldra::subversion {

/// What `SccInitialize` makes: one context, with at most one open project. The calls on one context
/// follow each other; those on different contexts do not wait for one another.
class Context {
 public:
  /// A new context, by the pointer that the program keeps.
  static scc::LPVOID create();
  /// The context of that pointer, or null when there is no such context (any more).
  static std::shared_ptr<Context> find(scc::LPVOID pointer);
  /// False when there is no such context.
  static bool destroy(scc::LPVOID pointer);

  std::mutex& mutex() { return m_mutex; }

  std::unique_ptr<Project> project;  ///< Null when none is open.
  bool hasCancelMode = false;
  std::string newRepository;  ///< One that was made for the next project, to be told of.

 private:
  std::mutex m_mutex;
};

}  // namespace veldra::subversion
