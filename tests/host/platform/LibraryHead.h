#pragma once

#include <string>

namespace veldra::host {

/// The beginning of a library of Windows, up to the number of the processor that it is for.
inline std::string libraryHead(unsigned machine) {
  std::string head(0x80, '\0');
  head.replace(0, 2, "MZ");
  head[0x3C] = '\x7A';
  head.resize(0x7A);
  head.append("PE\0\0", 4);
  head += static_cast<char>(machine & 0xFFU);
  head += static_cast<char>(machine >> 8U);
  return head;
}

}  // namespace veldra::host
