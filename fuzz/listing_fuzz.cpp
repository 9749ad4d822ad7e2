// Answers of a list-archive command, with the patterns of a tool of the usual kind and now and then
// one out of the input. Items come in the order of the text, each with a name that stands in it.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMArchiveItemList.h"
#include "cm/host/IPN.h"
#include "cm/tool/ArchiveListing.h"
#include "fuzz/FuzzHost.h"

namespace veldra::test {
namespace {

void usePatterns(FuzzHost& host, FuzzInput& input) {
  const std::string own = input.piece();
  host.setProperty(IPN::CMMultiRecordDelimiter, own.empty() ? "\\n" : own);
  host.setProperty(IPN::CMListArchiveItsWorkingFile, "^\\s*(\\S[^|]*)");
  host.setProperty(IPN::CMListArchiveItsVersion, "\\|([0-9.]*)\\|");
  host.setProperty(IPN::CMListArchiveItsMode, "(?:(rw)|ro)");
  host.setProperty(IPN::CMListArchiveItsLocker, "locked by (\\S*)");
}

void list(FuzzHost& host, FuzzInput input) {
  usePatterns(host, input);
  const std::string text = input.piece();
  CMArchiveItemList items;
  const int status = ArchiveListing().read(text, 1, items);
  if (status != 0 && status != 1) std::abort();
  for (CMArchiveItem* item : items) {
    const int mode = ListedMode::of(*item);
    if (mode < ListedMode::Unknown || mode > ListedMode::ReadWrite) std::abort();
    if (text.find(item->getFileNameWithPath()) == std::string::npos) std::abort();
    (void)item->getNameNShortPath(true);
    (void)item->getFullUnitFileName();
    delete item;
  }
}

}  // namespace
}  // namespace veldra::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  veldra::test::FuzzHost host;
  veldra::test::list(host, veldra::test::FuzzInput(data, size));
  return 0;
}
