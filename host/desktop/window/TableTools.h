#pragma once

#include <QTableWidget>
#include <string>
#include <vector>

namespace veldra::host::desktop {

/// The look that all tables share.
void dressTable(QTableWidget& table);

/// The bytes of a cell: those from `before` unless what is shown of them was edited.
std::string editedBytes(const QTableWidget& table, int row, int column, const std::string& before);

/// The selected rows, the last one first.
std::vector<int> selectedRows(const QTableWidget& table);

/// Adds an empty row and lets the user type into its first cell.
void beginNewRow(QTableWidget& table);

}  // namespace veldra::host::desktop
