#pragma once

#include <QTreeView>
#include <string>

#include "tests/cm/ui/DialogTest.h"

namespace veldra::test {

/// The main dialog, open on the project of a `DialogTest`.
class MainDialogTest : public DialogTest {
 protected:
  QTreeView& list() { return at<QTreeView>(m_dialog, ControlId::FlatList); }
  QTreeView& tree() { return at<QTreeView>(m_dialog, ControlId::UnitTree); }
  QString cell(int row, int column) { return list().model()->index(row, column).data().toString(); }
  void select(int row) {
    list().selectionModel()->select(list().model()->index(row, 0),
                                    QItemSelectionModel::Select | QItemSelectionModel::Rows);
  }
  /// Reloads put new units in the place of the old ones, which the owners here would not notice.
  void ownNothing() {
    m_project.record.aggregates.clear();
    m_package.record.aggregates.clear();
    m_dialog.DoAfterOpRefresh();
  }
  std::string lastMessage() const {
    const auto& asked = m_host.memoryMessages.asked;
    return asked.empty() ? "" : asked.back().text.substr(0, 5);
  }

  CCMDialog m_dialog;
};

}  // namespace veldra::test
