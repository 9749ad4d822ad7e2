#include "cm/ui/logic/synchronize/UnitVersions.h"

#include <algorithm>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMArchiveItemList.h"
#include "cm/core/FacadeEntry.h"
#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/ToolListing.h"
#include "cm/ui/logic/archive/ListArchive.h"

namespace veldra {

namespace {

bool hasValue(const char* name) {
  std::string value;
  return CMProperty::getToolPropertyValue(name, value) && !value.empty();
}

}  // namespace

UnitVersions::UnitVersions(const UnitList& units)
    : m_readsHeaders(CMProperty::getUseSCCtool() != 0 || hasValue(IPN::CMHeaderItsVersion)) {
  const bool isListed = CMProperty::getUseSCCtool() == 0 && hasValue(IPN::WorkspaceVersions) &&
                        std::ranges::any_of(units, [this](const IUnit* unit) {
                          return unit != nullptr && ofHeader(*unit).empty();
                        });
  if (!isListed) return;
  CMArchiveItemListWrapper items;
  ArgumentList arguments;
  const ListingOutcome outcome;
  const int result =
      withoutEscape(TxnListArchive, [&] { return listWorkspaceVersions(items.list(), arguments); });
  m_isKnown = outcome.succeeded(result);
  for (const CMArchiveItem* item : items.list()) {
    const IUnit* const unit = item->getLoadedUnit();
    if (unit != nullptr) m_listed.emplace(unit->getFullFileName(), item->getVersion());
  }
}

std::string UnitVersions::ofHeader(const IUnit& unit) const {
  return m_readsHeaders ? m_headers.getVersion(&unit) : std::string();
}

std::string UnitVersions::of(const IUnit& unit) const {
  if (std::string version = ofHeader(unit); !version.empty()) return version;
  const auto found = m_listed.find(unit.getFullFileName());
  return found != m_listed.end() ? found->second : std::string();
}

}  // namespace veldra
