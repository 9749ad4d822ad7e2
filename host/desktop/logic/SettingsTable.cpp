#include "host/desktop/logic/SettingsTable.h"

#include <algorithm>
#include <tuple>

#include "cm/host/IPN.h"
#include "host/model/PathNames.h"

namespace veldra::host::desktop {
namespace {

bool contains(const std::string& text, const std::string& lowerPart) {
  return lowerCase(text).find(lowerPart) != std::string::npos;
}

SettingRow rowOf(const PropertyEntry& entry) {
  return {entry.key, entry.value, entry.origin, entry.source};
}

/// Puts what a unit says itself over the inherited rows.
void overlayUnit(UnitCore& unit, std::vector<SettingRow>& rows) {
  Problem problem;
  const ModelText* text = unit.text(problem);
  if (!text) return;
  Problems wrong;
  for (const TomlSettings::Entry& entry : propertiesOf(text->body, wrong)) {
    const auto known = std::ranges::find(rows, entry.key, &SettingRow::key);
    SettingRow& row = known != rows.end() ? *known : rows.emplace_back();
    row = {entry.key, entry.value, Origin::Unit, unit.fullFileName()};
  }
}

}  // namespace

std::string SettingsTable::tool() const {
  return m_layers.chosenTool();
}

std::vector<SettingRow> SettingsTable::rows(const SettingsFilter& filter) const {
  std::vector<SettingRow> rows;
  for (const PropertyEntry& entry : m_layers.entries()) rows.push_back(rowOf(entry));
  if (filter.unit && filter.unit != m_project) overlayUnit(*filter.unit, rows);
  const std::string selected = tool();
  const std::string part = lowerCase(filter.text);
  std::erase_if(rows, [&](const SettingRow& row) {
    const std::string& metaclass = row.key.metaclass;
    const bool isOfTool =
        metaclass == selected || metaclass == IPN::General || metaclass == IPN::SCC;
    if (!filter.everyTool && !isOfTool) return true;
    if (filter.onlyChanged && row.origin == Origin::Pack) return true;
    return !contains(row.key.name, part) && !contains(metaclass, part) &&
           !contains(row.value, part);
  });
  std::ranges::sort(rows, {}, [](const SettingRow& row) {
    return std::tie(row.key.metaclass, row.key.name, row.key.subject);
  });
  return rows;
}

std::vector<Origin> SettingsTable::targets(const UnitCore* unit) const {
  std::vector<Origin> targets;
  if (m_project) targets.push_back(Origin::Project);
  if (unit && unit != m_project && unit->isOwnFile()) targets.push_back(Origin::Unit);
  targets.push_back(Origin::User);
  return targets;
}

std::optional<std::string> SettingsTable::set(const PropertyKey& key, const std::string& value,
                                              Origin target, UnitCore* unit) {
  if (key.name.empty() || key.metaclass.empty() || key.subject.empty()) {
    return "A property has a subject, a metaclass and a name. Fill in all three.";
  }
  if (target == Origin::User) return m_layers.setForUser(key, value);
  if (target == Origin::Unit && !unit) target = Origin::Project;
  if (auto reason = objection(target, unit)) return reason;
  if (target == Origin::Unit) {
    unit->attachProperty(key.subject, key.metaclass, Property(key.name, value, Origin::Unit));
  } else {
    m_layers.setInProject(key, value);
  }
  return std::nullopt;
}

bool SettingsTable::isResettable(Origin origin) {
  return origin == Origin::User || origin == Origin::Project || origin == Origin::Unit;
}

std::optional<std::string> SettingsTable::reset(const PropertyKey& key, Origin origin,
                                                UnitCore* unit) {
  if (origin == Origin::User) return m_layers.resetForUser(key);
  if (auto reason = objection(origin, unit)) return reason;
  if (origin == Origin::Unit) {
    unit->detachProperty(key);
  } else {
    m_layers.resetInProject(key);
  }
  return std::nullopt;
}

std::optional<std::string> SettingsTable::objection(Origin target, UnitCore* unit) const {
  if (target == Origin::Unit) {
    if (!unit) return "No unit is selected. Select one, then open the settings again.";
    if (unit->mode() == FileMode::ReadOnly) {
      return "The file " + unit->fullFileName() + " is read-only. Check it out first.";
    }
    Problem problem;
    return unit->text(problem) ? std::nullopt : std::optional(sentence(problem));
  }
  if (!m_project) return "No project is open. Store the property for yourself instead.";
  if (!m_project->isReadOnly()) return std::nullopt;
  return "The project file " + m_project->getFullFileName() +
         " is read-only. Check it out first, or store the property for yourself.";
}

}  // namespace veldra::host::desktop
