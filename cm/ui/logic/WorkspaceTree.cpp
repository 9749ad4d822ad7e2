#include "cm/ui/logic/WorkspaceTree.h"

#include <unordered_map>
#include <utility>

#include "cm/host/IProject.h"
#include "cm/ui/logic/ObjectPlaces.h"

namespace veldra {

/// Goes through the aggregates without recursion, since models nest as deep as their users like.
class WorkspaceTree::Walk {
 public:
  Walk(WorkspaceTree& tree, const LiveUnits& units)
      : m_tree(tree), m_units(units), m_known(units.size()) {
    for (std::size_t place = 0; place < units.size(); ++place) {
      const IDObject* const unit = units.atPlace(place);
      if (unit != nullptr) m_known.of(unit).place = static_cast<std::uint32_t>(place);
    }
  }

  void from(IProject& project) {
    meet(project);
    m_tree.m_nodes.push_back({0, 0, placeOf(project)});
    open(project, 0);
    while (!m_open.empty()) {
      const Step step = m_open.back();
      m_open.pop_back();
      if (step.object != nullptr && meet(*step.object)) visit(step);
    }
  }

 private:
  struct Step {
    IDObject* object;
    std::uint32_t parent;
  };

  /// False when the object has been met before.
  bool meet(const IDObject& object) { return !std::exchange(m_known.of(&object).isMet, true); }

  void visit(const Step& step) {
    IUnit* const unit = step.object->asUnit();
    if (unit != nullptr && unit->isExcludedFromWorkspace()) return;
    std::uint32_t parent = step.parent;
    if (unit != nullptr && hasOwnFile(*unit)) {
      const std::uint32_t place = placeOf(*unit);
      if (place != NoUnit) {
        parent = static_cast<std::uint32_t>(m_tree.m_nodes.size());
        m_tree.m_nodes.push_back({step.parent, 0, place});
      }
    }
    open(*step.object, parent);
  }

  void open(IDObject& object, std::uint32_t parent) {
    const std::vector<IDObject*> owned = object.getAggregates();
    for (auto next = owned.rbegin(); next != owned.rend(); ++next)
      m_open.push_back({*next, parent});
  }

  static bool hasOwnFile(IUnit& unit) {
    return (unit.getFlags() & UnitFlag::SavedSeparately) != 0 || unit.asEmbededFile() != nullptr;
  }

  std::uint32_t placeOf(const IUnit& unit) {
    const IDObject* const object = &unit;
    const std::uint32_t place = m_known.of(object).place;
    if (place != ObjectPlaces::None) return place;
    readFileNames();
    const auto byFile = m_byFile.find(unit.getFullFileName());
    return byFile != m_byFile.end() ? byFile->second : NoUnit;
  }

  /// Only for hosts that show one file's unit as several objects.
  void readFileNames() {
    if (!m_byFile.empty()) return;
    for (std::size_t place = 0; place < m_units.size(); ++place) {
      const IUnit* const unit = m_units.atPlace(place);
      if (unit != nullptr) {
        m_byFile.emplace(unit->getFullFileName(), static_cast<std::uint32_t>(place));
      }
    }
  }

  WorkspaceTree& m_tree;
  const LiveUnits& m_units;
  ObjectPlaces m_known;
  std::unordered_map<std::string, std::uint32_t> m_byFile;
  std::vector<Step> m_open;
};

void WorkspaceTree::clear() {
  m_nodes.clear();
  m_firstChild.clear();
  m_children.clear();
  m_nodeOfUnit.clear();
}

void WorkspaceTree::fill(IProject* project, const LiveUnits& units) {
  clear();
  if (project == nullptr) return;
  Walk(*this, units).from(*project);
  m_nodes.shrink_to_fit();
  m_nodeOfUnit.assign(units.size(), NoUnit);
  for (std::uint32_t node = 0; node < m_nodes.size(); ++node) {
    if (m_nodes[node].unit != NoUnit) m_nodeOfUnit[m_nodes[node].unit] = node;
  }
  linkChildren();
}

void WorkspaceTree::linkChildren() {
  m_firstChild.assign(m_nodes.size() + 1, 0);
  for (std::size_t node = 1; node < m_nodes.size(); ++node)
    ++m_firstChild[m_nodes[node].parent + 1];
  for (std::size_t node = 0; node < m_nodes.size(); ++node) {
    m_firstChild[node + 1] += m_firstChild[node];
  }
  m_children.resize(m_nodes.empty() ? 0 : m_nodes.size() - 1);
  std::vector<std::uint32_t> filled(m_nodes.size(), 0);
  for (std::uint32_t node = 1; node < m_nodes.size(); ++node) {
    const std::uint32_t parent = m_nodes[node].parent;
    m_nodes[node].row = filled[parent]++;
    m_children[m_firstChild[parent] + m_nodes[node].row] = node;
  }
}

std::size_t WorkspaceTree::unitOf(std::size_t node) const {
  const std::uint32_t unit = m_nodes[node].unit;
  return unit == NoUnit ? None : unit;
}

std::size_t WorkspaceTree::nodeOf(std::size_t place) const {
  if (place >= m_nodeOfUnit.size() || m_nodeOfUnit[place] == NoUnit) return None;
  return m_nodeOfUnit[place];
}

}  // namespace veldra
