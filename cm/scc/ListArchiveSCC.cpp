#include "cm/scc/ListArchiveSCC.h"

#include <memory>
#include <string>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMTraitFacade.h"
#include "cm/scc/ArchiveFiles.h"
#include "cm/scc/FileStatus.h"
#include "cm/scc/ProviderUnit.h"
#include "cm/scc/pvContextStruct.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

std::unique_ptr<CMArchiveItem> itemOf(const std::string& file, const UnitStatus& status,
                                      const CMHeaderReader& headers) {
  const IUnit* const unit = IUnit::getByFile(file);
  const bool isKnown = status.state != scc::SCC_STATUS_INVALID;
  const bool isMine = isKnown && (status.state & scc::SCC_STATUS_CHECKEDOUT) != 0;
  const std::string locker = status.holder.empty() ? headers.getLocker(unit) : status.holder;
  std::string words;
  if (isKnown) {
    words = CMStatus::checkedOutLabel(status.state);
    if (words.empty()) words = CMStatus::controlledLabel(status.state);
  }
  return std::make_unique<CMArchiveItem>(
      file, headers.getVersion(unit),
      ListedMode::store(isMine ? ListedMode::ReadWrite : ListedMode::ReadOnly), locker, words);
}

}  // namespace

int ListArchiveSCC::operator()(CMArchiveItemList& items, ArgumentList& /*arguments*/,
                               DiagnosticList& /*diagnostics*/) {
  const pvContextStruct* const context =
      contextFor(nullptr, "Getting SCC Context to list the archive");
  if (context == nullptr) return 0;
  void* const provider = context->getpvContextPtr();
  const std::vector<std::string> names =
      archiveFilesBelow(CMProperty::getWorkingDir(), scc::SCC_COMMAND_GET, provider);
  std::vector<UnitStatus> status;
  if (!queryFileStatus(names, provider, status)) return 0;
  const CMHeaderReader headers;
  for (std::size_t i = 0; i < names.size(); ++i) {
    const bool isKnown = status[i].state != scc::SCC_STATUS_INVALID;
    // A provider's list may name local files that were never added.
    if (isKnown && (status[i].state & scc::SCC_STATUS_CONTROLLED) == 0) continue;
    items.addTail(itemOf(names[i], status[i], headers).release());
  }
  return 1;
}

}  // namespace veldra
