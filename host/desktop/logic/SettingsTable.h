#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/model/Project.h"
#include "host/model/PropertyLayers.h"

namespace veldra::host::desktop {

/// A setting as the settings window lists it.
struct SettingRow {
  PropertyKey key;
  std::string value;
  Origin origin = Origin::Pack;
  std::string source;  ///< The file that the value was read from; empty for one set since.
};

/// Which settings are listed.
struct SettingsFilter {
  std::string text;          ///< Part of the name, the metaclass or the value, in any case.
  bool everyTool = false;    ///< False: only the selected tool's and the common ones.
  bool onlyChanged = false;  ///< Leaves out what comes from the tool packs.
  UnitCore* unit = nullptr;  ///< The unit whose settings count; null for the project.
};

/// The settings as they count for a project or for one of its units.
class SettingsTable {
 public:
  /// `project` is null when none is open; then there are no settings of project and unit.
  SettingsTable(PropertyLayers& layers, Project* project) : m_layers(layers), m_project(project) {}

  /// The settings that pass the filter, by metaclass and name.
  std::vector<SettingRow> rows(const SettingsFilter& filter) const;

  /// The places where a value can be stored: the user's file, the open project, the unit.
  std::vector<Origin> targets(const UnitCore* unit) const;

  /// Stores a value. Nothing on success; otherwise why not and the way out.
  [[nodiscard]] std::optional<std::string> set(const PropertyKey& key, const std::string& value,
                                               Origin target, UnitCore* unit);

  /// Whether a value of that origin can be taken away here: the user's, the project's, the unit's.
  static bool isResettable(Origin origin);
  /// Takes a value away where it is stored, so that the inherited one counts; answers as `set`.
  [[nodiscard]] std::optional<std::string> reset(const PropertyKey& key, Origin origin,
                                                 UnitCore* unit);

  /// The selected tool; empty for none.
  std::string tool() const;

 private:
  /// Why nothing can be stored there; nothing when it can.
  std::optional<std::string> objection(Origin target, UnitCore* unit) const;

  PropertyLayers& m_layers;
  Project* m_project;
};

}  // namespace veldra::host::desktop
