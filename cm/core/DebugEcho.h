#pragma once

#include <initializer_list>
#include <string_view>

namespace veldra {

/// Whether the host setting DEBUG_CM of section General is exactly "TRUE".
bool isDebugEchoOn();

/// Writes "+++ " and the pieces to the CM output stream, or to standard output when there is none,
/// and flushes. The pieces carry their own line end. The caller asks `isDebugEchoOn` first.
void writeDebugEcho(std::initializer_list<std::string_view> pieces);

/// Both in one step.
inline void debugEcho(std::initializer_list<std::string_view> pieces) {
  if (isDebugEchoOn()) writeDebugEcho(pieces);
}

}  // namespace veldra
