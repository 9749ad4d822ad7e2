#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "cm/host/IProject.h"
#include "host/model/UnitCore.h"

namespace veldra::host {

/// Joins one of the unit interfaces with what all units share.
template <class Interface>
class UnitOf : public Interface, public UnitCore {
 public:
  UnitOf(Project& project, UnitRecord record) : UnitCore(project, *this, std::move(record)) {}

  // --- IDObject ---
  std::string getName() const override { return record().name; }
  std::string getTypeName() const override { return record().unitType; }
  std::unique_ptr<IHandle> getHandle() override { return lifeline().handle(*this); }
  IUnit* getSaveUnit() override {
    UnitCore* save = saveUnit();
    return save ? &save->unit() : nullptr;
  }
  void setModified(bool modified, bool saveUnitToo) override {
    markModified(modified);
    if (UnitCore* save = saveUnitToo ? saveUnit() : nullptr) save->markModified(modified);
  }
  bool isModified() const override { return UnitCore::isModified(); }
  std::vector<IDObject*> getAggregates() override {
    std::vector<IDObject*> owned;
    for (UnitCore* child : children()) owned.push_back(&child->unit());
    return owned;
  }
  IProperty* findProperty(const std::string& subject, const std::string& metaclass,
                          const std::string& name, bool localOnly) override {
    return UnitCore::findProperty({subject, metaclass, name}, localOnly);
  }
  void attachProperty(const std::string& subject, const std::string& metaclass,
                      std::unique_ptr<IProperty> property) override {
    if (property) UnitCore::attachProperty(subject, metaclass, *property);
  }

  // --- IUnit ---
  std::optional<std::int64_t> getFileTime() const override {
    return record().fileTime != 0 ? std::optional(record().fileTime) : std::nullopt;
  }
  std::uint32_t getFlags() const override { return flags(); }
  bool isReferenced() const override { return record().referenced; }
  bool isExternalUnitRecursive() const override { return isExternal(); }
  bool isExcludedFromWorkspace() const override { return false; }
  std::string getFileName() const override { return record().fileName; }
  std::string getFullFileName() const override { return fullFileName(); }
  std::string getDirectory() const override { return record().folder->path; }
  std::string getPersistAsDirectory() const override { return record().folder->path; }
  std::string getRecordedFileName() const override { return record().fileName; }
  std::string getComputedFileName() const override { return computedFileName(); }
  void setFileName(const std::string& fileName) override { UnitCore::setFileName(fileName); }
  bool _approveCMRename(const std::string& fileName) override { return approveRename(fileName); }
  bool ownerForbidsRename() const override { return false; }
  std::string getCMHeader() const override { return record().header; }
  void updateCMHeader() override { updateHeader(); }
  bool isReadOnly() const override { return mode() == FileMode::ReadOnly; }
  void updateMode(const std::string& mode) override { UnitCore::updateMode(mode); }
  std::int32_t getCMState() const override { return state(); }
  void setCMState(std::int32_t state) override { setState(state); }
  bool getBatchArchiveRecursive(std::string& archive) const override {
    return batchArchive(archive);
  }
  bool getSccArchiveRecursive(std::string& projName, std::string& auxProjPath) const override {
    return sccArchive(projName, auxProjPath);
  }
  void setSccArchive(const std::string& projName, const std::string& auxProjPath) override {
    UnitCore::setSccArchive(projName, auxProjPath);
  }
};

/// A unit that holds no other units: a component, a diagram, a file of another tool.
using PlainUnit = UnitOf<IUnit>;

/// A file of any type that is kept under control beside the model.
using ControlledFile = UnitOf<IEmbededFile>;

/// A package: a unit file of its own, or just a folder.
class Package : public UnitOf<ISubsystem> {
 public:
  using UnitOf::UnitOf;
  std::string getPackageDirectory() const override {
    return record().directoryUnit ? record().folder->path : std::string();
  }
};

/// A unit of the kind that the record asks for.
std::unique_ptr<UnitCore> makeUnit(Project& project, UnitRecord record);

}  // namespace veldra::host
