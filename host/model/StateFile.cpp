#include "host/model/StateFile.h"

#include <cstdlib>

#include "host/model/PathNames.h"

namespace veldra::host {

std::string stateFile(const std::string& name) {
  std::string directory;
  if (const char* state = std::getenv("XDG_STATE_HOME")) directory = state;
  if (const char* home = std::getenv("HOME"); directory.empty() && home && *home) {
    directory = joinPath(joinPath(home, ".local"), "state");
  }
  if (directory.empty()) return {};
  return joinPath(joinPath(directory, "veldra-cm"), name);
}

}  // namespace veldra::host
