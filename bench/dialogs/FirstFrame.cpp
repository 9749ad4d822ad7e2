#include "bench/dialogs/FirstFrame.h"

#include <QApplication>
#include <QEvent>
#include <algorithm>
#include <set>
#include <stdexcept>

#include "bench/SideBySide.h"

namespace veldra::bench {

namespace {

/// Sees which viewports are painted.
class PaintWatch : public QObject {
 public:
  PaintWatch() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) m_painted.insert(watched);
    return false;
  }
  bool isPainted(const QObject* widget) const { return m_painted.contains(widget); }

 private:
  std::set<const QObject*> m_painted;
};

bool areViewsPainted(const QWidget& window, const PaintWatch& watch) {
  QList<const QWidget*> views;
  for (const auto* view : window.findChildren<const QAbstractItemView*>()) {
    if (view->isVisible()) views.push_back(view->viewport());
  }
  if (const auto* view = qobject_cast<const QAbstractItemView*>(&window)) {
    views.push_back(view->viewport());
  }
  return std::all_of(views.begin(), views.end(),
                     [&watch](const QWidget* view) { return watch.isPainted(view); });
}

void copyLines(const QAbstractItemModel& model, const QModelIndex& from, QStandardItem& into) {
  const int columns = model.columnCount(from);
  for (int row = 0; row < model.rowCount(from); ++row) {
    QList<QStandardItem*> line;
    for (int column = 0; column < columns; ++column) {
      const QModelIndex cell = model.index(row, column, from);
      auto* const item = new QStandardItem(cell.data().toString());
      item->setIcon(cell.data(Qt::DecorationRole).value<QIcon>());
      line.push_back(item);
    }
    into.appendRow(line);
    copyLines(model, model.index(row, 0, from), *line.front());
  }
}

}  // namespace

void beginWindows() {
  static int argc = 1;
  static char name[] = "veldra_bench";
  static char* argv[] = {name, nullptr};
  if (qApp != nullptr) return;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // It remarks on every window that no window manager can be told its size.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  // Never destroyed: it would outlive static objects that it needs.
  new QApplication(argc, argv);
}

void showFirstFrame(QWidget& window) {
  const PaintWatch watch;
  window.show();
  for (int turn = 0; !areViewsPainted(window, watch); ++turn) {
    if (turn == 1000) throw std::runtime_error("a window is not painted");
    QCoreApplication::processEvents();
  }
}

std::unique_ptr<QStandardItemModel> staticCopyOf(const QAbstractItemModel& model) {
  auto copy = std::make_unique<QStandardItemModel>();
  copyLines(model, {}, *copy->invisibleRootItem());
  return copy;
}

std::unique_ptr<QTreeView> showBareView(QAbstractItemModel& model, const QSize& size) {
  auto view = std::make_unique<QTreeView>();
  view->resize(size);
  view->setModel(&model);
  view->expandAll();
  showFirstFrame(*view);
  return view;
}

double openingAgainstBareView(int rounds, const std::function<std::unique_ptr<QWidget>()>& open,
                              const QString& viewName) {
  beginWindows();
  std::unique_ptr<QWidget> ours = open();
  showFirstFrame(*ours);
  const auto* const view = ours->findChild<QTreeView*>(viewName);
  if (view == nullptr) throw std::runtime_error("no view " + viewName.toStdString());
  const std::unique_ptr<QStandardItemModel> lines = staticCopyOf(*view->model());
  const QSize size = ours->size();
  std::unique_ptr<QTreeView> theirs;
  return ratioOf(
      rounds,
      [&] {
        ours.reset();
        theirs.reset();
      },
      [&] {
        ours = open();
        showFirstFrame(*ours);
      },
      [&] { theirs = showBareView(*lines, size); });
}

}  // namespace veldra::bench
