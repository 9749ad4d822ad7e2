#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "cm/host/IModel.h"
#include "tests/support/MemoryProperty.h"
#include "tests/support/MemoryUnit.h"

namespace veldra::test {

/// A model that lives in memory. It owns its units, and every unit has a file in `MemoryFiles`.
class MemoryModel : public IModel {
 public:
  MemoryModel(Journal& journal, MemoryFiles& files) : m_journal(journal), m_files(files) {}

  // --- building a model ---
  /// Makes a project with a read-only file and opens it.
  MemoryProject& openProject(const std::string& directory, const std::string& fileName);
  /// `path` is relative to the active project's directory; the unit's name is the file's without
  /// its extension. The files are read-only.
  MemoryUnit& addUnit(const std::string& path);
  MemoryPackage& addPackage(const std::string& path);
  MemoryEmbeddedFile& addEmbeddedFile(const std::string& path);
  MemoryWorkspace& addWorkspace(const std::string& path);

  /// Puts a new object in the place of the unit; the old one is gone afterwards.
  MemoryUnit& replace(IUnit* unit);
  void destroy(IUnit* unit);
  void setActiveProject(MemoryProject* project) { m_activeProject = project; }

  /// Where the search for properties ends: the site's settings and the shipped packs.
  NamedObject<IDObject> sharedSettings{"Settings", "Settings"};
  std::map<std::string, std::string> unitTypes{
      {".vdy", "Project"}, {".vpk", "Package"}, {".vcl", "Class"}, {".txt", "ControlledFile"}};
  bool fullPathRepFiles = false;

  std::map<const IUnit*, UnitList> informationUnits;

  // --- what the module asks ---
  void completeLoadOnDemandScope(const std::string& reason) override {
    m_journal.add("load-all " + reason);
  }
  UnitList informationUnitsOf(IUnit* unit) override { return informationUnits[unit]; }
  std::unique_ptr<IProperty> createTextProperty(const std::string& name,
                                                const std::string& value) override {
    return std::make_unique<MemoryProperty>(name, value);
  }
  IProject* activeProject() override { return m_activeProject; }
  IWorkspace* workspace() override { return m_workspace; }
  void applySavedUnitsListToNonActiveProjects() override { m_journal.add("apply-saved-units"); }
  IUnit* unitByFile(const std::string& fileName) override;
  std::unique_ptr<IObIterator> repositoryFiles() override;
  bool isFullPathRepFiles() const override { return fullPathRepFiles; }
  std::string unitTypeOfExtension(const std::string& suffix) const override;
  std::string folderExtension() const override { return "_units"; }
  std::string newFileExtension() const override { return ".vdy"; }
  std::string oldFileExtension() const override { return ".vdr"; }
  HostFlags& flags() override { return m_flags; }
  std::unique_ptr<INObject::IgnoreCGModification> ignoreCGModification() override;

 private:
  template <class Unit>
  Unit& add(const std::string& path, const std::string& typeName);
  std::vector<std::unique_ptr<IUnit>>::iterator find(IUnit* unit);

  Journal& m_journal;
  MemoryFiles& m_files;
  std::vector<std::unique_ptr<IUnit>> m_units;
  MemoryProject* m_activeProject = nullptr;
  MemoryWorkspace* m_workspace = nullptr;
  HostFlags m_flags;
};

}  // namespace veldra::test
