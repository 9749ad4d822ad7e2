#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "cm/host/IProject.h"
#include "host/model/FileTypes.h"
#include "host/model/ModelUndo.h"
#include "host/model/Problem.h"
#include "host/model/ProjectFile.h"
#include "host/model/PropertyLayers.h"
#include "host/model/UnitIndex.h"
#include "host/model/UnitOf.h"

namespace veldra::host {

/// The folders of a project, each made once.
class FolderTree {
 public:
  explicit FolderTree(std::string root);
  Folder& root() { return m_folders.front(); }
  /// The folder of that name below the root; it and its parents are made when they are not known.
  Folder& below(const std::string& relative);
  /// A folder outside the project.
  Folder& outside(const std::string& path);

 private:
  std::deque<Folder> m_folders;
  std::unordered_map<std::string, Folder*> m_byName;
};

/// The component or the configuration of a project: they have the properties of the project itself.
template <class Interface>
class ProjectPart : public Interface {
 public:
  explicit ProjectPart(IProject& project) : m_project(project) {}
  std::string getName() const override { return m_project.getName(); }
  std::string getTypeName() const override { return "Project"; }
  std::unique_ptr<IHandle> getHandle() override { return m_lifeline.handle(*this); }
  IUnit* getSaveUnit() override { return &m_project; }
  void setModified(bool modified, bool saveUnit) override {
    m_project.setModified(modified, saveUnit);
  }
  IProperty* findProperty(const std::string& subject, const std::string& metaclass,
                          const std::string& name, bool localOnly) override {
    return m_project.findProperty(subject, metaclass, name, localOnly);
  }
  void attachProperty(const std::string& subject, const std::string& metaclass,
                      std::unique_ptr<IProperty> property) override {
    m_project.attachProperty(subject, metaclass, std::move(property));
  }

 private:
  IProject& m_project;
  LifelineHolder m_lifeline;
};

class ProjectComponent : public ProjectPart<IComponent> {
 public:
  using ProjectPart::ProjectPart;
  std::uint32_t getFlags() const override { return CarriesProperties; }
};

/// An open project: its file, its units and everything that was wrong while it was loaded.
class Project : public UnitOf<IProject> {
 public:
  /// `fileName` lies in the root of `folders`. The layers must outlive the project; its properties
  /// go into them.
  Project(std::unique_ptr<FolderTree> folders, const std::string& fileName, ProjectFile file,
          const UnitHead& head, PropertyLayers& layers);
  ~Project() override;

  // --- IProject ---
  IComponent* getComponent() override { return &m_component; }
  IConfiguration* getConfiguration() override { return &m_configuration; }
  std::string getProjectDirectory() const override { return record().folder->path; }
  /// The units lie in the project's own folder and below it.
  std::string getVdId() const override;
  std::string getUnitDirectory() const override { return record().folder->path; }
  std::string getFileExtension() const override;
  bool showCMStatus() const override { return m_file.showCMStatus; }
  /// From now on the states that a provider tells are read and shown. The project file says so when
  /// it is written next; it is not modified by that alone.
  void startShowingCMStatus() { m_file.showCMStatus = true; }
  bool isUsingRTC() const override { return false; }
  bool isLoadFromDM() const override { return false; }

