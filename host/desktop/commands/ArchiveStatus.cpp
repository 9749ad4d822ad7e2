#include "host/desktop/commands/ArchiveStatus.h"

#include <algorithm>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMArchiveItemList.h"
#include "cm/core/CMFacade.h"
#include "host/model/PathNames.h"

namespace veldra::host::desktop {

const ArchiveStatus::Entry* ArchiveStatus::find(const std::string& path) const {
  const auto at = m_entries.find(path);
  return at == m_entries.end() ? nullptr : &at->second;
}

void ArchiveStatus::forget() {
  m_isKnown = false;
  m_entries.clear();
}

CommandReport ArchiveStatus::refresh(Project& project, BatchResults& results) {
  CMArchiveItemListWrapper items;
  CommandReport report = runOnArchive(
      project, results, [&items](ArgumentList& arguments, DiagnosticList& diagnostics) {
        return CMFacade::ListArchive(items.list(), arguments, diagnostics);
      });
  if (!report.isFine()) return report;
  forget();
  m_isKnown = true;
  for (const CMArchiveItem* item : items.list()) {
    if (item == nullptr) continue;
    std::string path = item->getNameNShortPath(true);
    std::ranges::replace(path, '\\', HostSeparator);
    m_entries[path] = {item->getVersion(), item->getLocker()};
  }
  return report;
}

}  // namespace veldra::host::desktop
