#pragma once

#include <cstdint>
#include <string>

#include "cm/host/ICodeGenConfigInfo.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// The project's component: its flag word tells whether properties are read from it.
class IComponent : public IDObject {
 public:
  /// The component carries the project's properties when this bit is set in its flag word.
  static constexpr std::uint32_t CarriesProperties = 0x4000;
  virtual std::uint32_t getFlags() const = 0;
};

/// The project's active configuration.
class IConfiguration : public IDObject {};

/// A project: the root of the model, itself a unit with a file.
class IProject : public IUnit {
 public:
  IProject* asProject() override { return this; }

  /// The component, or null.
  virtual IComponent* getComponent() = 0;
  /// The active configuration, or null.
  virtual IConfiguration* getConfiguration() = 0;

  /// The active code-generation configuration, or null in a tool that generates no code.
  virtual ICodeGenConfigInfo* getCodeGenConfigInfo() { return nullptr; }

  /// The text of the project's identifier (`VdId`), which no other project has. Empty in a host
  /// that knows none.
  virtual std::string getVdId() const { return {}; }

  /// The directory that holds the project file.
  virtual std::string getProjectDirectory() const = 0;
  /// The directory that holds the project's unit files.
  virtual std::string getUnitDirectory() const = 0;
  /// The extension of the project file, with its dot.
  virtual std::string getFileExtension() const = 0;

  /// Whether the project shows the CM state of its units.
  virtual bool showCMStatus() const = 0;
  /// Whether the project works with a change-tracking server; kept beside the setting above.
  virtual bool isUsingRTC() const = 0;
  /// Whether the project is loaded from a model store instead of files.
  virtual bool isLoadFromDM() const = 0;

  /// The unit type that belongs to a file extension (dot included), for example "Package"; empty
  /// when no type has it.
  static std::string fileExtension2UnitType(const std::string& suffix);
  /// What the directory of a project's units ends with, for example "_units".
  static std::string staticGetFolderExtension();
  /// The present and the former extension of project files, with their dots.
  static std::string staticGetNewFileExtension();
  static std::string staticGetOldFileExtension();
};

}  // namespace veldra
