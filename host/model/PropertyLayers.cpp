#include "host/model/PropertyLayers.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <tuple>

#include "cm/host/IPN.h"
#include "host/model/PathNames.h"
#include "host/model/TemplateForms.h"
#include "host/model/TomlEdit.h"

namespace veldra::host {
namespace fs = std::filesystem;

namespace {

constexpr std::array LayersBelowProject = {Origin::User, Origin::Site, Origin::Pack};

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

/// The program's own folder below the one that a variable names, or that the user's home has for
/// it.
std::string ownFolder(const char* variableName, const char* inHome) {
  std::string parent = variable(variableName);
  if (parent.empty()) {
    const std::string home = variable("HOME");
    if (home.empty()) return {};
    parent = joinPath(home, inHome);
  }
  return joinPath(parent, "veldra-cm");
}

std::string userFile() {
  if (std::string file = variable("VELDRA_USER"); !file.empty()) return file;
  const std::string folder = ownFolder("XDG_CONFIG_HOME", ".config");
  return folder.empty() ? folder : joinPath(folder, "user.toml");
}

std::vector<std::string> packFiles(const std::string& directory) {
  std::vector<std::string> files;
  std::error_code failed;
  for (fs::directory_iterator at(directory, failed), end; !failed && at != end;
       at.increment(failed)) {
    if (at->path().extension() == ".toml") files.push_back(at->path().string());
  }
  std::sort(files.begin(), files.end());
  return files;
}

PropertyEntry entryOf(const PropertyKey& key, const Property& property) {
  return {key, property.value(), property.origin(), property.source()};
}

void sortEntries(std::vector<PropertyEntry>& entries) {
  const auto order = [](const PropertyEntry& entry) {
    return std::tie(entry.key.subject, entry.key.metaclass, entry.key.name);
  };
  std::sort(
      entries.begin(), entries.end(),
      [&order](const PropertyEntry& a, const PropertyEntry& b) { return order(a) < order(b); });
}

}  // namespace

SettingsFiles standardSettingsFiles(const std::string& installationRoot) {
  SettingsFiles files;
  if (!installationRoot.empty()) files.packDirectory = joinPath(installationRoot, "packs");
  files.siteFile = variable("VELDRA_SITE");
  if (files.siteFile.empty()) files.siteFile = "/etc/veldra-cm/site.toml";
  files.userFile = userFile();
  files.cacheDirectory = ownFolder("XDG_CACHE_HOME", ".cache");
  return files;
}

void PropertyLayers::load(const SettingsFiles& files, Problems& problems) {
  m_files = files;
  for (const Origin origin : LayersBelowProject) layer(origin).clear();
  m_settings.clear();
  m_packs.clear();
  for (const std::string& file : packFiles(files.packDirectory)) {
    addFile(file, Origin::Pack, problems);
  }
  addFile(files.siteFile, Origin::Site, problems);
  addFile(files.userFile, Origin::User, problems);
  rebuildEffective();
}

void PropertyLayers::addFile(const std::string& file, Origin origin, Problems& problems) {
  TomlSettings settings = readTomlSettings(file, problems);
  for (TomlSettings::Entry& entry : settings.properties) {
    auto property =
        std::make_unique<Property>(entry.key.name, std::move(entry.value), origin, file);
    layer(origin).put(entry.key.subject, entry.key.metaclass, std::move(property));
  }
  for (auto& [place, value] : settings.settings) m_settings[place] = std::move(value);
  if (settings.pack) m_packs.push_back(std::move(*settings.pack));
}

void PropertyLayers::rebuildEffective() {
  m_effective.clear();
  for (const PropertyTable& table : m_layers) {
    for (const auto& [key, property] : table) m_effective[key] = property.get();
  }
}

void PropertyLayers::putEffective(const PropertyKey& key, Property* property) {
  if (property) {
    m_effective[key] = property;
  } else {
    m_effective.erase(key);
  }
}

Property* PropertyLayers::find(const PropertyKeyView& key) const {
  const auto found = m_effective.find(key);
  if (found == m_effective.end() || isOutdated(key, *found->second)) return nullptr;
  return found->second;
}

/// Whether a property is another form of a template that a stronger layer has replaced.
bool PropertyLayers::isOutdated(const PropertyKeyView& key, const Property& form) const {
  const std::optional<std::string_view> name = templateOfForm(key.name);
  if (!name) return false;
  const PropertyKeyView ordinary(key.subject, key.metaclass, *name);
  const auto inForce = m_effective.find(ordinary);
  if (inForce == m_effective.end() || inForce->second->origin() <= form.origin()) return false;
  for (int origin = static_cast<int>(form.origin()); origin >= 0; --origin) {
    const Property* const former = findIn(static_cast<Origin>(origin), ordinary);
    if (former != nullptr) return former->value() != inForce->second->value();
  }
  return true;
}

Property* PropertyLayers::findIn(Origin origin, const PropertyKeyView& key) const {
  return layer(origin).find(key);
}

Property* PropertyLayers::belowProject(const PropertyKeyView& key) const {
  for (const Origin origin : LayersBelowProject) {
    if (Property* property = layer(origin).find(key)) return property;
  }
  return nullptr;
}

Property& PropertyLayers::putInProject(const PropertyKey& key, std::unique_ptr<Property> property) {
  property->setListener([this](Property&) { tellProjectChanged(); });
  Property& put = layer(Origin::Project).put(key.subject, key.metaclass, std::move(property));
  putEffective(key, &put);
  return put;
}

void PropertyLayers::tellProjectChanged() const {
  if (m_projectChanged) m_projectChanged();
}

void PropertyLayers::addLoaded(const PropertyKey& key, std::string value,
                               const std::string& source) {
  m_pinned[key] = true;
  putInProject(key,
               std::make_unique<Property>(key.name, std::move(value), Origin::Project, source));
}

void PropertyLayers::attachToProject(const std::string& subject, const std::string& metaclass,
                                     const IProperty& property) {
  const PropertyKey key{subject, metaclass, property.getName()};
  const std::string value = property.getValue();
  const Property* former = find(key);
  const bool changes = !former || former->value() != value;
  putInProject(key, std::make_unique<Property>(key.name, value, Origin::Project));
  if (changes) tellProjectChanged();
}

void PropertyLayers::setInProject(const PropertyKey& key, const std::string& value) {
  const Property* former = findIn(Origin::Project, key);
  const bool changes = !former || former->value() != value || !m_pinned.contains(key);
  m_pinned[key] = true;
  putInProject(key, std::make_unique<Property>(key.name, value, Origin::Project));
  if (changes) tellProjectChanged();
}

std::optional<std::string> PropertyLayers::setForUser(const PropertyKey& key,
                                                      const std::string& value) {
  if (m_files.userFile.empty()) {
    return "There is no place for settings of your own: set HOME, XDG_CONFIG_HOME or VELDRA_USER.";
  }
  if (auto error = setTomlProperty(m_files.userFile, key, value)) return error;
  Property& put =
      layer(Origin::User)
          .put(key.subject, key.metaclass,
               std::make_unique<Property>(key.name, value, Origin::User, m_files.userFile));
  if (!findIn(Origin::Project, key)) putEffective(key, &put);
  return std::nullopt;
}

void PropertyLayers::resetInProject(const PropertyKey& key) {
  if (!findIn(Origin::Project, key)) return;
  putEffective(key, belowProject(key));
  layer(Origin::Project).remove(key);
  m_pinned.erase(key);
  tellProjectChanged();
}

std::optional<std::string> PropertyLayers::resetForUser(const PropertyKey& key) {
  if (!findIn(Origin::User, key)) return std::nullopt;
  if (auto error = removeTomlProperty(m_files.userFile, key)) return error;
  layer(Origin::User).remove(key);
  if (!findIn(Origin::Project, key)) putEffective(key, belowProject(key));
  return std::nullopt;
}

void PropertyLayers::clearProject() {
  for (const auto& [key, property] : layer(Origin::Project)) putEffective(key, belowProject(key));
  layer(Origin::Project).clear();
  m_pinned.clear();
  m_unitEntries.clear();
}

void PropertyLayers::noteUnitProperty(const PropertyKey& key, const Property& property) {
  const bool isKnown = std::ranges::any_of(m_unitEntries, [&](const PropertyEntry& entry) {
    return entry.key == key && entry.source == property.source() && entry.value == property.value();
  });
  if (!isKnown) m_unitEntries.push_back(entryOf(key, property));
}

std::vector<PropertyEntry> PropertyLayers::projectEntries() const {
  std::vector<PropertyEntry> entries;
  for (const auto& [key, property] : layer(Origin::Project)) {
    const Property* below = belowProject(key);
    const bool repeats = below && below->value() == property->value();
    if (!repeats || m_pinned.contains(key)) entries.push_back(entryOf(key, *property));
  }
  sortEntries(entries);
  return entries;
}

std::vector<PropertyEntry> PropertyLayers::entries() const {
  std::vector<PropertyEntry> entries;
  entries.reserve(m_effective.size());
  for (const auto& [key, property] : m_effective) {
    if (!isOutdated(key, *property)) entries.push_back(entryOf(key, *property));
  }
  sortEntries(entries);
  return entries;
}

std::string PropertyLayers::chosenTool() const {
  const Property* const tool = find({IPN::CM, IPN::General, IPN::CMTool});
  return tool != nullptr && lowerCase(tool->value()) != "none" ? tool->value() : std::string();
}

std::optional<std::string> PropertyLayers::setting(const std::string& section,
                                                   const std::string& name) const {
  const auto found = m_settings.find({section, name});
  if (found == m_settings.end()) return std::nullopt;
  return found->second;
}

}  // namespace veldra::host
