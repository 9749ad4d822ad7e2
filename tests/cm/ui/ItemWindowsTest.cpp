#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

#include "cm/core/CMArchiveItem.h"
#include "cm/host/IPN.h"
#include "cm/ui/archive/CCMArcCoDlg.h"
#include "cm/ui/logic/archive/ListArchive.h"
#include "cm/ui/synchronize/CMSyncDlg.h"
#include "cm/ui/synchronize/QuestionWindow.h"
#include "tests/cm/ui/DialogTest.h"

namespace veldra::test {
namespace {

/// The project of `DialogTest` with a tool whose listing has lines "name|version|mode|locker".
class ItemWindowsTest : public DialogTest {
 protected:
  ItemWindowsTest() {
    m_model.fullPathRepFiles = true;
    // Reloads put new units in the place of the old ones, which the owners here would not notice.
    m_project.record.aggregates.clear();
    m_package.record.aggregates.clear();
    set(IPN::CMListArchive, "ls");
    set(IPN::CMMultiRecordDelimiter, "\\n(?=.)");
    set(IPN::CMListArchiveItsWorkingFile, "^([^|]*)\\|");
    set(IPN::CMListArchiveItsVersion, "^[^|]*\\|([^|]*)");
    set(IPN::CMListArchiveItsLocker, "\\|([^|]+)$");
    set(IPN::CMHeaderItsVersion, "v:(\\S+)");
    set(IPN::CMCheckOutFromArchive, "co $UnitPath");
    m_class.record.header = "v:1";
    m_package.record.header = "v:1";
    archiveHolds("Brewing/Boiler.vcl|2|ro|bob\nBrewing.vpk|1|ro|\nNew.vcl|1|ro|");
  }
  void archiveHolds(const std::string& listing) {
    m_host.scriptedProcesses.answer("ls", {.output = listing});
  }
  std::string lastMessage() const {
    const auto& asked = m_host.memoryMessages.asked;
    return asked.empty() ? "" : asked.back().text.substr(0, 5);
  }
  Lines checkOuts() const {
    Lines lines;
    for (const std::string& command : commands()) {
      if (command.starts_with("co ")) lines.push_back(command);
    }
    return lines;
  }
  static QString cell(const QTreeView& list, int row, int column) {
    return list.model()->index(row, column).data().toString();
  }
  static void select(QTreeView& list, int row) {
    list.selectionModel()->select(list.model()->index(row, 0),
                                  QItemSelectionModel::Select | QItemSelectionModel::Rows);
  }
};

class ArchiveWindowTest : public ItemWindowsTest {
 protected:
  ArchiveWindowTest() {
    DiagnosticList diagnostics;
    listArchiveInto(m_items, {}, diagnostics);
  }
  CMArchiveItemListWrapper m_items;
};

TEST_F(ArchiveWindowTest, ControlsAreFoundByTheirNumbersAndFollowTheBackEnd) {
  const struct {
    bool usesProvider;
    Lines hidden;
  } rows[] = {{false, {"246", "236"}}, {true, {"235", "236"}}};
  for (const auto& row : rows) {
    if (row.usesProvider) useProvider();
    const CCMArcCoDlg dialog(m_items.list());
    Lines hidden;
    for (const int id : {219, 218, 246, 235, 220, 236}) {
      const QWidget& control = at(dialog, id);
      EXPECT_FALSE(control.accessibleName().isEmpty()) << id;
      if (control.isHidden()) hidden.push_back(std::to_string(id));
      EXPECT_EQ(control.isEnabled(), !control.isHidden()) << id;
    }
    EXPECT_EQ(hidden, row.hidden);
  }
}

TEST_F(ArchiveWindowTest, AHeaderClickSortsAndKeepsTheSelection) {
  CCMArcCoDlg dialog(m_items.list());
  QTreeView& list = *dialog.list();
  EXPECT_EQ(cell(list, 0, 0), QStringLiteral("Brewing.vpk"));
  select(list, 1);
  for (int click = 0; click < 2; ++click) {
    Q_EMIT list.header()->sectionClicked(2);
    EXPECT_EQ(cell(list, 2, 2), QStringLiteral("2")) << "ascending both times";
  }
  EXPECT_EQ(dialog.CmSelectedItems().size(), 1U);
  Q_EMIT list.header()->sectionClicked(0);
  const CCMArcCoDlg next(m_items.list());
  EXPECT_EQ(cell(*next.list(), 0, 0), QStringLiteral("Brewing.vpk"));
}

TEST_F(ArchiveWindowTest, CheckOutByKeyboardAlone) {
  m_host.memoryMessages.loadAnswers = {"yes"};
  CCMArcCoDlg dialog(m_items.list());
  dialog.show();
  QTreeView& list = *dialog.list();
  list.setCurrentIndex(list.model()->index(2, 0));
  onNextWindow([](QDialog& window) { QTest::keyClick(&window, Qt::Key_Return); });
  QTest::keyClick(&at(dialog, ControlId::ArchiveCheckOut), Qt::Key_Space);
  EXPECT_EQ(checkOuts(), (Lines{"co /plan/New.vcl"}));
  EXPECT_NE(IUnit::getByFile("/plan/New.vcl"), nullptr);
}

TEST_F(ArchiveWindowTest, NothingSelectedIsAWarning) {
  CCMArcCoDlg dialog(m_items.list());
  dialog.list()->clearSelection();
  dialog.OnArcCo();
  EXPECT_EQ(lastMessage(), "60617");
  dialog.OnArcCmDiff();
  EXPECT_EQ(lastMessage(), "60617");
  dialog.list()->selectAll();
  dialog.OnArcVdDiff();
  EXPECT_EQ(lastMessage(), "60618");
}

TEST_F(ArchiveWindowTest, TheFilterAndTheEmptyState) {
  CCMArcCoDlg dialog(m_items.list());
  at<QLineEdit>(dialog, ControlId::Filter).setText(QStringLiteral("bob"));
  EXPECT_EQ(dialog.list()->model()->rowCount(), 1);
  const CCMArcCoDlg empty({});
  EXPECT_FALSE(at(empty, ControlId::EmptyState).isHidden());
  EXPECT_TRUE(empty.list()->isHidden());
}

class SyncWindowTest : public ItemWindowsTest {
 protected:
  /// Opens the dialog as the main one does, acts on it, and closes it.
  void inDialog(const std::function<void(CMSyncDlg&)>& act) {
    CMSyncDlg dialog(&m_parent);
    DiagnosticList diagnostics;
    ASSERT_TRUE(dialog.listFirst({}, diagnostics));
    dialog.show();
    act(dialog);
    dialog.close();
  }
  CCMDialog m_parent;
};

TEST_F(SyncWindowTest, ItListsWhatDiffersAndTakesItOver) {
  inDialog([this](CMSyncDlg& dialog) {
    QTreeView& list = *dialog.list();
    ASSERT_EQ(list.model()->rowCount(), 2);
    EXPECT_EQ(cell(list, 0, 0), QStringLiteral("Brewing/Boiler"));
    EXPECT_TRUE(cell(list, 0, 4).startsWith(QStringLiteral("60601")));
    EXPECT_TRUE(cell(list, 1, 4).startsWith(QStringLiteral("60600")));
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
    archiveHolds("Brewing.vpk|1|ro|");
    QTest::keyClick(&at(dialog, ControlId::SyncTakeOver), Qt::Key_Space);
    EXPECT_EQ(checkOuts(), (Lines{"co /plan/Brewing/Boiler.vcl", "co /plan/New.vcl"}));
    EXPECT_FALSE(at(dialog, ControlId::EmptyState).isHidden());
    EXPECT_TRUE(dialog.isVisible()) << "it closes only when the property says so";
  });
}

TEST_F(SyncWindowTest, ItClosesWhenTheListHasBecomeEmptyAndThePropertySaysSo) {
  set("CloseDialogOnSynchronize", "True");
  inDialog([this](CMSyncDlg& dialog) {
    dialog.list()->selectAll();
    at<QAbstractButton>(dialog, ControlId::SyncTakeOver).click();
    QCoreApplication::processEvents();
    EXPECT_TRUE(dialog.isVisible()) << "the archive still says the same";
    dialog.list()->selectAll();
    archiveHolds("Brewing.vpk|1|ro|");
    at<QAbstractButton>(dialog, ControlId::SyncTakeOver).click();
    QCoreApplication::processEvents();
    EXPECT_FALSE(dialog.isVisible());
  });
}

TEST_F(SyncWindowTest, TheMethodEnablesTheLabelAndIsStoredOnClosing) {
  set("Synchronize_Method", "label", "General");
  set("label", "R1", "General");
  inDialog([](CMSyncDlg& dialog) {
    auto& method = at<QComboBox>(dialog, ControlId::SyncMethod);
    auto& label = at<QLineEdit>(dialog, ControlId::SyncLabel);
    EXPECT_EQ(method.currentIndex(), 1);
    EXPECT_EQ(label.text(), QStringLiteral("R1"));
    method.setCurrentIndex(0);
    EXPECT_FALSE(label.isEnabled());
    EXPECT_TRUE(label.text().isEmpty());
    method.setCurrentIndex(1);
    label.setText(QStringLiteral("R2"));
  });
  EXPECT_EQ(get("label", "General"), "R2");
  inDialog([](CMSyncDlg& dialog) {
    at<QComboBox>(dialog, ControlId::SyncMethod).setCurrentIndex(0);
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  EXPECT_EQ(get("Synchronize_Method", "General"), "Header");
  EXPECT_EQ(get("label", "General"), "");
}

TEST_F(SyncWindowTest, WhereTimesAreComparedAnExplanationStandsInPlaceOfTheMethod) {
  useProvider();
  const CMSyncDlg dialog;
  EXPECT_TRUE(at(dialog, ControlId::SyncMethod).isHidden());
  EXPECT_FALSE(at(dialog, ControlId::SyncExplanation).isHidden());
}

TEST_F(SyncWindowTest, TheHostsRequestOpensItOnlyWhenSomethingDiffers) {
  bool isOpened = false;
  onNextWindow([&](QDialog& window) {
    isOpened = true;
    window.reject();
  });
  archiveHolds("Brewing/Boiler.vcl|1|ro|");
  CMSyncDlg::flashDlgOnDiff(3);
  EXPECT_FALSE(isOpened);
  archiveHolds("Brewing/Boiler.vcl|2|ro|");
  CMSyncDlg::flashDlgOnDiff(3);
  EXPECT_TRUE(isOpened);
}

TEST_F(SyncWindowTest, TheMainDialogsButtonsOpenTheWindowsOrSayWhyNot) {
  for (const int id : {ControlId::ListArchive, ControlId::Synchronize}) {
    std::string opened;
    onNextWindow([&](QDialog& window) {
      opened = window.metaObject()->className();
      window.reject();
    });
    EXPECT_TRUE(m_parent.runCommand(id));
    EXPECT_EQ(opened, id == ControlId::ListArchive ? "veldra::CCMArcCoDlg" : "veldra::CMSyncDlg");
  }
  m_host.scriptedProcesses.answer("ls", {.output = "", .code = 1});
  m_parent.runCommand(ControlId::ListArchive);
  EXPECT_EQ(lastMessage(), "60471");
  m_parent.runCommand(ControlId::Synchronize);
  EXPECT_EQ(lastMessage(), "60473");
}

TEST(QuestionWindowTest, EachButtonHasItsAnswer) {
  const struct {
    int id;
    const char* answer;
  } rows[] = {{ControlId::QuestionYes, "yes"},
              {ControlId::QuestionYesToAll, "yestoall"},
              {ControlId::QuestionNo, "no"},
              {ControlId::QuestionNoToAll, "notoall"},
              {ControlId::QuestionCancel, "cancel"}};
  for (const auto& row : rows) {
    QuestionWindow window("Load it?", "Boiler");
    EXPECT_EQ(findControl<QLineEdit>(window, ControlId::QuestionUnit)->text(),
              QStringLiteral("Boiler"));
    findControl<QPushButton>(window, row.id)->click();
    EXPECT_EQ(window.answer(), row.answer);
  }
  QuestionWindow closed("Overwrite it?", {});
  EXPECT_EQ(findControl(closed, ControlId::QuestionUnit), nullptr);
  closed.reject();
  EXPECT_EQ(closed.answer(), "cancel");
}

}  // namespace
}  // namespace veldra::test
