#include "host/desktop/window/SettingsModel.h"

#include <QCoreApplication>
#include <QFont>
#include <algorithm>

#include "host/desktop/Text.h"

namespace veldra::host::desktop {

QString originText(Origin origin) {
  switch (origin) {
    case Origin::Pack:
      return SettingsModel::tr("Tool pack");
    case Origin::Site:
      return SettingsModel::tr("Site");
    case Origin::User:
      return SettingsModel::tr("User");
    case Origin::Project:
      return SettingsModel::tr("Project");
    case Origin::Unit:
      return SettingsModel::tr("Unit");
  }
  return {};
}

void SettingsModel::setRows(std::vector<SettingRow> rows) {
  beginResetModel();
  m_rows = std::move(rows);
  endResetModel();
}

const SettingRow* SettingsModel::row(const QModelIndex& index) const {
  const auto at = static_cast<std::size_t>(index.row());
  return index.isValid() && at < m_rows.size() ? &m_rows[at] : nullptr;
}

QModelIndex SettingsModel::indexOf(const PropertyKey& key) const {
  const auto at = std::ranges::find(m_rows, key, &SettingRow::key);
  return at == m_rows.end() ? QModelIndex() : index(static_cast<int>(at - m_rows.begin()), 0);
}

int SettingsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int SettingsModel::columnCount(const QModelIndex& /*parent*/) const {
  return ColumnCount;
}

QVariant SettingsModel::data(const QModelIndex& index, int role) const {
  const SettingRow* at = row(index);
  if (!at) return {};
  if (role == Qt::FontRole && at->origin != Origin::Pack && index.column() != Group) {
    QFont font;
    font.setBold(true);
    return font;
  }
  if (role == Qt::ToolTipRole)
    return plainTip(shownLines(shown(at->source.empty() ? at->value : at->source)));
  if (role != Qt::DisplayRole) return {};
  switch (index.column()) {
    case Name:
      return shownName(at->key.name);
    case Group:
      return shownName(at->key.metaclass);
    case Value:
      return shownLines(shown(at->value)).replace('\n', QChar(0x21B5));
    default:
      return originText(at->origin);
  }
}

QVariant SettingsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  switch (section) {
    case Name:
      return tr("Property");
    case Group:
      return tr("Group");
    case Value:
      return tr("Value");
    default:
      return tr("From");
  }
}

}  // namespace veldra::host::desktop
