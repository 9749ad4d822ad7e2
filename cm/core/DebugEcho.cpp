#include "cm/core/DebugEcho.h"

#include <iostream>
#include <string>

#include "cm/core/CMOutputer.h"
#include "cm/host/IEnvironment.h"

namespace veldra {

bool isDebugEchoOn() {
  std::string value;
  return omGetEnvVar("General", "DEBUG_CM", value, "") == 1 && value == "TRUE";
}

void writeDebugEcho(std::initializer_list<std::string_view> pieces) {
  std::ostream* const window = getMainCMOutputer()();
  std::ostream& out = window != nullptr ? *window : std::cout;
  out << "+++ ";
  for (const std::string_view piece : pieces) out << piece;
  out.flush();
}

}  // namespace veldra
