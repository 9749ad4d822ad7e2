#include "host/cli/ProviderStatus.h"

#include <cstdint>

#include "cm/core/CMTraitFacade.h"
#include "cm/templates/CMProperty.h"

namespace veldra::host::cli {

namespace {

std::string stateOf(std::int32_t state) {
  if (state == CMState::Invalid) return "unknown";
  if ((state & CMState::Controlled) == 0) return "not added";
  if ((state & CMState::Deleted) != 0) return "deleted";
  if ((state & CMState::CheckedOut) != 0) return "checked out";
  if ((state & CMState::OutOther) != 0) return "checked out by another user";
  return (state & CMState::OutByUser) != 0 ? "checked out elsewhere" : "checked in";
}

}  // namespace

std::optional<std::string> takeFromProvider(Session& session, const UnitList& units,
                                            std::vector<UnitRecord>& records) {
  if (CMProperty::useSccCompliantTool() == 0) return std::nullopt;
  std::vector<UnitStatus> status;
  if (CMTraitFacade::queryStatus(units, status) == 0 || status.size() != records.size()) {
    const std::string& told = session.door().lastText();
    return told.empty() ? "The source control provider does not tell where the units stand." : told;
  }
  for (std::size_t i = 0; i < records.size(); ++i) {
    records[i].state = stateOf(status[i].state);
    records[i].locker = status[i].holder;
  }
  return std::nullopt;
}

}  // namespace veldra::host::cli
