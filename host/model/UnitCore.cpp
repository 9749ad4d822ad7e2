#include "host/model/UnitCore.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "host/model/PathNames.h"
#include "host/model/Project.h"

namespace veldra::host {
namespace {

bool contains(const std::string& text, const char* part) {
  return text.find(part) != std::string::npos;
}

/// A mode as CM tools print it; nothing when the text is none that is known.
std::optional<FileMode> modeOfText(const std::string& text) {
  const std::string mode = lowerCase(text);
  if (mode == "rw" || mode == "w" || contains(mode, "write")) return FileMode::ReadWrite;
  if (mode == "ro" || mode == "r" || contains(mode, "read")) return FileMode::ReadOnly;
  return std::nullopt;
}

std::string asFileName(const std::string& name) {
  std::string fileName = name;
  for (char& c : fileName) {
    constexpr std::string_view forbidden = "/\\:*?\"<>|";
    const bool isControl = static_cast<unsigned char>(c) < 0x20;
    if (isControl || forbidden.find(c) != std::string_view::npos) c = '_';
  }
  return fileName;
}

}  // namespace

UnitCore::UnitCore(Project& project, IUnit& unit, UnitRecord record)
    : m_project(project), m_unit(unit), m_record(std::move(record)) {}

UnitCore* UnitCore::of(IUnit* unit) {
  return dynamic_cast<UnitCore*>(unit);
}

std::string UnitCore::fullFileName() const {
  return hasFile() ? joinPath(m_record.folder->path, m_record.fileName) : std::string();
}

std::string UnitCore::relativeFileName() const {
  if (this == static_cast<const UnitCore*>(&m_project)) return ".";
  if (m_record.referenced) return fullFileName();
  return joinPath(m_record.folder->relative, m_record.fileName);
}

void UnitCore::setOwner(UnitCore* owner) {
  m_owner = owner;
  if (!owner) return;
  m_placeInOwner = owner->m_children.size();
  owner->m_children.push_back(this);
}

void UnitCore::leaveOwner() {
  if (!m_owner) return;
  std::vector<UnitCore*>& siblings = m_owner->m_children;
  siblings.erase(siblings.begin() + static_cast<std::ptrdiff_t>(m_placeInOwner));
  for (std::size_t at = m_placeInOwner; at < siblings.size(); ++at) {
    siblings[at]->m_placeInOwner = at;
  }
  m_owner = nullptr;
}

void UnitCore::takePlaceOf(UnitCore& former) {
  m_owner = former.m_owner;
  m_placeInOwner = former.m_placeInOwner;
  if (m_owner) m_owner->m_children[m_placeInOwner] = this;
  m_children = std::move(former.m_children);
  for (UnitCore* child : m_children) child->m_owner = this;
  former.m_children.clear();
}

const std::vector<UnitCore*>& UnitCore::children() const {
  m_project.needUnits();
  return m_children;
}

std::string UnitCore::qualifiedName() const {
  std::string name = m_record.name;
  for (const UnitCore* up = m_owner; up && up != &m_project; up = up->m_owner) {
    name = up->m_record.name + "::" + name;
  }
  return name;
}

UnitCore* UnitCore::saveUnit() {
  UnitCore* unit = this;
  // A controlled file is listed in its owner's file and has no content of its own in the model.
  if (m_record.controlledFile && m_owner) unit = m_owner;
  while (unit && !unit->hasFile()) unit = unit->m_owner;
  return unit;
}

std::uint32_t UnitCore::flags() const {
  std::uint32_t flags = 0;
  if (hasFile() && !m_record.controlledFile) flags |= UnitFlag::SavedSeparately;
  if (m_record.stub) flags |= UnitFlag::Stub;
  return flags;
}

bool UnitCore::isExternal() const {
  for (const UnitCore* unit = this; unit; unit = unit->m_owner) {
    if (unit->m_record.referenced) return true;
  }
  return false;
}

std::string UnitCore::computedFileName(const std::string& name) const {
  if (!isOwnFile() || m_record.controlledFile) return m_record.fileName;
  return asFileName(name) + m_record.fileName.substr(stemOf(m_record.fileName).size());
}

void UnitCore::setFile(Folder& folder, const std::string& fileName) {
  m_record.folder = &folder;
  m_record.fileName = fileName;
}

void UnitCore::takeFile() {
  takeHead(readUnitHead(fullFileName(), m_record.type));
  if (isOwnFile()) return;
  // Files of other tools, and files of any other type, are known by their names alone.
  m_record.name = std::string(m_record.directoryUnit ? baseName(m_record.folder->path)
                              : m_record.type        ? stemOf(m_record.fileName)
                                                     : std::string_view(m_record.fileName));
}

void UnitCore::takeFolderName() {
  m_record.name = std::string(baseName(m_record.folder->path));
}

void UnitCore::setFileName(const std::string& fileName) {
  const std::string former = fullFileName();
  m_record.fileName = fileName;
  m_project.unitMoved(*this, former);
}

bool UnitCore::approveRename(const std::string& fileName) const {
  // The model takes another name only when the CM tool has already given it to the file, and never
  // that of another unit's file.
  const std::string newName = joinPath(m_record.folder->path, fileName);
  const UnitCore* const known = m_project.unitByFile(newName);
  std::error_code unknown;
  return (known == nullptr || known == this) && std::filesystem::is_regular_file(newName, unknown);
}

void UnitCore::takeHead(const UnitHead& head) {
  m_record.mode = head.mode;
  m_record.fileTime = head.facts.written;
  m_record.header = head.header;
  m_record.mentionsProperties = head.mentionsProperties;
  if (!head.name.empty()) m_record.name = head.name;
  if (!head.unitType.empty()) m_record.unitType = head.unitType;
}

void UnitCore::updateHeader() {
  if (!hasFile()) return;
  UnitHead head = readUnitHead(fullFileName(), m_record.type);
  m_record.header = std::move(head.header);
  m_record.fileTime = head.facts.written;
}

void UnitCore::updateMode(const std::string& mode) {
  if (!hasFile()) return;
  if (const std::optional<FileMode> told = modeOfText(mode)) {
    m_record.mode = *told;
    return;
  }
  m_record.mode = modeOf(readFileFacts(fullFileName()));
}

bool UnitCore::batchArchive(std::string& archive) const {
  for (const UnitCore* unit = this; unit; unit = unit->m_owner) {
    const UnitArchive* own = m_project.archiveOf(unit->relativeFileName());
    if (own && !own->archive.empty()) {
      archive = own->archive;
      return true;
    }
  }
  return false;
}

bool UnitCore::sccArchive(std::string& projName, std::string& auxProjPath) const {
  for (const UnitCore* unit = this; unit; unit = unit->m_owner) {
    const UnitArchive* own = m_project.archiveOf(unit->relativeFileName());
    if (own && (!own->projName.empty() || !own->auxProjPath.empty())) {
      projName = own->projName;
      auxProjPath = own->auxProjPath;
      return true;
    }
  }
  return false;
}

void UnitCore::setSccArchive(const std::string& projName, const std::string& auxProjPath) {
  m_project.setProviderArchive(relativeFileName(), projName, auxProjPath);
}

}  // namespace veldra::host
