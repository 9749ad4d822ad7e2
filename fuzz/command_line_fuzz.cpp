#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "host/platform/CommandLine.h"

/// What can be split can be joined, and splits into the same arguments again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace veldra::host;
  const auto arguments = splitCommandLine({reinterpret_cast<const char*>(data), size});
  if (!arguments) return 0;
  const auto again = splitCommandLine(joinCommandLine(*arguments));
  if (!again || *again != *arguments) std::abort();
  return 0;
}
