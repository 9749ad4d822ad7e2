#include "cm/ui/logic/WorkspaceTree.h"

#include "tests/support/HostTest.h"

namespace veldra::test {
namespace {

class WorkspaceTreeTest : public HostTest {
 protected:
  /// The tree as text: each node's name, and its children in parentheses.
  std::string shape(std::size_t node = 0) const {
    std::string text = node == 0 ? "P" : m_units.atPlace(m_tree.unitOf(node))->getName();
    std::string below;
    for (std::size_t row = 0; row < m_tree.childCount(node); ++row) {
      const std::size_t child = m_tree.childAt(node, row);
      EXPECT_EQ(m_tree.parentOf(child), node);
      EXPECT_EQ(m_tree.rowOf(child), row);
      below += (below.empty() ? "" : " ") + shape(child);
    }
    return below.empty() ? text : text + '(' + below + ')';
  }
  void fill(const UnitList& units) {
    m_units.assign(units);
    m_tree.fill(&m_project, m_units);
  }

  LiveUnits m_units;
  WorkspaceTree m_tree;
  MemoryPackage& m_package = m_model.addPackage("A.vpk");
  MemoryUnit& m_inner = m_model.addUnit("Inner.vcl");
  MemoryUnit& m_leaf = m_model.addUnit("Leaf.vcl");
  MemoryEmbeddedFile& m_file = m_model.addEmbeddedFile("F.txt");
  NamedObject<IDObject> m_relation{"relation", "Relation"};
};

TEST_F(WorkspaceTreeTest, UnitsWithoutAFileHandTheirContentUp) {
  m_file.record.flags = 0;
  m_project.record.aggregates = {&m_relation, &m_package, &m_file};
  m_package.record.aggregates = {&m_inner};
  m_inner.record.aggregates = {&m_leaf};
  fill({&m_project, &m_package, &m_inner, &m_leaf, &m_file});
  EXPECT_EQ(shape(), "P(A(Inner(Leaf)) F)");
  m_inner.record.flags = 0;
  fill({&m_project, &m_package, &m_leaf, &m_file});
  EXPECT_EQ(shape(), "P(A(Leaf) F)");
  fill({&m_leaf});
  EXPECT_EQ(shape(), "P(Leaf)") << "a package outside the workspace gets no line";
  m_package.record.excluded = true;
  fill({&m_leaf, &m_file});
  EXPECT_EQ(shape(), "P(F)") << "what is excluded goes with all that it owns";
}

TEST_F(WorkspaceTreeTest, CirclesAndNullsEnd) {
  m_project.record.aggregates = {nullptr, &m_package, &m_package};
  m_package.record.aggregates = {&m_inner, &m_project};
  m_inner.record.aggregates = {&m_package};
  fill({&m_package, &m_inner});
  EXPECT_EQ(shape(), "P(A(Inner))");
}

TEST_F(WorkspaceTreeTest, NodesStayWithTheirUnitsInAnotherOrder) {
  m_project.record.aggregates = {&m_package, &m_leaf};
  fill({&m_package, &m_project, &m_leaf});
  m_units.reorder({2, 0, 1});
  m_units.reorder({1, 0, 2});
  EXPECT_EQ(m_units.alive(), (UnitList{&m_package, &m_leaf, &m_project}));
  EXPECT_EQ(shape(), "P(A Leaf)");
  EXPECT_EQ(m_tree.nodeOf(m_units.placeAt(2)), 0U);
  const UnitList relisted{&m_project, &m_inner, &m_leaf};
  m_units.assign(relisted);
  EXPECT_EQ(m_units.alive(), relisted) << "a new list stands in its own order";
  m_tree.fill(nullptr, m_units);
  EXPECT_EQ(m_tree.size(), 0U);
}

}  // namespace
}  // namespace veldra::test
