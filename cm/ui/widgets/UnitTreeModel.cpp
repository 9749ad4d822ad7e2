#include "cm/ui/widgets/UnitTreeModel.h"

#include "cm/host/MessageIds.h"
#include "cm/ui/Icons.h"
#include "cm/ui/logic/HostTexts.h"
#include "cm/ui/logic/ProjectRoot.h"
#include "cm/ui/widgets/Text.h"

namespace veldra {

UnitTreeModel::UnitTreeModel(const WorkspaceData& data, QObject* parent)
    : QAbstractItemModel(parent), m_data(data) {}

QModelIndex UnitTreeModel::indexOfNode(std::size_t node) const {
  return createIndex(static_cast<int>(m_data.tree.rowOf(node)), 0, node);
}

QModelIndex UnitTreeModel::index(int row, int column, const QModelIndex& parent) const {
  if (row < 0 || column != 0 || row >= rowCount(parent)) return {};
  if (!parent.isValid()) return createIndex(0, 0, quintptr{0});
  return createIndex(row, 0, m_data.tree.childAt(nodeOf(parent), static_cast<std::size_t>(row)));
}

QModelIndex UnitTreeModel::parent(const QModelIndex& child) const {
  if (!child.isValid() || nodeOf(child) == 0) return {};
  return indexOfNode(m_data.tree.parentOf(nodeOf(child)));
}

int UnitTreeModel::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return m_data.tree.size() > 0 ? 1 : 0;
  return static_cast<int>(m_data.tree.childCount(nodeOf(parent)));
}

const IUnit* UnitTreeModel::unitOf(const QModelIndex& index) const {
  return m_data.visibleUnitAtPlace(m_data.tree.unitOf(nodeOf(index)));
}

QVariant UnitTreeModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || m_data.isFrozen) return {};
  IProject* const root = nodeOf(index) == 0 ? activeProjectUnit() : nullptr;
  const IUnit* const unit = root != nullptr ? root : unitOf(index);
  if (unit == nullptr) return {};
  switch (role) {
    case Qt::DisplayRole:
      return shown(m_data.texts->treeLabel(*unit));
    case Qt::DecorationRole:
      return unitIconWithState(*unit, root != nullptr ? rootOverlay(*root) : 0);
    case Qt::ToolTipRole:
      return plainTip(shown(nameNShortPath(unit)));
    default:
      return {};
  }
}

}  // namespace veldra
