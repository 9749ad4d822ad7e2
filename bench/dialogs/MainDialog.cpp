#include <malloc.h>

#include <QCoreApplication>
#include <QHeaderView>
#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/BenchProject.h"
#include "bench/Rows.h"
#include "bench/SideBySide.h"
#include "bench/dialogs/FirstFrame.h"
#include "cm/core/CMArguments.h"
#include "cm/core/CMFacade.h"
#include "cm/ui/CCMDialog.h"
#include "cm/ui/logic/ViewState.h"
#include "cm/ui/widgets/Control.h"

namespace veldra::bench {

namespace {

constexpr std::size_t UnitCount = 100000;
constexpr int SelectedCount = 10000;

std::unique_ptr<CCMDialog> openDialog(bool flat) {
  ViewState::setViewMode(flat ? "Flat" : "Tree");
  return std::make_unique<CCMDialog>();
}

double openingOf(bool flat) {
  const BenchProject project(UnitCount, "/bin/true");
  return openingAgainstBareView(
      9, [flat] { return openDialog(flat); },
      controlName(flat ? ControlId::FlatList : ControlId::UnitTree));
}

/// An open dialog that shows the list.
class OpenList {
 public:
  OpenList() {
    beginWindows();
    m_dialog = openDialog(true);
    showFirstFrame(*m_dialog);
  }
  QTreeView& list() { return *findControl<QTreeView>(*m_dialog, ControlId::FlatList); }

  /// What the dialog does after a command, to the frame in which it shows.
  void refill() {
    m_dialog->DoAfterOpRefresh();
    QCoreApplication::processEvents();
  }

  std::vector<std::string> column(int column) {
    std::vector<std::string> texts;
    const QAbstractItemModel& model = *list().model();
    for (int row = 0; row < model.rowCount(); ++row) {
      texts.push_back(model.index(row, column).data().toString().toStdString());
    }
    return texts;
  }
  void sortBy(int column) { Q_EMIT list().header()->sectionClicked(column); }
  /// Selects so many rows with others between them, as a filter or a person picks them.
  void select(int count) {
    QItemSelection selection;
    const QAbstractItemModel& model = *list().model();
    const int step = model.rowCount() / std::max(count, 1);
    for (int i = 0; i < count; ++i) {
      selection.append(QItemSelectionRange(model.index(i * step, 0),
                                           model.index(i * step, model.columnCount() - 1)));
    }
    list().selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    m_dialog->CmSelectedItems();
    QCoreApplication::processEvents();
  }

 private:
  std::unique_ptr<CCMDialog> m_dialog;
};

void checkOutOne(const BenchProject& project) {
  UnitList units = project.units(1);
  CMMode mode(CMMode::ReadWrite);
  ArgumentList arguments{&mode};
  DiagnosticList diagnostics;
  if (CMFacade::CheckOut(units, arguments, diagnostics) == 0) {
    throw std::runtime_error("a unit cannot be checked out");
  }
}

}  // namespace

double openListAgainstBareView() {
  return openingOf(true);
}

double openTreeAgainstBareView() {
  return openingOf(false);
}

namespace {
/// What the program has allocated. Resident memory would count the pages of Qt's libraries, which
/// the first window brings in, and would not count what lies in memory that somebody gave back.
std::size_t heldBytes() {
  const struct mallinfo2 memory = mallinfo2();
  return memory.uordblks + memory.hblkhd;
}
}  // namespace

double dialogMemory() {
  const BenchProject project(UnitCount, "/bin/true");
  beginWindows();
  std::size_t most = 0;
  for (const bool flat : {true, false}) {
    const std::size_t before = heldBytes();
    const std::unique_ptr<QWidget> dialog = openDialog(flat);
    showFirstFrame(*dialog);
    most = std::max(most, heldBytes() - before);
  }
  return static_cast<double>(most) / static_cast<double>(UnitCount);
}

double sortAgainstStdSort() {
  const BenchProject project(UnitCount, "/bin/true");
  OpenList open;
  double worst = 0;
  const int columns = open.list().model()->columnCount();
  for (int column = 0; column < columns; ++column) {
    const int other = (column + 1) % columns;
    open.sortBy(other);
    const std::vector<std::string> unsorted = open.column(column);
    std::vector<std::string> strings;
    const double ratio = ratioOf(
        5,
        [&] {
          open.sortBy(other);
          strings = unsorted;
        },
        [&] { open.sortBy(column); }, [&] { std::sort(strings.begin(), strings.end()); });
    worst = std::max(worst, ratio);
  }
  return worst;
}

double refillAgainstOpening() {
  const BenchProject project(UnitCount, "/bin/true");
  OpenList open;
  std::unique_ptr<QWidget> other;
  // A second dialog would be refilled with the first.
  const auto prepare = [&] {
    other.reset();
    checkOutOne(project);
  };
  return ratioOf(9, Side{prepare, [&] { open.refill(); }}, Side{prepare, [&] {
                                                                  other = openDialog(true);
                                                                  showFirstFrame(*other);
                                                                }});
}

double refillKeepsSelection() {
  const BenchProject project(UnitCount, "/bin/true");
  OpenList open;
  const auto prepare = [&](bool selected) {
    checkOutOne(project);
    open.select(selected ? SelectedCount : 0);
  };
  const auto refill = [&] { open.refill(); };
  return ratioOf(9, Side{[&] { prepare(true); }, refill}, Side{[&] { prepare(false); }, refill});
}

}  // namespace veldra::bench
