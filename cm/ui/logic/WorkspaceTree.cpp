#include "cm/ui/logic/WorkspaceTree.h"

#include <unordered_set>

#include "cm/host/IProject.h"

namespace veldra {

/// Goes through the aggregates without recursion, since models nest as deep as their users like.
class WorkspaceTree::Walk {
 public:
  Walk(WorkspaceTree& tree, const LiveUnits& units) : m_tree(tree) {
    m_positions.reserve(units.size());
    for (std::size_t i = 0; i < units.size(); ++i) {
      m_positions.emplace(units.at(i), static_cast<std::uint32_t>(i));
    }
  }

  void from(IProject& project) {
    m_tree.m_nodes.push_back({0, 0, positionOf(project)});
    m_seen.insert(&project);
    open(project, 0);
    while (!m_open.empty()) {
      const Step step = m_open.back();
      m_open.pop_back();
      if (step.object != nullptr && m_seen.insert(step.object).second) visit(step);
    }
  }

 private:
  struct Step {
    IDObject* object;
    std::uint32_t parent;
  };

  void visit(const Step& step) {
    IUnit* const unit = step.object->asUnit();
    if (unit != nullptr && unit->isExcludedFromWorkspace()) return;
    std::uint32_t parent = step.parent;
    if (unit != nullptr && hasOwnFile(*unit)) {
      const std::uint32_t position = positionOf(*unit);
      if (position != NoUnit) {
        parent = static_cast<std::uint32_t>(m_tree.m_nodes.size());
        m_tree.m_nodes.push_back({step.parent, 0, position});
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

  std::uint32_t positionOf(IUnit& unit) {
    const auto found = m_positions.find(&unit);
    if (found != m_positions.end()) return found->second;
    readFileNames();
    const auto byFile = m_byFile.find(unit.getFullFileName());
    return byFile != m_byFile.end() ? byFile->second : NoUnit;
  }

  /// Only for hosts that show one file's unit as several objects.
  void readFileNames() {
    if (!m_byFile.empty()) return;
    for (const auto& [unit, position] : m_positions) {
      if (unit != nullptr) m_byFile.emplace(unit->getFullFileName(), position);
    }
  }

  WorkspaceTree& m_tree;
  std::unordered_map<const IUnit*, std::uint32_t> m_positions;
  std::unordered_map<std::string, std::uint32_t> m_byFile;
  std::unordered_set<const IDObject*> m_seen;
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

std::size_t WorkspaceTree::nodeOf(std::size_t position) const {
  if (position >= m_nodeOfUnit.size() || m_nodeOfUnit[position] == NoUnit) return None;
  return m_nodeOfUnit[position];
}

void WorkspaceTree::reorder(const std::vector<std::size_t>& order) {
  std::vector<std::uint32_t> reordered;
  reordered.reserve(order.size());
  for (const std::size_t position : order) {
    const std::uint32_t node = m_nodeOfUnit[position];
    if (node != NoUnit) m_nodes[node].unit = static_cast<std::uint32_t>(reordered.size());
    reordered.push_back(node);
  }
  m_nodeOfUnit = std::move(reordered);
}

}  // namespace veldra
