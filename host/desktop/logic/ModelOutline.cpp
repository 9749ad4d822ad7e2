#include "host/desktop/logic/ModelOutline.h"

#include <algorithm>

#include "cm/core/CMStatus.h"
#include "cm/core/CMTraitFacade.h"
#include "host/model/PathNames.h"

namespace veldra::host::desktop {
namespace {

Access accessOf(const UnitCore& unit) {
  if (!unit.hasFile()) return Access::NoFile;
  if (unit.record().stub) return Access::Stub;
  return unit.mode() == FileMode::ReadOnly ? Access::ReadOnly : Access::ReadWrite;
}

std::string lowerName(const OutlineNode& node) {
  return lowerCase(node.name);
}

/// Packages first, then by name as people read it.
bool comesBefore(const std::unique_ptr<OutlineNode>& a, const std::unique_ptr<OutlineNode>& b) {
  const bool aHolds = a->type == "Package";
  const bool bHolds = b->type == "Package";
  if (aHolds != bHolds) return aHolds;
  return std::pair(lowerName(*a), a->path) < std::pair(lowerName(*b), b->path);
}

class Builder {
 public:
  explicit Builder(const ArchiveStatus& archive) : m_archive(archive) {}

  std::unique_ptr<OutlineNode> build(const UnitCore& unit, OutlineNode* parent) const {
    auto node = std::make_unique<OutlineNode>(describe(unit));
    node->parent = parent;
    for (const UnitCore* child : unit.children()) {
      node->children.push_back(build(*child, node.get()));
    }
    std::ranges::sort(node->children, comesBefore);
    for (std::size_t row = 0; row < node->children.size(); ++row) node->children[row]->row = row;
    return node;
  }

 private:
  OutlineNode describe(const UnitCore& unit) const {
    const UnitRecord& record = unit.record();
    OutlineNode node = basicsOf(unit, record);
    takeState(unit, node);
    if (!m_archive.isKnown() || !unit.hasFile() || record.referenced) return node;
    const bool isProject = node.path == ".";
    const ArchiveStatus::Entry* entry = m_archive.find(isProject ? record.fileName : node.path);
    node.isOutsideArchive = entry == nullptr;
    if (entry && node.locker.empty()) node.locker = entry->locker;
    if (entry && node.version.empty()) node.version = entry->version;
    return node;
  }

  OutlineNode basicsOf(const UnitCore& unit, const UnitRecord& record) const {
    return {.file = unit.hasFile() ? unit.fullFileName() : std::string(),
            .path = unit.hasFile() ? unit.relativeFileName() : record.folder->relative,
            .name = record.name,
            .type = record.unitType,
            .version = m_headers.getVersion(&unit.unit()),
            .locker = m_headers.getLocker(&unit.unit()),
            .access = accessOf(unit),
            .isModified = unit.isModified(),
            .isControlledFile = record.controlledFile};
  }

  /// What a provider has told of the unit.
  static void takeState(const UnitCore& unit, OutlineNode& node) {
    const IUnit& shownUnit = unit.unit();
    if (unit.state() == CMState::Invalid || !unit.hasFile()) return;
    node.isOutsideArchive = (unit.state() & CMState::Controlled) == 0;
    node.isHeldByOther = (unit.state() & CMState::OutOther) != 0;
    node.status = CMStatus::getControlled(&shownUnit);
    const std::string checkedOut = CMStatus::getCheckedOut(&shownUnit);
    if (!checkedOut.empty()) node.status += ", " + checkedOut;
  }

  const ArchiveStatus& m_archive;
  CMHeaderReader m_headers;
};

}  // namespace

std::unique_ptr<OutlineNode> outlineOf(Project& project, const ArchiveStatus& archive) {
  return Builder(archive).build(project, nullptr);
}

UnitCore* unitOf(Project& project, const OutlineNode& node) {
  return node.file.empty() ? nullptr : project.unitByFile(node.file);
}

void collectUnits(Project& project, const OutlineNode& node, bool withDescendants,
                  UnitList& units) {
  UnitCore* unit = unitOf(project, node);
  if (unit && std::ranges::find(units, &unit->unit()) == units.end()) {
    units.push_back(&unit->unit());
  }
  if (!withDescendants) return;
  for (const auto& child : node.children) collectUnits(project, *child, true, units);
}

}  // namespace veldra::host::desktop
