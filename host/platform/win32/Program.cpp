#include "host/platform/Program.h"

#include <io.h>
#include <stdlib.h>

namespace veldra::host {

bool isTerminal(StandardStream stream) {
  return _isatty(static_cast<int>(stream)) != 0;
}

void setVariable(const char* name, const char* value) {
  _putenv_s(name, value);
}

}  // namespace veldra::host
