#include "cm/ui/logic/synchronize/UnitVersions.h"

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMArchiveItemList.h"
#include "cm/core/FacadeEntry.h"
#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/ToolListing.h"

namespace veldra {

namespace {

bool headersTell() {
  std::string pattern;
  return CMProperty::getUseSCCtool() != 0 ||
         (CMProperty::getToolPropertyValue(IPN::CMHeaderItsVersion, pattern) && !pattern.empty());
}

}  // namespace

UnitVersions::UnitVersions() {
  if (headersTell()) return;
  CMArchiveItemListWrapper items;
  ArgumentList arguments;
  withoutEscape(CMTranscationType::TxnListArchive,
                [&] { return listWorkspaceVersions(items.list(), arguments); });
  for (const CMArchiveItem* item : items.list()) {
    const IUnit* const unit = item->getLoadedUnit();
    if (unit != nullptr) m_listed.emplace(unit->getFullFileName(), item->getVersion());
  }
}

std::string UnitVersions::of(const IUnit& unit) const {
  if (m_listed.empty()) return m_headers.getVersion(&unit);
  const auto found = m_listed.find(unit.getFullFileName());
  return found != m_listed.end() ? found->second : std::string();
}

}  // namespace veldra