  // --- units ---
  // They are loaded when somebody first asks for one of them: much can be done with a project's
  // settings alone, and reading the files of a large model takes longer than that.
  /// What is to load them; it adds them, and the problems with their files.
  void setUnitSource(std::function<void(Project&)> load) { m_unitSource = std::move(load); }
  /// Called when the units have been loaded.
  void setLoadListener(std::function<void()> listener) { m_loadListener = std::move(listener); }
  /// Loads them unless that is done. For one thread, as everything here.
  void needUnits() const;
  /// The project itself and every unit and controlled file that has a file, in the order of the
  /// folders.
  const std::vector<UnitCore*>& files() const {
    needUnits();
    return m_files;
  }
  UnitCore* unitByFile(std::string_view fileName) const {
    needUnits();
    return m_index.find(fileName);
  }
  /// The units whose `qualifiedName` this is; names need not be unique.
  std::vector<UnitCore*> unitsByName(std::string_view qualifiedName) const;
  /// Makes room for so many more units at once.
  void expectUnits(std::size_t count);
  /// Adds a unit below `owner`.
  UnitCore& add(UnitRecord record, UnitCore* owner);
  /// Puts a new object in the place of `former`, which is dead afterwards but stays in memory until
  /// `releaseRetired`.
  UnitCore& replace(UnitCore& former, UnitRecord record);
  void releaseRetired() { m_retired.clear(); }
  /// Takes a unit out of the model and out of the project's lists; what it owned goes to its owner.
  /// The object is dead afterwards but stays in memory until `releaseRetired`. Not for the project.
  void remove(UnitCore& unit);
  /// The file of a unit has got another name or folder; the name is relative to the project.
  void moveFile(UnitCore& unit, const std::string& relativeFileName);
  /// A folder with everything in it has got another name or place; both are relative to the
  /// project, and nothing is known of the new one yet.
  void moveFolder(const std::string& relative, const std::string& newRelative);
  /// A unit has got another file name.
  void unitMoved(UnitCore& unit, const std::string& formerFullName);
  /// The nearest package of a folder, or the project; packages without a file are made for folders
  /// that have no unit of their own.
  UnitCore& ownerOf(Folder& folder);

  FolderTree& folders() {
    needUnits();
    return *m_folders;
  }
  FileTypes& types() { return m_types; }
  const FileTypes& types() const { return m_types; }
  ModelUndo& undo() { return m_undo; }

  // --- the project file ---
  PropertyLayers& properties() { return m_properties; }
  const ProjectFile& file() const { return m_file; }
  const UnitArchive* archiveOf(const std::string& relativeFileName) const;
  void setProviderArchive(const std::string& relativeFileName, const std::string& projName,
                          const std::string& auxProjPath);
  /// The archive of its own that a unit has for command-line tools; empty for none.
  void setBatchArchive(const std::string& relativeFileName, const std::string& archive);
  /// Whether the project's file names the file or folder, or something in it, in one of its lists.
  bool lists(const std::string& relative) const;
  /// Lists one more controlled file.
  void addControlled(const std::string& relativeFileName);
  /// Reads the project's own file again. False, with the reason in `problem`, when it cannot be
  /// read; then everything stays as it was.
  [[nodiscard]] bool reloadFile(Problem& problem);

  // --- problems and saving ---
  /// Everything that is wrong with the project's files.
  const Problems& problems() const {
    needUnits();
    return m_problems;
  }
  /// The same, of the files that have been read: at first those of the project's own.
  const Problems& problemsSoFar() const { return m_problems; }
  /// A problem that is known already is not added again.
  void addProblem(const Problem& problem);
  /// Writes every unit that is marked as modified, the project included. What could not be written
  /// is returned and stays marked.
  [[nodiscard]] Problems saveModified();
  /// Reads every unit's whole content and reports what is wrong in it.
  void checkContents();

 protected:
  ModelText* content(Problem& problem) override;
  ModelText* contentToSave() override;

 private:
  void takeProperties();
  void renumberFiles(std::size_t from);
  void moveFolderOf(UnitCore& unit, const std::string& relative, const std::string& newRelative);
  void changeLists(const std::string& relative, const std::string& newRelative);
  template <class Change>
  void changeArchive(const std::string& relativeFileName, Change change);

  std::unique_ptr<FolderTree> m_folders;
  ProjectFile m_file;
  PropertyLayers& m_properties;
  FileTypes m_types;
  std::vector<std::unique_ptr<UnitCore>> m_units;     ///< With a file, in the order of `m_files`.
  std::vector<std::unique_ptr<UnitCore>> m_packages;  ///< Folders without a unit of their own.
  std::vector<UnitCore*> m_files;
  std::vector<std::unique_ptr<UnitCore>> m_retired;
  UnitIndex m_index;
  Problems m_problems;
  std::unordered_set<std::string> m_knownProblems;
  ModelUndo m_undo;
  std::function<void(Project&)> m_unitSource;  ///< Empty as soon as it is used.
  std::function<void()> m_loadListener;
  ProjectComponent m_component;
  ProjectPart<IConfiguration> m_configuration;
};

}  // namespace veldra::host
