// Templates with arguments, properties and a comment of any content. Whatever they are, expansion
// ends, answers 0 or 1 and stays within its bounds.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "cm/core/CMArguments.h"
#include "cm/templates/CMProperty.h"
#include "cm/templates/ExpansionLimits.h"
#include "fuzz/FuzzHost.h"

namespace veldra::test {
namespace {

void expand(FuzzHost& host, FuzzInput input) {
  host.setProperty("A", input.piece());
  host.setProperty("B", input.piece());
  CMLabel label(input.piece());
  CMLog log(input.piece());
  const ArgumentList arguments{&label, nullptr, &log};
  const std::string text = input.piece();
  std::string out;
  std::string extra;
  const int result = CMProperty::Expand(text, arguments, out, extra);
  if ((result != 0 && result != 1) || out.size() > 2 * ExpansionLimits::Work) std::abort();
}

}  // namespace
}  // namespace veldra::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  veldra::test::FuzzHost host;
  veldra::test::expand(host, veldra::test::FuzzInput(data, size));
  return 0;
}
