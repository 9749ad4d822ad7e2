#pragma once

#include <sys/types.h>

namespace veldra::host {

/// What a child process is started with. Nothing is owned.
struct ChildStart {
  const char* program;
  char* const* arguments;
  char* const* environment;
  int output;       ///< Becomes its standard output; above 2.
  int errors;       ///< Becomes its standard error; above 2.
  bool ownSession;  ///< A session of its own, not only a process group.
};

/// Starts the child: its input is empty, its two outputs are the given ones, it has no other file,
/// and every signal has its default action. Nothing on success; otherwise the error number.
///
/// The child borrows this process's memory until it runs its program. That is what shells do, and
/// it costs noticeably less than the library's call for the same.
[[nodiscard]] int startChild(const ChildStart& start, pid_t& process);

}  // namespace veldra::host
