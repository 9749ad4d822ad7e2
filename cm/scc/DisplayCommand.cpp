#include "cm/scc/DisplayCommand.h"

#include <algorithm>

namespace veldra {

namespace {

void reloadAll(UnitList& units) {
  ReloadBracket bracket(!units.empty());
  CMUnitValidator validator;
  validator.init(units);
  const UnitList before = units;
  for (IUnit* unit : before) {
    if (unit == nullptr || isGone(validator, unit) || unit->asEmbededFile() != nullptr) continue;
    const std::string file = unit->getFullFileName();
    UnitReport report("Reload", 1, 1, file);
    IUnit* const reloaded = reloadTraced(*unit, file, validator, ReloadMode::Plain, report);
    if (reloaded == nullptr) continue;
    std::ranges::replace(units, unit, reloaded);
    updateUnit(*reloaded, {.headerLine = UnitUpdate::Header, .modeLine = UnitUpdate::Mode},
               nullptr);
  }
}

}  // namespace

bool concludeDisplay(long code, UnitList& units) {
  if (!isQuiet(code)) return succeeds(code, nullptr);
  if (code == scc::SCC_I_RELOADFILE) reloadAll(units);
  return true;
}

}  // namespace veldra
