#include "host/desktop/logic/NewUnit.h"

#include <array>
#include <filesystem>
#include <system_error>

#include "host/model/ModelText.h"
#include "host/model/PathNames.h"
#include "host/model/Reloading.h"
#include "host/platform/AtomicFile.h"

namespace veldra::host::desktop {
namespace {

struct TypeRow {
  const char* unitType;
  const char* extension;
};

constexpr std::array<TypeRow, 3> Types = {{{"Component", FileExtension::Component},
                                           {"Diagram", FileExtension::Diagram},
                                           {"Package", FileExtension::Package}}};

const char* extensionFor(const std::string& unitType) {
  for (const TypeRow& row : Types) {
    if (unitType == row.unitType) return row.extension;
  }
  return nullptr;
}

/// Names that every tool and system takes.
bool canBeFileName(const std::string& name) {
  if (name.empty() || name.front() == '.' || name.front() == '-' || name.back() == ' ')
    return false;
  for (const char c : name) {
    if (static_cast<unsigned char>(c) < 0x20) return false;
  }
  return name.find_first_of("/\\:*?\"<>|$") == std::string::npos;
}

}  // namespace

Folder& folderFor(Project& project, const UnitCore* unit) {
  return unit ? *unit->record().folder : project.folders().root();
}

UnitCore* createUnit(Project& project, const Folder& folder, const std::string& unitType,
                     const std::string& name, std::string& error) {
  const char* extension = extensionFor(unitType);
  if (!extension || !canBeFileName(name)) {
    error = "\"" + name + "\" cannot be the name of a file. Leave out / \\ : * ? \" < > | $.";
    return nullptr;
  }
  const bool isPackage = unitType == "Package";
  const std::string directory = isPackage ? joinPath(folder.relative, name) : folder.relative;
  const std::string relative = joinPath(directory, name + extension);
  const std::string file = joinPath(project.getProjectDirectory(), relative);
  std::error_code failed;
  if (std::filesystem::exists(file, failed)) {
    error = "There is a file " + file + " already. Choose another name.";
    return nullptr;
  }
  std::filesystem::create_directories(std::string(parentPath(file)), failed);
  try {
    if (const auto failure =
            writeFileAtomically(file, writeModelText(newModelText(unitType, name)))) {
      error = *failure;
      return nullptr;
    }
  } catch (const Json::exception&) {
    error = "The name is no UTF-8 text. Choose another one.";
    return nullptr;
  }
  UnitCore* made = addFile(project, relative);
  if (!made)
    error = "The file " + file + " was written, but cannot be loaded. Open the project anew.";
  return made;
}

}  // namespace veldra::host::desktop
