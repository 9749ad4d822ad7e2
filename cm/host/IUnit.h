#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cm/host/Export.h"
#include "cm/host/IDObject.h"

namespace veldra {

class IEmbededFile;
class IProject;
class ISubsystem;
class IUnit;
class IWorkspace;

/// An ordered list of units, not owned. Entries may be null and are then skipped.
using UnitList = std::vector<IUnit*>;

/// Walks the units of a collection once per `first()`.
class IObIterator {
 public:
  virtual ~IObIterator() = default;
  virtual IUnit* first() = 0;  ///< The first unit, or null when there is none.
  virtual IUnit* next() = 0;   ///< The unit after the one returned last, or null at the end.
};

/// Bits of `IUnit::getFlags`.
namespace UnitFlag {
inline constexpr std::uint32_t SavedSeparately = 0x4;  ///< The unit has a file of its own.
inline constexpr std::uint32_t Stub = 0x4000;  ///< Referenced, but its content is not loaded.
}  // namespace UnitFlag

/// A model element that version control can know: its file, its CM header, mode and state.
///
/// All paths are local paths in the host's separator style. Strings are bytes.
class IUnit : public IDObject {
 public:
  IUnit* asUnit() override { return this; }

  // --- what kind of unit this is (null when it is not of the kind) ---
  virtual IEmbededFile* asEmbededFile() { return nullptr; }
  virtual IProject* asProject() { return nullptr; }
  virtual ISubsystem* asSubsystem() { return nullptr; }
  virtual IWorkspace* asWorkspace() { return nullptr; }

  /// The bits of `UnitFlag`.
  virtual std::uint32_t getFlags() const = 0;
  /// True for a unit that belongs to another project and is only referenced here.
  virtual bool isReferenced() const = 0;
  /// True for a unit that lives outside the project, or that such a unit owns.
  virtual bool isExternalUnitRecursive() const = 0;
  /// True when the host keeps this unit out of the CM workspace (its CM file record is inactive).
  virtual bool isExcludedFromWorkspace() const = 0;

  /// The term that a new-term element stands for; empty for every other unit.
  virtual std::string getTermName() const { return {}; }

  // --- files ---
  /// The file's name without directory.
  virtual std::string getFileName() const = 0;
  /// The absolute name of the file.
  virtual std::string getFullFileName() const = 0;
  /// The absolute directory of the file, without a separator at its end.
  virtual std::string getDirectory() const = 0;
  /// The directory that the unit is set to be saved in; `getDirectory` when there is no such
  /// setting.
  virtual std::string getPersistAsDirectory() const = 0;
  /// The name recorded in the unit's CM file record; empty when there is no record.
  virtual std::string getRecordedFileName() const = 0;
  /// The file name that follows from the unit's present name.
  virtual std::string getComputedFileName() const = 0;
  /// Changes the file name in the model only; the file on disk is not touched.
  virtual void setFileName(const std::string& fileName) = 0;
  /// Asks the host, and through it perhaps the user, whether the file may take this name.
  // The leading underscore is part of the published name.
  virtual bool _approveCMRename(const std::string& fileName) = 0;
  /// True when the owning unit objects to another file name.
  virtual bool ownerForbidsRename() const = 0;

  /// When the file was last written at the time the host last read or wrote it, as
  /// `IEnvironment::omGetFileTime` tells it. Nothing in a host that does not keep it.
  virtual std::optional<std::int64_t> getFileTime() const { return std::nullopt; }

  // --- CM header, mode and state ---
  /// The text in which the CM tool expands its keywords; empty when the unit has none.
  virtual std::string getCMHeader() const = 0;
  /// Reads the CM header again from the unit's file.
  virtual void updateCMHeader() = 0;
  /// True when the unit may not be changed in the model.
  virtual bool isReadOnly() const = 0;
  /// Sets the unit's mode. An empty text takes it from the file's write permission; otherwise the
  /// text is the mode as the CM tool prints it.
  virtual void updateMode(const std::string& mode) = 0;
  /// The provider's file status word; -1 means invalid.
  virtual std::int32_t getCMState() const = 0;
  virtual void setCMState(std::int32_t state) = 0;

  // --- archives ---
  /// The archive of the unit or of its nearest owner that has one of its own.
  /// True and `archive` filled when there is one; otherwise false and `archive` untouched.
  virtual bool getBatchArchiveRecursive(std::string& archive) const = 0;
  /// The provider project and auxiliary path of the unit or its nearest owner. As above.
  virtual bool getSccArchiveRecursive(std::string& projName, std::string& auxProjPath) const = 0;
  /// Stores the provider project of this unit; empty texts clear it.
  virtual void setSccArchive(const std::string& projName, const std::string& auxProjPath) = 0;

  // --- the collection of units (null or empty without a host) ---
  /// The loaded unit of a file, or null. The name may be absolute or relative to the project.
  static IUnit* getByFile(const std::string& fileName);
  /// Every unit and controlled file of the active project that has a file of its own.
  static std::unique_ptr<IObIterator> repositoryFiles();
  /// The host's setting for repository file names with full paths.
  static bool isFullPathRepFiles();
};

/// A controlled file: a file of any type kept under control beside the model.
class IEmbededFile : public IUnit {
 public:
  IEmbededFile* asEmbededFile() override { return this; }
};

/// A package: a unit that holds other units and may have a directory of its own.
class ISubsystem : public IUnit {
 public:
  ISubsystem* asSubsystem() override { return this; }

  /// The directory that the host's record of the package names; empty when the package has none.
  /// The rules that move, delete and dispatch whole packages only ask whether it is empty.
  virtual std::string getPackageDirectory() const = 0;
};

/// The user's window layout and load settings, a unit that is not version controlled.
class IWorkspace : public IUnit {
 public:
  IWorkspace* asWorkspace() override { return this; }

  /// Remembers a unit that a reload brought into the model, so that the workspace saves it.
  virtual void AddToSavedUnitsList(IUnit* unit) = 0;
};

}  // namespace veldra
