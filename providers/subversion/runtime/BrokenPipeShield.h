#pragma once

#ifndef _WIN32
#include <csignal>
#endif

namespace veldra::subversion {

/// While it lives, a server that goes away is an error and not the end of the program: APR writes
/// to sockets in the way that raises SIGPIPE. Only the calling thread is concerned, and the
/// program's own handling of the signal stays what it is.
class BrokenPipeShield {
 public:
  BrokenPipeShield();
  BrokenPipeShield(const BrokenPipeShield&) = delete;
  BrokenPipeShield& operator=(const BrokenPipeShield&) = delete;
  ~BrokenPipeShield();

#ifndef _WIN32
 private:
  sigset_t m_before;
  bool m_wasPending = false;
#endif
};

}  // namespace veldra::subversion
