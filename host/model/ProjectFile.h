#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/model/FileTypes.h"
#include "host/model/ModelText.h"
#include "host/model/Problem.h"
#include "host/model/PropertyLayers.h"

namespace veldra::host {

/// Stands in a list of controlled files for every file that is no unit, in the folder of the
/// listing file and below it.
inline constexpr char EveryOtherFile[] = "*";

/// Where a unit lives in an archive of its own.
struct UnitArchive {
  std::string archive;   ///< For command-line tools.
  std::string projName;  ///< For providers.
  std::string auxProjPath;
  bool operator==(const UnitArchive&) const = default;
};

/// Archives by the unit's file relative to the project; the project itself is ".".
using UnitArchives = std::map<std::string, UnitArchive, std::less<>>;

/// What a project file says, beside the text that it says it in.
///
/// | key            | value                                                                      |
/// |----------------|----------------------------------------------------------------------------|
/// | "controlled"   | files of any type that are kept under control, relative to the project     |
/// | "stubs"        | [{"file": ..., "load": false}]: units that are known but not loaded         |
/// | "references"   | folders or files of other projects, relative to this one or absolute       |
/// | "fileTypes"    | [{"extension": ".x", "type": ..., "directoryUnit": ...}]                   |
/// | "archives"     | [{"file": ..., "archive": ..., "projName": ..., "auxProjPath": ...}]       |
/// | "properties"   | {subject: {metaclass: {name: value}}}                                      |
/// | "showCMStatus" | whether the CM state of units is shown                                     |
struct ProjectFile {
  ModelText text;
  std::string name;
  std::vector<std::string> controlled;
  std::vector<std::string> stubs;
  std::vector<std::string> references;
  std::vector<FileType> fileTypes;
  UnitArchives archives;
  std::vector<TomlSettings::Entry> properties;
  bool showCMStatus = false;
};

/// Reads a project file's text. Nothing, with `fatal` filled, when it is none. Single values of a
/// wrong kind are left out and reported in `problems`.
std::optional<ProjectFile> parseProjectFile(std::string_view bytes, Problem& fatal,
                                            Problems& problems);

/// The strings of a list in a body; values of another kind are left out and reported.
std::vector<std::string> textList(const Json& body, const char* key, Problems& problems);

/// The properties in a body; values that are no scalars are left out and reported.
std::vector<TomlSettings::Entry> propertiesOf(const Json& body, Problems& problems);

/// Brings the text up to date with the lists and the properties. Keys of other versions stay.
void updateProjectText(ProjectFile& file, const std::vector<PropertyEntry>& properties);

}  // namespace veldra::host
