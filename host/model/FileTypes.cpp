#include "host/model/FileTypes.h"

#include <utility>

#include "host/model/PathNames.h"

namespace veldra::host {
namespace {

constexpr char NamedAfterDirectory[] = "*";

struct Row {
  const char* extension;
  const char* unitType;
  const char* directoryUnit = "";
  bool own = false;
  bool package = false;
};

constexpr Row BuiltIn[] = {
    {FileExtension::Project, "Project", "", true},
    {FileExtension::OldProject, "Project", "", true},
    {FileExtension::Package, "Package", NamedAfterDirectory, true, true},
    {FileExtension::Component, "Component", "", true},
    {FileExtension::Diagram, "Diagram", "", true},
    // Files of other tools. Add the next one here; a project adds its own under "fileTypes".
    {".mo", "Modelica class", "package.mo"},
    {".sysml", "SysML model"},
    {".kerml", "KerML model"},
    {".puml", "PlantUML diagram"},
    {".plantuml", "PlantUML diagram"},
    {".xmi", "XMI model"},
    {".uml", "UML model"},
    {".ecore", "Ecore model"},
    {".archimate", "Archi model"},
    {".drawio", "draw.io diagram"},
    {".mmd", "Mermaid diagram"},
    {".slx", "Simulink model"},
    {".mdl", "Simulink model"},
    {".bpmn", "BPMN process"},
    {".dmn", "DMN decision"},
    {".reqif", "ReqIF requirements"},
    {".aadl", "AADL package"},
};

}  // namespace

FileTypes::FileTypes() {
  for (const Row& row : BuiltIn) {
    m_types.emplace(row.extension,
                    FileType{row.extension, row.unitType, row.directoryUnit, row.own, row.package});
  }
}

bool FileTypes::add(FileType type) {
  type.extension = lowerCase(type.extension);
  type.own = false;
  const FileType* present = ofExtension(type.extension);
  if (type.extension.size() < 2 || type.extension.front() != '.' || (present && present->own)) {
    return false;
  }
  std::string extension = type.extension;
  m_types.insert_or_assign(std::move(extension), std::move(type));
  return true;
}

const FileType* FileTypes::ofExtension(std::string_view extension) const {
  const auto found = m_types.find(lowerCase(extension));
  return found == m_types.end() ? nullptr : &found->second;
}

const FileType* FileTypes::ofFile(std::string_view fileName) const {
  const std::string extension = extensionOf(fileName);
  const auto found = m_types.find(extension);
  return found == m_types.end() ? nullptr : &found->second;
}

bool FileTypes::isProjectFile(std::string_view fileName) {
  const std::string extension = extensionOf(fileName);
  return extension == FileExtension::Project || extension == FileExtension::OldProject;
}

bool FileTypes::isDirectoryUnit(const FileType& type, std::string_view fileName,
                                std::string_view directoryName) {
  if (type.directoryUnit == NamedAfterDirectory) return stemOf(fileName) == directoryName;
  return fileName == type.directoryUnit;
}

}  // namespace veldra::host
