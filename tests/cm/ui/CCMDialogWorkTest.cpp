// The main dialog while a command runs, and what it leaves behind.

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "tests/cm/ui/MainDialogTest.h"

namespace veldra::test {
namespace {

using CCMDialogWorkTest = MainDialogTest;

TEST_F(CCMDialogWorkTest, ARefreshThatComesDuringACommandLeavesTheListSortedAndSelected) {
  ownNothing();
  set("CheckOut", "checkout $unit");
  m_dialog.setView(true);
  m_dialog.show();
  select(0);
  Reply reply;
  reply.effect = [&] {
    QCoreApplication::postEvent(&m_dialog, new QEvent(static_cast<QEvent::Type>(RefreshMessage)));
    CCMDialog::keepPainting();
  };
  m_host.scriptedProcesses.answer("checkout", reply);
  acceptNextWindow();
  m_dialog.runCommand(ControlId::CheckOut);
  QTest::qWait(100);
  EXPECT_EQ(cell(0, 1), QStringLiteral("Boiler"));
  EXPECT_EQ(m_dialog.GetSelectedCount(), 1U);
}

TEST_F(CCMDialogWorkTest, ARefreshIsTakenBehindAnOpenWindow) {
  m_dialog.setView(true);
  m_dialog.show();
  select(0);
  onNextWindow([this](QDialog& window) {
    m_model.addUnit("New.vcl");
    QCoreApplication::postEvent(&m_dialog, new QEvent(static_cast<QEvent::Type>(RefreshMessage)));
    QCoreApplication::processEvents();
    EXPECT_EQ(list().model()->rowCount(), 5);
    window.reject();
  });
  m_dialog.runCommand(ControlId::CheckOut);
}

TEST_F(CCMDialogWorkTest, TheViewHasTheFocusAfterACommandAndWhenItIsChosen) {
  ownNothing();
  set("CheckOut", "out $unit");
  m_dialog.show();
  m_dialog.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&m_dialog));
  tree().setFocus();
  QTest::keyClick(&tree(), Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
  // A shortcut shows the button pressed for a moment first.
  ASSERT_TRUE(QTest::qWaitFor([this] { return list().isVisible(); }));
  EXPECT_EQ(m_dialog.focusWidget(), &list());
  select(0);
  at(m_dialog, ControlId::CheckOut).setFocus();
  acceptNextWindow();
  m_dialog.runCommand(ControlId::CheckOut);
  EXPECT_EQ(m_dialog.focusWidget(), &list());
  at(m_dialog, ControlId::CheckOut).setFocus();
  rejectNextWindow();
  m_dialog.runCommand(ControlId::CheckOut);
  EXPECT_EQ(m_dialog.focusWidget(), &at(m_dialog, ControlId::CheckOut)) << "it was not given away";
}

TEST_F(CCMDialogWorkTest, CheckOutAndCheckInByKeyboardAlone) {
  ownNothing();
  set("CheckOut", "out $unit");
  set("CheckIn", "in $unit $log");
  m_dialog.setView(true);
  m_dialog.show();
  list().setCurrentIndex(list().model()->index(0, 0));
  QTest::keyClick(&list(), Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(m_dialog.GetSelectedCount(), 2U);
  onNextWindow([](QDialog& window) { QTest::keyClick(&window, Qt::Key_Return); });
  QTest::keyClick(&at(m_dialog, ControlId::CheckOut), Qt::Key_Space);
  onNextWindow([](QDialog& window) {
    QTest::keyClicks(&at(window, ControlId::CheckInComment), QStringLiteral("finer"));
    QTest::keyClick(&at(window, ControlId::CheckInLabel), Qt::Key_Return);
  });
  QTest::keyClick(&at(m_dialog, ControlId::CheckIn), Qt::Key_Space);
  ASSERT_EQ(commands().size(), 4U);
  EXPECT_EQ(commands().front(), "out Boiler.vcl");
  EXPECT_EQ(commands().back(), "in Brewing.vpk finer");
}

TEST_F(CCMDialogWorkTest, AForbiddenCommentKeepsTheWindowOpen) {
  set("InValidCharactersInRevisionDescription", " ; ");
  m_dialog.setView(true);
  select(0);
  onNextWindow([this](QDialog& window) {
    at<QPlainTextEdit>(window, ControlId::CheckInComment).setPlainText(QStringLiteral("a;b"));
    window.accept();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(lastMessage(), "60405");
    window.reject();
  });
  m_dialog.runCommand(ControlId::CheckIn);
  EXPECT_TRUE(commands().empty());
}

TEST_F(CCMDialogWorkTest, UnitsThatFailedAreCountedAndCanBeSelectedInBothViews) {
  set("CheckOut", "checkout $unit");
  m_dialog.show();
  const std::string file = m_class.getFullFileName();
  Reply refused;
  refused.code = 1;
  refused.effect = [&file] {
    CCMDialog::currentProgress()->unitEnded({{}, 1, 1, file}, UnitEnd::ToolFailed, "no lock");
  };
  m_host.scriptedProcesses.answer("Boiler", refused);
  m_host.reloads.quickReload = ReloadScript::Outcome::SameObject;
  for (const bool isFlat : {true, false}) {
    m_dialog.setView(isFlat);
    m_dialog.selectFiles([&file](const std::string& candidate) { return candidate == file; });
    acceptNextWindow();
    m_dialog.runCommand(ControlId::CheckOut);
    EXPECT_TRUE(at<QLabel>(m_dialog, ControlId::Failures).text().contains(QLatin1Char('1')));
    m_dialog.selectFiles([](const std::string&) { return false; });
    ASSERT_EQ(m_dialog.GetSelectedCount(), 0U);
    at<QPushButton>(m_dialog, ControlId::SelectFailed).click();
    EXPECT_EQ(m_dialog.CmSelectedItems(), UnitList{&m_class});
  }
}

TEST_F(CCMDialogWorkTest, NoKindOfInputGetsThroughWhileACommandRuns) {
  ownNothing();
  set("CheckOut", "checkout $unit");
  m_dialog.setView(true);
  m_dialog.show();
  select(0);
  auto& filter = at<QLineEdit>(m_dialog, ControlId::Filter);
  bool isHeld = false;
  Reply reply;
  reply.effect = [&] {
    QInputMethodEvent composed(QString(), {});
    composed.setCommitString(QStringLiteral("Boil"));
    QCoreApplication::sendEvent(&filter, &composed);
    const QPointF below = list().visualRect(list().model()->index(2, 0)).center();
    QMouseEvent drawn(QEvent::MouseMove, below, below, Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(list().viewport(), &drawn);
    isHeld = filter.text().isEmpty() && m_dialog.GetSelectedCount() == 1;
  };
  m_host.scriptedProcesses.answer("checkout", reply);
  acceptNextWindow();
  m_dialog.runCommand(ControlId::CheckOut);
  EXPECT_TRUE(isHeld);
}

TEST_F(CCMDialogWorkTest, ItCannotBeClosedWhileACommandRuns) {
  ownNothing();
  m_dialog.setView(true);
  m_dialog.show();
  select(0);
  bool stayed = false;
  Reply reply;
  reply.effect = [&] {
    m_dialog.close();
    m_dialog.reject();
    stayed = m_dialog.isVisible();
  };
  m_host.scriptedProcesses.answer("checkout", reply);
  set("CheckOut", "checkout $unit");
  acceptNextWindow();
  m_dialog.runCommand(ControlId::CheckOut);
  EXPECT_TRUE(stayed);
  m_dialog.close();
  EXPECT_FALSE(m_dialog.isVisible());
}

}  // namespace
}  // namespace veldra::test
