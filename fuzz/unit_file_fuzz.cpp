// The reader of unit files: whatever the bytes are, it answers with a content or a problem, and
// what it accepts it can write and read again as the same.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "host/model/CMHeader.h"
#include "host/model/ModelText.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace veldra::host;
  const std::string_view text(reinterpret_cast<const char*>(data), size);

  const ModelHead head = readModelHead(text, true);
  require(head.state != ModelHead::State::Short);
  require((head.state == ModelHead::State::Broken) == !head.problem.what.empty());
  (void)readModelHead(text, false);

  Problem problem;
  if (const auto model = parseModelText(text, problem)) {
    const std::string written = writeModelText(*model);
    const auto again = parseModelText(written, problem);
    require(again && again->body == model->body && again->header == model->header);
    require(writeModelText(*again) == written);
  } else {
    require(!problem.what.empty() && !problem.wayOut.empty());
  }

  const std::string plain = withoutExpansions(text);
  require(withoutExpansions(plain) == plain);
  (void)keywordLines(text);
  return 0;
}
