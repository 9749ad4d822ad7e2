// The reader of project files: whatever the bytes are, it answers with a project or a problem; what
// it accepts keeps its meaning when it is brought up to date and written.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "host/model/ProjectFile.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

std::vector<veldra::host::PropertyEntry> entriesOf(const veldra::host::ProjectFile& file) {
  std::vector<veldra::host::PropertyEntry> entries;
  for (const auto& property : file.properties) {
    entries.push_back({property.key, property.value, veldra::host::Origin::Project, {}});
  }
  return entries;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace veldra::host;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  Problem fatal;
  Problems problems;
  auto file = parseProjectFile(bytes, fatal, problems);
  if (!file) {
    require(!fatal.what.empty() && !fatal.wayOut.empty());
    return 0;
  }
  const std::vector<PropertyEntry> entries = entriesOf(*file);
  updateProjectText(*file, entries);
  const auto again = parseProjectFile(writeModelText(file->text), fatal, problems);
  require(again.has_value());
  require(again->name == file->name && again->controlled == file->controlled);
  require(again->stubs == file->stubs && again->references == file->references);
  require(again->archives == file->archives && again->properties.size() == entries.size());
  return 0;
}
