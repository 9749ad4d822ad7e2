#pragma once

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/model/Problem.h"
#include "host/model/Property.h"
#include "host/model/TomlSettings.h"

namespace veldra::host {

/// Where the layers above the project come from, and what the user's other files are.
struct SettingsFiles {
  std::string packDirectory;  ///< Its files "*.toml" are the shipped tool packs.
  std::string siteFile;
  std::string userFile;
  std::string cacheDirectory{};  ///< What lies there only saves time; empty for none.
};

/// The files for an installation root: its packs; the site's file /etc/veldra-cm/site.toml or
/// VELDRA_SITE; the user's file veldra-cm/user.toml below XDG_CONFIG_HOME or ~/.config, or
/// VELDRA_USER. The caches lie in veldra-cm below XDG_CACHE_HOME or ~/.cache.
SettingsFiles standardSettingsFiles(const std::string& installationRoot);

/// One property for a listing.
struct PropertyEntry {
  PropertyKey key;
  std::string value;
  Origin origin = Origin::Pack;
  std::string source;  ///< The file that the value was read from; empty for one that was set since.
};

/// The properties of tool packs, site, user and project, one layer over the other.
///
/// Another form of a command template, for many units or a quick one, belongs to that template: a
/// layer that puts a command of its own in the template's place takes away the forms of the layers
/// below it, because they would run the former command.
///
/// A look-up takes one hash search whatever the number of layers. A reference to a property stays
/// valid until its layer is read again or the property is replaced.
class PropertyLayers {
 public:
  /// Told when the project's properties have really changed and its file should be written.
  using ChangeListener = std::function<void()>;

  /// Reads packs, site and user. Files that are not valid are reported and skipped.
  void load(const SettingsFiles& files, Problems& problems);

  /// The property that counts, or null.
  Property* find(const PropertyKeyView& key) const;
  /// The property of one layer, or null.
  Property* findIn(Origin layer, const PropertyKeyView& key) const;

  /// The property that would count without the project, or null.
  Property* belowProject(const PropertyKeyView& key) const;

  /// Puts a property into the project's layer as it was read from the project file.
  void addLoaded(const PropertyKey& key, std::string value, const std::string& source);
  /// Puts a property into the project's layer. The listener is told only when that changes the
  /// effective value.
  void attachToProject(const std::string& subject, const std::string& metaclass,
                       const IProperty& property);
  /// The same as the user's own wish: kept even when the value is the inherited one.
  void setInProject(const PropertyKey& key, const std::string& value);
  /// Takes the project's own value away, so that the inherited one counts.
  void resetInProject(const PropertyKey& key);
  /// Writes the property to the user's file. Nothing on success, otherwise a sentence that says why
  /// not.
  [[nodiscard]] std::optional<std::string> setForUser(const PropertyKey& key,
                                                      const std::string& value);
  /// Takes the property out of the user's file; the same answer.
  [[nodiscard]] std::optional<std::string> resetForUser(const PropertyKey& key);
  /// A unit's own property has been handed out to somebody.
  void noteUnitProperty(const PropertyKey& key, const Property& property);
  /// Takes all properties of the project and its units away, without telling anybody.
  void clearProject();
  void setProjectListener(ChangeListener listener) { m_projectChanged = std::move(listener); }

  /// What the project file has to hold: everything but copies that say what is inherited anyway.
  std::vector<PropertyEntry> projectEntries() const;
  /// What units have handed out of their own, in no order.
  const std::vector<PropertyEntry>& unitEntries() const { return m_unitEntries; }
  /// Every property that counts, by subject, metaclass and name.
  std::vector<PropertyEntry> entries() const;

  /// The CM tool that is chosen; empty for none.
  std::string chosenTool() const;
  /// A setting of the host from the user's file, else the site's.
  std::optional<std::string> setting(const std::string& section, const std::string& name) const;
  const std::vector<PackDescription>& packs() const { return m_packs; }
  const SettingsFiles& files() const { return m_files; }

 private:
  PropertyTable& layer(Origin origin) { return m_layers.at(static_cast<std::size_t>(origin)); }
  const PropertyTable& layer(Origin origin) const {
    return m_layers.at(static_cast<std::size_t>(origin));
  }
  void addFile(const std::string& file, Origin origin, Problems& problems);
  Property& putInProject(const PropertyKey& key, std::unique_ptr<Property> property);
  void putEffective(const PropertyKey& key, Property* property);
  void rebuildEffective();
  bool isOutdated(const PropertyKeyView& key, const Property& form) const;
  void tellProjectChanged() const;

  std::array<PropertyTable, 4> m_layers;
  PropertyMap<Property*> m_effective;
  PropertyMap<bool> m_pinned;  ///< Project properties that are written even when they only repeat.
  std::vector<PropertyEntry> m_unitEntries;
  std::map<std::pair<std::string, std::string>, std::string> m_settings;
  std::vector<PackDescription> m_packs;
  SettingsFiles m_files;
  ChangeListener m_projectChanged;
};

}  // namespace veldra::host
