#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "tests/live/Sandbox.h"

namespace veldra::live {

/// A port of this machine that nobody listens on.
int freePort();

/// A server that a test starts on this machine; it ends with the object, or with the test program.
class Server {
 public:
  /// Runs the command in the sandbox and waits until it listens on the port.
  Server(const Sandbox& sandbox, const std::vector<std::string>& command, int port);
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;
  ~Server();

  bool isListening() const { return m_isListening; }

 private:
  pid_t m_process = -1;
  bool m_isListening = false;
};

}  // namespace veldra::live
