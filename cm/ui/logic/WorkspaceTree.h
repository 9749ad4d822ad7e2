#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "cm/host/Export.h"
#include "cm/ui/logic/LiveUnits.h"

namespace veldra {

/// The workspace as the model owns it: the project as root, below it every unit of the workspace
/// that has a file of its own. What has none is left out, and what it owns moves up.
///
/// Nodes are numbers, the root is 0; children stand in the model's order.
class VELDRA_CM_EXPORT WorkspaceTree {
 public:
  static constexpr std::size_t None = static_cast<std::size_t>(-1);

  /// `units` are the workspace; a place in it identifies the unit of a node.
  void fill(IProject* project, const LiveUnits& units);
  void clear();

  /// 0 without a project.
  std::size_t size() const { return m_nodes.size(); }
  std::size_t parentOf(std::size_t node) const { return m_nodes[node].parent; }
  /// Its place among its parent's children.
  std::size_t rowOf(std::size_t node) const { return m_nodes[node].row; }
  std::size_t childCount(std::size_t node) const {
    return m_firstChild[node + 1] - m_firstChild[node];
  }
  std::size_t childAt(std::size_t node, std::size_t row) const {
    return m_children[m_firstChild[node] + row];
  }
  /// The place of the node's unit in the workspace; `None` when the project is no part of it.
  std::size_t unitOf(std::size_t node) const;
  /// The node of a place in the workspace, or `None`.
  std::size_t nodeOf(std::size_t place) const;

 private:
  static constexpr std::uint32_t NoUnit = static_cast<std::uint32_t>(-1);
  struct Node {
    std::uint32_t parent;
    std::uint32_t row;
    std::uint32_t unit;
  };
  class Walk;

  void linkChildren();

  std::vector<Node> m_nodes;
  std::vector<std::uint32_t> m_firstChild;  ///< Per node, and one more for the end.
  std::vector<std::uint32_t> m_children;
  std::vector<std::uint32_t> m_nodeOfUnit;
};

}  // namespace veldra
