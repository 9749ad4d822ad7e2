#pragma once

#include <string>

#include "cm/host/Reload.h"
#include "host/model/Project.h"

namespace veldra::host {

/// Loads the file of a unit anew; the result stands in the old unit's place. Null when there is no
/// such file or it cannot be read; the reason is then one of the project's problems.
UnitCore* reloadUnit(UnitCore& unit);

/// Adds a file to the model, or loads it anew when the model has it. The name is absolute or
/// relative to the project. Null as above, and for files outside the project.
UnitCore* addFile(Project& project, const std::string& fileName);

class QuickReload : public QuickATMFacade {
 public:
  /// Stubs are loaded by adding them, controlled files have nothing to load.
  bool CanReloadUnit(IUnit* unit) override;
  IUnit* reloadUnit(IUnit* unit) override;
};

/// Adds files by their name: absolute, relative to a given directory, or relative to the project.
class FileAdder : public ATMFacade {
 public:
  FileAdder(Project& project, std::string directory)
      : m_project(project), m_directory(std::move(directory)) {}
  IUnit* addToModel(const std::string& fileName) override;

 private:
  Project& m_project;
  std::string m_directory;
};

/// The unit may stay the same object when nothing but its CM header, its keywords or its mode
/// changed.
class FileCompare : public CCMFileCompare {
 public:
  explicit FileCompare(std::string fullFileName);
  void LoadFile1() override { m_before = snapshot(); }
  void LoadFile2() override { m_after = snapshot(); }
  int Compare() override;
  IUnit* atm(IUnit* unit) override;

 private:
  struct Snapshot {
    bool readable = false;
    std::string content;  ///< Without the CM header, keywords unexpanded.
  };
  Snapshot snapshot() const;

  std::string m_file;
  bool m_own;
  Snapshot m_before;
  Snapshot m_after;
};

}  // namespace veldra::host
