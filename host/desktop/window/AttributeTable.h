#pragma once

#include <QTableWidget>
#include <vector>

#include "host/desktop/logic/UnitSheet.h"

namespace veldra::host::desktop {

/// Names with values, in two columns.
class AttributeTable : public QTableWidget {
  Q_OBJECT

 public:
  explicit AttributeTable(QWidget* parent = nullptr);

  void showRows(const std::vector<SheetAttribute>& attributes, bool isEditable);
  /// What stands in the table; rows without a name are left out, of equal names the last one
  /// counts.
  std::vector<SheetAttribute> attributes() const;
  void addRow();
  void removeSelected();

 signals:
  void edited();

 private:
  std::vector<SheetAttribute> m_shown;
};

}  // namespace veldra::host::desktop
