// The six keywords that need neither an argument nor a property.

#include <array>
#include <optional>

#include "cm/core/DebugEcho.h"
#include "cm/core/TextTools.h"
#include "cm/host/IEnvironment.h"
#include "cm/host/IModel.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

using Value = std::optional<std::string>;

// A longer directory does not fit the buffers that hosts and tools reserve for it.
constexpr std::size_t LongestDirectory = 260;

IProject* openProject() {
  return CurrentWorkspace::getCurrentProject() != nullptr ? CurrentWorkspace::GetActiveProject()
                                                          : nullptr;
}

Value installationRoot() {
  std::string root;
  return omGetRoot(root) == 1 ? Value(root) : std::nullopt;
}

Value projectName() {
  const IProject* const project = CurrentWorkspace::GetActiveProject();
  return project != nullptr ? Value(project->getFileName()) : std::nullopt;
}

Value currentDirectory() {
  std::string error;
  std::string directory = openProject() != nullptr ? omGetFullPathOfDirectory("", error) : "";
  if (directory.empty() || directory.size() > LongestDirectory) return std::nullopt;
  return directory;
}

Value projectDirectory() {
  const IProject* const project = openProject();
  return project != nullptr ? Value(project->getDirectory()) : std::nullopt;
}

Value projectUnitDirName() {
  const IProject* const project = openProject();
  return project != nullptr ? Value(project->getName() + IProject::staticGetFolderExtension())
                            : std::nullopt;
}

struct Predefined {
  std::string_view reference;
  Value (*value)();
};

constexpr std::array<Predefined, 6> Keywords{{
    {"$OMROOT", installationRoot},
    {"$projectname", projectName},
    {"$currentdirectory", currentDirectory},
    {"$vdrdirectory", projectDirectory},
    {"$projectunitdirname", projectUnitDirName},
    {"$temp", [] { return Value(omGetTempDir()); }},
}};

}  // namespace

int CMProperty::ExpandPredefined(const std::string& text, std::string& out) {
  debugEcho({"Expanding (predefined?) '", text, "'\n"});
  std::string current = text;
  for (const Predefined& keyword : Keywords) {
    if (findNoCase(current, keyword.reference) == std::string::npos) continue;
    const Value value = keyword.value();
    if (!value) continue;
    // The form with a backslash goes first, or the backslash would stay behind.
    current = replaceAllNoCase(current, "\\" + std::string(keyword.reference), *value);
    current = replaceAllNoCase(current, keyword.reference, *value);
  }
  out = std::move(current);
  std::string root;
  return omGetRoot(root);
}

}  // namespace veldra
