#include "host/desktop/window/ModelTreeModel.h"

#include <QCoreApplication>
#include <QFont>

#include "host/desktop/Text.h"
#include "host/desktop/window/Icons.h"

namespace veldra::host::desktop {
namespace {

const OutlineNode* find(const OutlineNode& node, const std::string& path) {
  if (node.path == path) return &node;
  for (const auto& child : node.children) {
    if (const OutlineNode* found = find(*child, path)) return found;
  }
  return nullptr;
}

}  // namespace

QString accessText(const OutlineNode& node) {
  const auto text = [](const char* source) {
    return QCoreApplication::translate("ModelTree", source);
  };
  if (node.isModified) return text(QT_TRANSLATE_NOOP("ModelTree", "Changed, not saved yet"));
  if (node.isOutsideArchive) return text(QT_TRANSLATE_NOOP("ModelTree", "Not in the archive yet"));
  switch (node.access) {
    case Access::ReadOnly:
      return text(QT_TRANSLATE_NOOP("ModelTree", "Read-only"));
    case Access::ReadWrite:
      return text(QT_TRANSLATE_NOOP("ModelTree", "Writable"));
    case Access::Stub:
      return text(QT_TRANSLATE_NOOP("ModelTree", "Not loaded"));
    case Access::NoFile:
      return text(QT_TRANSLATE_NOOP("ModelTree", "A folder without a file of its own"));
  }
  return {};
}

void ModelTreeModel::setOutline(std::unique_ptr<OutlineNode> root) {
  beginResetModel();
  m_root = std::move(root);
  endResetModel();
}

const OutlineNode* ModelTreeModel::node(const QModelIndex& index) const {
  return static_cast<const OutlineNode*>(index.internalPointer());
}

QModelIndex ModelTreeModel::indexOf(const OutlineNode& node) const {
  return createIndex(static_cast<int>(node.row), 0, &node);
}

QModelIndex ModelTreeModel::indexOfPath(const std::string& path) const {
  const OutlineNode* found = m_root ? find(*m_root, path) : nullptr;
  return found ? indexOf(*found) : QModelIndex();
}

QModelIndex ModelTreeModel::index(int row, int column, const QModelIndex& parent) const {
  if (!hasIndex(row, column, parent)) return {};
  const OutlineNode* above = node(parent);
  const OutlineNode* at =
      above ? above->children[static_cast<std::size_t>(row)].get() : m_root.get();
  return createIndex(row, column, at);
}

QModelIndex ModelTreeModel::parent(const QModelIndex& index) const {
  const OutlineNode* at = node(index);
  return at && at->parent ? indexOf(*at->parent) : QModelIndex();
}

int ModelTreeModel::rowCount(const QModelIndex& parent) const {
  if (parent.column() > 0) return 0;
  if (const OutlineNode* at = node(parent)) return static_cast<int>(at->children.size());
  return m_root ? 1 : 0;
}

int ModelTreeModel::columnCount(const QModelIndex& /*parent*/) const {
  return ColumnCount;
}

QString ModelTreeModel::toolTip(const OutlineNode& node) {
  QString text = shownName(node.path) + "\n" + shownName(node.type) + ", " + accessText(node);
  if (!node.status.empty()) text += "\n" + shownName(node.status);
  return plainTip(text);
}

QVariant ModelTreeModel::data(const QModelIndex& index, int role) const {
  const OutlineNode* at = node(index);
  if (!at) return {};
  if (role == Qt::ToolTipRole) return toolTip(*at);
  if (role == Qt::DecorationRole && index.column() == Name) return unitIcon(*at);
  if (role == Qt::AccessibleDescriptionRole) {
    return at->status.empty() ? accessText(*at) : accessText(*at) + ", " + shownName(at->status);
  }
  if (role == Qt::FontRole && at->isModified && index.column() == Name) {
    QFont font;
    font.setBold(true);
    return font;
  }
  if (role != Qt::DisplayRole) return {};
  switch (index.column()) {
    case Name:
      return shownName(at->name);
    case Version:
      return shownName(at->version);
    case Holder:
      return shownName(at->locker);
    default:
      return {};
  }
}

QVariant ModelTreeModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  switch (section) {
    case Name:
      return tr("Unit");
    case Version:
      return tr("Version");
    default:
      return tr("Held by");
  }
}

}  // namespace veldra::host::desktop
