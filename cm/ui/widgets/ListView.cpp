#include "cm/ui/widgets/ListView.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QShortcut>
#include <algorithm>

#include "cm/ui/ControlIds.h"
#include "cm/ui/widgets/Control.h"
#include "cm/ui/widgets/UnitFilter.h"

namespace veldra {

namespace {
constexpr int HeaderMargin = 15;

/// About what a window shows at once; to look at every row takes too long.
constexpr int FirstRows = 30;

int widthOfFirstRows(const QTreeView& list, int column) {
  const QAbstractItemModel& model = *list.model();
  int width = 0;
  for (int row = 0; row < std::min(FirstRows, model.rowCount()); ++row) {
    width = std::max(width, list.sizeHintForIndex(model.index(row, column)).width());
  }
  return width;
}

}  // namespace

LineView* makeView(QWidget* parent, int id, const QString& name) {
  auto* const view = control(new LineView(parent), id, name);
  view->setSelectionMode(QAbstractItemView::ExtendedSelection);
  view->setUniformRowHeights(true);
  view->setTextElideMode(Qt::ElideMiddle);
  view->setContextMenuPolicy(Qt::CustomContextMenu);
  view->setEditTriggers(QAbstractItemView::NoEditTriggers);
  return view;
}

LineView* makeListView(QWidget* parent, int id, const QString& name) {
  LineView* const list = makeView(parent, id, name);
  list->setRootIsDecorated(false);
  list->setAlternatingRowColors(true);
  list->setIconSize({18, 18});
  QHeaderView& header = *list->header();
  header.setSectionsClickable(true);
  header.setSortIndicatorShown(true);
  header.setHighlightSections(false);
  header.setStretchLastSection(true);
  return list;
}

void fitColumns(QTreeView& list, int width) {
  const QAbstractItemModel& model = *list.model();
  const QFontMetrics metrics(list.header()->font());
  for (int column = 0; column < model.columnCount(); ++column) {
    const QString title = model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    const int smallest = metrics.horizontalAdvance(title) + HeaderMargin;
    const int wanted = column == 0 ? width * 2 / 5 : widthOfFirstRows(list, column) + HeaderMargin;
    list.setColumnWidth(column, std::max(smallest + HeaderMargin, wanted));
  }
}

std::vector<int> selectedRows(const LineView& list, const UnitFilter& filter) {
  std::vector<int> rows;
  // A filter keeps the order.
  for (const int row : list.selectedRows()) {
    rows.push_back(filter.sourceOf(list.model()->index(row, 0)).row());
  }
  return rows;
}

void selectRows(QTreeView& list, const UnitFilter& filter, const QAbstractItemModel& source,
                const std::vector<int>& rows) {
  std::vector<int> shown;
  shown.reserve(rows.size());
  for (const int row : rows) {
    const QModelIndex index = filter.shownFor(source.index(row, 0));
    if (index.isValid()) shown.push_back(index.row());
  }
  QItemSelection selection;
  const QAbstractItemModel& model = *list.model();
  const int last = model.columnCount() - 1;
  for (std::size_t i = 0; i < shown.size();) {
    std::size_t end = i + 1;
    while (end < shown.size() && shown[end] == shown[end - 1] + 1) ++end;
    selection.append(
        QItemSelectionRange(model.index(shown[i], 0), model.index(shown[end - 1], last)));
    i = end;
  }
  setSelection(list, selection);
}

void setSelection(QTreeView& view, const QItemSelection& selection) {
  // A view that is up to date looks for each line that has changed, which takes long for many.
  const bool updates = view.updatesEnabled();
  view.setUpdatesEnabled(false);
  view.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  view.setUpdatesEnabled(updates);
}

QLineEdit* makeFilterField(QWidget* window, const QString& hint, const QString& description) {
  auto* const field =
      control(new QLineEdit(window), ControlId::Filter,
              QCoreApplication::translate("veldra::ListView", "Filter"), description);
  field->setPlaceholderText(hint);
  field->setClearButtonEnabled(true);
  auto* const find = new QShortcut(QKeySequence::Find, window);
  QObject::connect(find, &QShortcut::activated, field, [field] {
    field->setFocus();
    field->selectAll();
  });
  return field;
}

}  // namespace veldra
