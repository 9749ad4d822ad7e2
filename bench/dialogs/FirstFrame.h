#pragma once

#include <QAbstractItemModel>
#include <QStandardItemModel>
#include <QTreeView>
#include <QWidget>
#include <functional>
#include <memory>

namespace veldra::bench {

/// Windows without a screen; made before the first window, for the rest of the process.
void beginWindows();

/// Shows a window and returns when the first frame of it, with every list and tree that is visible
/// in it, has been painted.
void showFirstFrame(QWidget& window);

/// The same lines, texts and icons as in `model`, in a model that only hands out what it holds.
std::unique_ptr<QStandardItemModel> staticCopyOf(const QAbstractItemModel& model);

/// From nothing to the first frame: a window of the size and the rows of ours with nothing but a
/// `QTreeView`, all of whose lines are open.
std::unique_ptr<QTreeView> showBareView(QAbstractItemModel& model, const QSize& size);

/// The time from nothing to the first frame of the window that `open` makes, divided by that of a
/// bare view on a static copy of what is in `viewName`, the object name of its list or tree.
double openingAgainstBareView(int rounds, const std::function<std::unique_ptr<QWidget>()>& open,
                              const QString& viewName);

}  // namespace veldra::bench
