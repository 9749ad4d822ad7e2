#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "host/desktop/logic/SettingsTable.h"

namespace veldra::host::desktop {

/// The settings that count, one a row.
class SettingsModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { Name, Group, Value, From, ColumnCount };

  using QAbstractTableModel::QAbstractTableModel;
  void setRows(std::vector<SettingRow> rows);
  const SettingRow* row(const QModelIndex& index) const;
  QModelIndex indexOf(const PropertyKey& key) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  std::vector<SettingRow> m_rows;
};

/// The word for where a value comes from.
QString originText(Origin origin);

}  // namespace veldra::host::desktop
