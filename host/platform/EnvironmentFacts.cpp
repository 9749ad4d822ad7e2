#include "host/platform/Environment.h"
#include "host/platform/FileHead.h"

namespace veldra::host {

std::optional<std::int64_t> Environment::omGetFileTime(const std::string& path) {
  const FileFacts facts = readFileFacts(path);
  if (facts.state != FileFacts::State::Readable) return std::nullopt;
  return facts.written;
}

}  // namespace veldra::host
