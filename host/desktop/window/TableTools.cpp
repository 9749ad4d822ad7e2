#include "host/desktop/window/TableTools.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <set>

#include "host/desktop/Text.h"

namespace veldra::host::desktop {

void dressTable(QTableWidget& table) {
  table.verticalHeader()->hide();
  table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 10);
  table.horizontalHeader()->setStretchLastSection(true);
  table.horizontalHeader()->setHighlightSections(false);
  table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  table.setSelectionBehavior(QAbstractItemView::SelectRows);
  table.setAlternatingRowColors(true);
  table.setShowGrid(false);
  table.setTabKeyNavigation(false);
}

std::string editedBytes(const QTableWidget& table, int row, int column, const std::string& before) {
  const QTableWidgetItem* item = table.item(row, column);
  const QString text = item ? item->text() : QString();
  return text == shown(before) ? before : bytesOf(text);
}

std::vector<int> selectedRows(const QTableWidget& table) {
  std::set<int, std::greater<>> rows;
  for (const QModelIndex& index : table.selectionModel()->selectedIndexes()) {
    rows.insert(index.row());
  }
  return {rows.begin(), rows.end()};
}

void beginNewRow(QTableWidget& table) {
  const int row = table.rowCount();
  {
    const QSignalBlocker quiet(&table);
    table.insertRow(row);
    for (int column = 0; column < table.columnCount(); ++column) {
      table.setItem(row, column, new QTableWidgetItem);
    }
  }
  table.setCurrentCell(row, 0);
  table.editItem(table.item(row, 0));
}

}  // namespace veldra::host::desktop
