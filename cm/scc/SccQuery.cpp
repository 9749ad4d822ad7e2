#include "cm/scc/SccQuery.h"

#include <algorithm>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/TextTools.h"
#include "cm/host/Host.h"
#include "cm/scc/ArchiveUnits.h"
#include "cm/scc/ProviderCall.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

long SccQuery::query(const std::vector<std::string>& names, std::int32_t* status, void* context) {
  if (context == nullptr) return -1;
  FileNames files(names);
  ProviderState& state = providerState();
  // Only the first name: a list of thousands would bury the log.
  const TracedCall traced("SccQueryInfo", files, std::min<long>(1, files.count()),
                          CallLines::PreAndReturn);
  return traced.returned(
      state.dll.call(state.dll.SccQueryInfo, context, files.count(), files.data(), status));
}

long SccQuery::query(const std::string& name, std::int32_t& status, void* context) {
  FileNames files(name);
  ProviderState& state = providerState();
  const TracedCall traced("SccQueryInfo", files, 1, CallLines::PrePostAndReturn);
  return traced.returned(
      state.dll.call(state.dll.SccQueryInfo, context, files.count(), files.data(), &status));
}

void SccQuery::queryAndSetStatus(IUnit* unit, void* context) {
  if (unit == nullptr || context == nullptr || CMProperty::getShowCMStatus() == 0) return;
  std::int32_t status = scc::SCC_STATUS_INVALID;
  if (query(unit->getFullFileName(), status, context) == 0) unit->setCMState(status);
}

void SccQuery::queryAndSetStatusOneByOne(const UnitList& units, void* context) {
  if (CMProperty::getShowCMStatus() == 0) return;
  for (IUnit* unit : units) queryAndSetStatus(unit, context);
}

void SccQuery::queryAndSetStatus(const UnitList& units, void* context) {
  if (CurrentWorkspace::GetActiveProject() == nullptr || CMProperty::getShowCMStatus() == 0) return;
  if (CMProperty::getProjectBool("SCC", "QuerySCCStatusOneByOne", false)) {
    for (IUnit* unit : units) queryAndSetStatus(unit, context);
    return;
  }
  std::vector<std::string> names;
  names.reserve(units.size());
  for (const IUnit* unit : units) {
    if (unit != nullptr) names.push_back(unit->getFullFileName());
  }
  if (names.empty()) return;
  // What a provider leaves out of a half-filled array stays invalid.
  std::vector<std::int32_t> status(units.size(), scc::SCC_STATUS_INVALID);
  if (query(names, status.data(), context) != 0) return;
  auto next = status.begin();
  for (IUnit* unit : units) {
    if (unit == nullptr) continue;
    unit->setCMState(*next);
    VELDRA_TRACE("Status of " + unit->getName() + " is ", std::to_string(*next));
    ++next;
  }
}

void SccQuery::queryAndSetStatus(const CMArchiveItemList& items, void* context, bool recursive) {
  queryAndSetStatus(unitsOfItems(items, recursive), context);
}

}  // namespace veldra
