#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cm/host/IProject.h"
#include "cm/host/IUnit.h"
#include "tests/support/Journal.h"
#include "tests/support/MemoryFiles.h"
#include "tests/support/MemoryObject.h"

namespace veldra::test {

/// Everything that is known about a unit. A host that is made of records needs no more than this.
struct UnitRecord {
  std::string name;
  std::string typeName;
  std::string directory;
  std::string fileName;

  std::uint32_t flags = UnitFlag::SavedSeparately;
  bool referenced = false;
  bool external = false;
  bool excluded = false;

  std::string persistAsDirectory;
  std::string recordedFileName;
  std::string computedFileName;
  bool approvesRename = true;
  bool ownerForbidsRename = false;

  std::string header;
  std::optional<std::int64_t> fileTime = 1;
  bool readOnly = true;
  std::int32_t state = -1;
  bool modified = false;

  std::optional<std::string> archive;
  std::string sccProject;
  std::string sccAuxPath;
  IUnit* saveUnit = nullptr;  ///< Null: the unit itself.
  std::vector<IDObject*> aggregates{};
  std::string termName{};
  std::string packageDirectory;  ///< For packages.
};

/// A unit over its record, its file in `MemoryFiles` and the common journal.
template <class Interface>
class MemoryUnitOf : public MemoryObject<Interface> {
 public:
  MemoryUnitOf(Journal& journal, MemoryFiles& files, UnitRecord data)
      : record(std::move(data)), m_journal(&journal), m_files(&files) {}

  UnitRecord record;

  std::string getName() const override { return record.name; }
  std::string getTypeName() const override { return record.typeName; }
  IUnit* getSaveUnit() override { return record.saveUnit != nullptr ? record.saveUnit : this; }
  void setModified(bool modified, bool saveUnit) override {
    record.modified = modified;
    m_journal->add("modified " + record.fileName + (saveUnit ? " with save unit" : ""));
  }

  bool isModified() const override { return record.modified; }
  std::vector<IDObject*> getAggregates() override { return record.aggregates; }
  std::string getTermName() const override { return record.termName; }

  std::uint32_t getFlags() const override { return record.flags; }
  bool isReferenced() const override { return record.referenced; }
  bool isExternalUnitRecursive() const override { return record.external; }
  bool isExcludedFromWorkspace() const override { return record.excluded; }

  std::string getFileName() const override { return record.fileName; }
  std::string getFullFileName() const override { return record.directory + '/' + record.fileName; }
  std::string getDirectory() const override { return record.directory; }
  std::string getPersistAsDirectory() const override {
    return record.persistAsDirectory.empty() ? record.directory : record.persistAsDirectory;
  }
  std::string getRecordedFileName() const override { return record.recordedFileName; }
  std::string getComputedFileName() const override {
    return record.computedFileName.empty() ? record.fileName : record.computedFileName;
  }
  void setFileName(const std::string& fileName) override {
    m_journal->add("rename " + record.fileName + " to " + fileName);
    record.fileName = fileName;
  }
  bool _approveCMRename(const std::string&) override { return record.approvesRename; }
  bool ownerForbidsRename() const override { return record.ownerForbidsRename; }

  std::optional<std::int64_t> getFileTime() const override { return record.fileTime; }
  std::string getCMHeader() const override { return record.header; }
  void updateCMHeader() override {
    m_journal->add("header " + record.fileName);
    const MemoryFiles::File* file = m_files->find(getFullFileName());
    record.header = file != nullptr ? file->content : std::string();
  }
  bool isReadOnly() const override { return record.readOnly; }
  void updateMode(const std::string& mode) override {
    m_journal->add("mode " + record.fileName + (mode.empty() ? "" : " " + mode));
    const MemoryFiles::File* file = m_files->find(getFullFileName());
    record.readOnly = mode.empty() ? file == nullptr || !file->writable : mode != "rw";
  }
  std::int32_t getCMState() const override { return record.state; }
  void setCMState(std::int32_t state) override { record.state = state; }

  bool getBatchArchiveRecursive(std::string& archive) const override {
    if (record.archive) archive = *record.archive;
    return record.archive.has_value();
  }
  bool getSccArchiveRecursive(std::string& projName, std::string& auxProjPath) const override {
    if (record.sccProject.empty()) return false;
    projName = record.sccProject;
    auxProjPath = record.sccAuxPath;
    return true;
  }
  void setSccArchive(const std::string& projName, const std::string& auxProjPath) override {
    record.sccProject = projName;
    record.sccAuxPath = auxProjPath;
  }

 protected:
  Journal& journal() const { return *m_journal; }

 private:
  Journal* m_journal;
  MemoryFiles* m_files;
};

using MemoryUnit = MemoryUnitOf<IUnit>;
using MemoryEmbeddedFile = MemoryUnitOf<IEmbededFile>;

class MemoryPackage : public MemoryUnitOf<ISubsystem> {
 public:
  using MemoryUnitOf::MemoryUnitOf;
  std::string getPackageDirectory() const override { return record.packageDirectory; }
};

class MemoryWorkspace : public MemoryUnitOf<IWorkspace> {
 public:
  using MemoryUnitOf::MemoryUnitOf;
  void AddToSavedUnitsList(IUnit* unit) override {
    journal().add("saved-list " + unit->getFileName());
  }
};

/// A component whose flag word the owner of the project may change.
class MemoryComponent : public NamedObject<IComponent> {
 public:
  using NamedObject::NamedObject;
  std::uint32_t getFlags() const override { return flags; }
  std::uint32_t flags = CarriesProperties;
};

/// A project. Its properties are those of its component, or of its configuration when the component
/// carries none; asking the project itself gives the same answer.
class MemoryProject : public MemoryUnitOf<IProject> {
 public:
  MemoryProject(Journal& journal, MemoryFiles& files, UnitRecord data);

  IComponent* getComponent() override { return hasComponent ? &component : nullptr; }
  IConfiguration* getConfiguration() override {
    return hasConfiguration ? &configuration : nullptr;
  }
  IProperty* findProperty(const std::string& subject, const std::string& metaclass,
                          const std::string& name, bool localOnly) override;
  void attachProperty(const std::string& subject, const std::string& metaclass,
                      std::unique_ptr<IProperty> property) override;

  std::string getProjectDirectory() const override { return record.directory; }
  std::string getUnitDirectory() const override { return unitDirectory; }
  std::string getFileExtension() const override { return ".vdy"; }
  bool showCMStatus() const override { return showsStatus; }
  bool isUsingRTC() const override { return false; }
  bool isLoadFromDM() const override { return false; }

  ICodeGenConfigInfo* getCodeGenConfigInfo() override { return codeGen; }

  ICodeGenConfigInfo* codeGen = nullptr;
  MemoryComponent component{"Component", "Component"};
  NamedObject<IConfiguration> configuration{"Configuration", "Configuration"};
  std::string unitDirectory;
  bool hasComponent = true;
  bool hasConfiguration = true;
  bool showsStatus = false;

 private:
  IDObject& propertyHolder();
};

}  // namespace veldra::test
