#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

namespace veldra::host {

/// What a file extension tells about a model file.
struct FileType {
  std::string extension;  ///< With its dot, in lower case.
  std::string unitType;   ///< The user's word for units of this type.
  /// The file that stands for its whole directory: "*" for the one named after the directory, a
  /// file name such as "package.mo", or empty when the type knows no such file.
  std::string directoryUnit;
  /// Written by Veldra in its own text format. Other files belong to another tool: their content is
  /// read for the CM header only and never written.
  bool own = false;
  bool package = false;  ///< Every unit of this type is a package, directory unit or not.
};

namespace FileExtension {
inline constexpr char Project[] = ".vdy";
inline constexpr char OldProject[] = ".vdr";
inline constexpr char Package[] = ".vpkg";
inline constexpr char Component[] = ".vcmp";
inline constexpr char Diagram[] = ".vdgm";
}  // namespace FileExtension

/// The file types of a project: the built-in ones and those that the project adds.
class FileTypes {
 public:
  FileTypes();

  /// Adds a type of another tool; one of the same extension is replaced. False, and nothing
  /// changed, when the extension is one of Veldra's own or has no dot.
  bool add(FileType type);

  /// The type of an extension (dot included, any case), or null.
  const FileType* ofExtension(std::string_view extension) const;
  /// The type of a file by its name, or null.
  const FileType* ofFile(std::string_view fileName) const;

  /// True for the extensions of project files.
  static bool isProjectFile(std::string_view fileName);
  /// Whether a file of that name stands for a directory named `directoryName`.
  static bool isDirectoryUnit(const FileType& type, std::string_view fileName,
                              std::string_view directoryName);

 private:
  std::unordered_map<std::string, FileType> m_types;
};

}  // namespace veldra::host
