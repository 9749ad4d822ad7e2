#include "host/desktop/window/AttributeTable.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <algorithm>

#include "host/desktop/Text.h"
#include "host/desktop/window/TableTools.h"

namespace veldra::host::desktop {

AttributeTable::AttributeTable(QWidget* parent) : QTableWidget(0, 2, parent) {
  setHorizontalHeaderLabels({tr("Attribute"), tr("Value")});
  dressTable(*this);
  connect(this, &QTableWidget::itemChanged, this, &AttributeTable::edited);
}

void AttributeTable::showRows(const std::vector<SheetAttribute>& attributes, bool isEditable) {
  const QSignalBlocker quiet(this);
  m_shown = attributes;
  setRowCount(static_cast<int>(attributes.size()));
  for (int row = 0; row < rowCount(); ++row) {
    const SheetAttribute& attribute = attributes[static_cast<std::size_t>(row)];
    setItem(row, 0, new QTableWidgetItem(shown(attribute.name)));
    setItem(row, 1, new QTableWidgetItem(shown(attribute.value)));
  }
  setEditTriggers(isEditable ? EditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed)
                             : EditTriggers(NoEditTriggers));
}

std::vector<SheetAttribute> AttributeTable::attributes() const {
  std::vector<SheetAttribute> attributes;
  for (int row = 0; row < rowCount(); ++row) {
    const auto at = static_cast<std::size_t>(row);
    const SheetAttribute before = at < m_shown.size() ? m_shown[at] : SheetAttribute{};
    SheetAttribute now{editedBytes(*this, row, 0, before.name),
                       editedBytes(*this, row, 1, before.value)};
    if (now.name.empty()) continue;
    std::erase_if(attributes, [&now](const SheetAttribute& a) { return a.name == now.name; });
    attributes.push_back(std::move(now));
  }
  return attributes;
}

void AttributeTable::addRow() {
  beginNewRow(*this);
}

void AttributeTable::removeSelected() {
  for (const int row : selectedRows(*this)) {
    const auto at = static_cast<std::ptrdiff_t>(row);
    if (at < std::ssize(m_shown)) m_shown.erase(m_shown.begin() + at);
    removeRow(row);
  }
  emit edited();
}

}  // namespace veldra::host::desktop
