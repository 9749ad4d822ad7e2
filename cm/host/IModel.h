#pragma once

#include <memory>
#include <string>

#include "cm/host/IProject.h"
#include "cm/host/IProperty.h"

namespace veldra {

/// Two process-wide flags of the host that an undo check-out sets while it runs.
struct HostFlags {
  bool isOk2All = false;        ///< A yes-to-all answer of the host's reload questions.
  bool reloadForDupId = false;  ///< Units whose identifiers clash are reloaded instead of refused.
};

namespace INObject {
/// While one of these lives, changes to the model do not mark generated code as out of date.
class IgnoreCGModification {
 public:
  virtual ~IgnoreCGModification() = default;
};
}  // namespace INObject

/// The host's model: which project is open and which units it has. Every host has one.
class IModel {
 public:
  virtual ~IModel() = default;

  /// The project that operations work on, or null.
  virtual IProject* activeProject() = 0;
  /// The project that the host is busy with; most hosts have just the active one.
  virtual IProject* currentProject() { return activeProject(); }
  /// The user's workspace, or null.
  virtual IWorkspace* workspace() = 0;
  /// Hands the units that reloads have saved up to the projects that are open but not active.
  virtual void applySavedUnitsListToNonActiveProjects() {}

  /// Called before a window shows every unit: a host that loads units on demand loads the rest now.
  /// `reason` is for its log.
  virtual void completeLoadOnDemandScope(const std::string& reason) { (void)reason; }
  /// The units that hold what code generation keeps about `unit`, to be taken along with it.
  virtual UnitList informationUnitsOf(IUnit* unit) {
    (void)unit;
    return {};
  }

  /// A free-standing text property, to be attached to an object. Null when the host cannot make
  /// any: then only settings that exist somewhere can be changed.
  virtual std::unique_ptr<IProperty> createTextProperty(const std::string& name,
                                                        const std::string& value) {
    (void)name;
    (void)value;
    return nullptr;
  }

  /// See the functions of the same names in `IUnit` and `IProject`.
  virtual IUnit* unitByFile(const std::string& fileName) = 0;
  virtual std::unique_ptr<IObIterator> repositoryFiles() = 0;
  virtual bool isFullPathRepFiles() const = 0;
  virtual std::string unitTypeOfExtension(const std::string& suffix) const = 0;
  virtual std::string folderExtension() const = 0;
  virtual std::string newFileExtension() const = 0;
  virtual std::string oldFileExtension() const = 0;

  /// The host's flags; the reference stays valid as long as the host.
  virtual HostFlags& flags() = 0;
  /// Stops code-generator tracking until the result is destroyed. Null when the host has none.
  virtual std::unique_ptr<INObject::IgnoreCGModification> ignoreCGModification() { return nullptr; }
};

/// The open workspace as the module sees it. Everything is null without a host or a project.
namespace CurrentWorkspace {
IProject* GetActiveProject();
IProject* getCurrentProject();
IWorkspace* getWorkspace();
void ApplySavedUnitsListToNonActiveProjects();
}  // namespace CurrentWorkspace

}  // namespace veldra
