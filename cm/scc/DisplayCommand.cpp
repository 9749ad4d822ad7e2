#include "cm/scc/DisplayCommand.h"

#include <algorithm>

#include "cm/scc/ProviderBatch.h"

namespace veldra {

bool DisplayCommand::conclude(long code, const UnitList& shown) {
  if (!isQuiet(code)) return succeeds(code, nullptr);
  if (code == scc::SCC_I_RELOADFILE) reload(shown);
  return true;
}

void DisplayCommand::reload(const UnitList& shown) {
  const ReloadBracket bracket(!shown.empty());
  std::size_t position = 0;
  for (IUnit* unit : shown) {
    ++position;
    if (isGone(m_validator, unit) || unit->asEmbededFile() != nullptr) continue;
    const std::string file = unit->getFullFileName();
    UnitReport report("Reload", position, shown.size(), file);
    IUnit* const reloaded = reloadTraced(*unit, file, m_validator, ReloadMode::Plain, report);
    if (reloaded == nullptr) continue;
    std::ranges::replace(m_units, unit, reloaded);
    updateUnit(*reloaded, {.headerLine = UnitUpdate::Header, .modeLine = UnitUpdate::Mode},
               nullptr);
  }
}

}  // namespace veldra
