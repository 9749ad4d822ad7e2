#pragma once

#include <QItemSelection>
#include <QLineEdit>
#include <vector>

#include "cm/ui/widgets/LineView.h"

namespace veldra {

class UnitFilter;

/// A view with the look and the keyboard that all lists and trees of the dialogs share.
LineView* makeView(QWidget* parent, int id, const QString& name);
/// The same as a list of rows with columns, whose headers can be clicked to sort.
LineView* makeListView(QWidget* parent, int id, const QString& name);

/// Columns as wide as their contents in the first rows and no narrower than their headers; the
/// first one takes two fifths of `width`.
void fitColumns(QTreeView& list, int width);

/// The rows of `source` that are selected in the view, ascending; the view may look through the
/// filter.
std::vector<int> selectedRows(const LineView& list, const UnitFilter& filter);
/// Selects these rows of `source`, ascending, and nothing else. Rows outside the list are ignored.
void selectRows(QTreeView& list, const UnitFilter& filter, const QAbstractItemModel& source,
                const std::vector<int>& rows);

/// Selects these whole lines of the view's model and nothing else.
void setSelection(QTreeView& view, const QItemSelection& selection);

/// The field that filters; Ctrl+F leads to it.
QLineEdit* makeFilterField(QWidget* window, const QString& hint, const QString& description);

}  // namespace veldra
