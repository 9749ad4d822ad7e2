#include <QHeaderView>
#include <QLineEdit>
#include <QTreeView>

#include "cm/core/CMTraitFacade.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/ButtonRules.h"
#include "cm/ui/logic/ViewState.h"
#include "tests/cm/ui/MainDialogTest.h"

namespace veldra::test {
namespace {

using CCMDialogTest = MainDialogTest;

TEST_F(CCMDialogTest, EveryControlIsFoundByItsNumberAndSaysItsName) {
  std::vector<int> ids{ControlId::UnitTree, ControlId::FlatList, ControlId::Filter,
                       ControlId::Close, ControlId::Progress};
  for (const ButtonRow& row : buttonTable()) ids.push_back(row.controlId);
  for (const int id : ids) {
    EXPECT_FALSE(at(m_dialog, id).accessibleName().isEmpty()) << id;
  }
}

TEST_F(CCMDialogTest, TheTreeFollowsTheModelAndTheListTheSorting) {
  EXPECT_FALSE(tree().isHidden());
  const QModelIndex root = tree().model()->index(0, 0);
  EXPECT_EQ(root.data().toString(), QStringLiteral("Plant () (RO)"));
  ASSERT_EQ(tree().model()->rowCount(root), 2);
  const QModelIndex package = tree().model()->index(0, 0, root);
  EXPECT_EQ(tree().model()->index(0, 0, package).data().toString(),
            QStringLiteral("Boiler () (RO)"));
  m_dialog.setView(true);
  EXPECT_TRUE(tree().isHidden());
  EXPECT_EQ(cell(0, 1), QStringLiteral("Boiler"));
  for (int click = 0; click < 2; ++click) {
    Q_EMIT list().header()->sectionClicked(0);
    EXPECT_EQ(cell(0, 0), QStringLiteral("Brewing.vpk")) << "ascending both times";
  }
}

TEST_F(CCMDialogTest, TheViewOutlivesTheDialog) {
  set("GUI", "Flat", "General");
  m_dialog.runCommand(ControlId::FlatView);
  EXPECT_FALSE(at(m_dialog, ControlId::FlatView).isEnabled());
  EXPECT_TRUE(m_dialog.runCommand(ControlId::TreeView));
  const CCMDialog next;
  EXPECT_FALSE(at(next, ControlId::UnitTree).isHidden());
}

TEST_F(CCMDialogTest, OpeningChoosesNoView) {
  EXPECT_EQ(ViewState::viewMode(), "") << "the setting counts until a button is pressed";
  set("GUI", "Flat", "General");
  const CCMDialog next;
  EXPECT_FALSE(at(next, ControlId::FlatList).isHidden());
}

TEST_F(CCMDialogTest, NothingIsBehindTheButtonOfTheBranch) {
  set("EnableCheckoutBranch", "True", "General");
  set("UserDefCommand_-9", "echo", "General");
  CCMDialog dialog;
  EXPECT_TRUE(dialog.runCommand(ControlId::CheckOutBranch));
  EXPECT_TRUE(commands().empty());
  EXPECT_TRUE(m_host.memoryMessages.asked.empty());
}

TEST_F(CCMDialogTest, ACommandWithNothingSelectedIsRefused) {
  tree().clearSelection();
  m_dialog.runCommand(ControlId::CheckOut);
  EXPECT_EQ(lastMessage(), "60400");
  EXPECT_TRUE(commands().empty());
}

TEST_F(CCMDialogTest, ARefreshSelectsTheSameRowsAgain) {
  m_dialog.setView(true);
  for (const char* filter : {"", "B"}) {
    at<QLineEdit>(m_dialog, ControlId::Filter).setText(QString::fromLatin1(filter));
    list().clearSelection();
    EXPECT_EQ(m_dialog.GetSelectedCount(), 0U) << filter;
    select(1);
    const UnitList selected = m_dialog.CmSelectedItems();
    ASSERT_EQ(selected.size(), 1U) << filter;
    for (int refresh = 0; refresh < 2; ++refresh) m_dialog.DoAfterOpRefresh();
    EXPECT_EQ(m_dialog.CmSelectedItems(), selected) << filter;
    select(0);
    EXPECT_EQ(m_dialog.GetSelectedCount(), 2U) << filter;
  }
}

TEST_F(CCMDialogTest, TheProvidersColumnsAreFilledAsSoonAsItIsConnected) {
  useProvider("Any");
  m_project.showsStatus = true;
  m_class.record.state = CMState::Controlled;
  CCMDialog dialog;
  dialog.setView(true);
  const QAbstractItemModel& model = *at<QTreeView>(dialog, ControlId::FlatList).model();
  ASSERT_EQ(model.columnCount(), 6);
  EXPECT_EQ(model.index(0, 4).data().toString(), QString());
  CMProperty::setIsConnected(true);
  dialog.CmFillCI();
  EXPECT_NE(model.index(0, 4).data().toString(), QString());
}

TEST_F(CCMDialogTest, UnitsThatDieBehindTheDialogLeaveAnEmptyLine) {
  m_dialog.setView(true);
  ASSERT_EQ(cell(0, 1), QStringLiteral("Boiler"));
  m_package.record.aggregates.clear();
  m_model.destroy(&m_class);
  EXPECT_EQ(cell(0, 1), QString());
  QCoreApplication::postEvent(&m_dialog, new QEvent(static_cast<QEvent::Type>(RefreshMessage)));
  QCoreApplication::processEvents();
  EXPECT_EQ(list().model()->rowCount(), 3) << "the message lists the workspace anew";
}

TEST_F(CCMDialogTest, TheFilterShowsWhatContainsTheTextInBothViews) {
  auto& filter = at<QLineEdit>(m_dialog, ControlId::Filter);
  filter.setText(QStringLiteral("boil"));
  const QModelIndex root = tree().model()->index(0, 0);
  EXPECT_EQ(tree().model()->rowCount(root), 1);
  m_dialog.setView(true);
  EXPECT_EQ(list().model()->rowCount(), 1);
  select(0);
  EXPECT_EQ(m_dialog.CmSelectedItems(), UnitList{&m_class});
  filter.clear();
  EXPECT_EQ(list().model()->rowCount(), 4);
}

TEST_F(CCMDialogTest, NamesCannotForgeWhatALineShows) {
  m_class.record.name =
      "a\n<b>\xE2\x80\xAE"
      "gpj";
  m_dialog.setView(true);
  m_dialog.updateList();
  bool found = false;
  for (int row = 0; row < 4; ++row) {
    found = found || cell(row, 1) == QStringLiteral("a\uFFFD<b>\uFFFDgpj");
  }
  EXPECT_TRUE(found);
}

TEST_F(CCMDialogTest, WithoutAProjectItSaysWhatToDoFirst) {
  m_model.setActiveProject(nullptr);
  const CCMDialog dialog;
  EXPECT_FALSE(at(dialog, ControlId::EmptyState).isHidden());
  EXPECT_TRUE(at(dialog, ControlId::FlatList).isHidden());
}

}  // namespace
}  // namespace veldra::test
