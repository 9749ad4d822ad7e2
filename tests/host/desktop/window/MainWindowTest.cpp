#include "host/desktop/window/MainWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTreeView>

#include "cm/host/IPN.h"
#include "cm/ui/ControlIds.h"
#include "cm/ui/widgets/Control.h"
#include "host/desktop/logic/SettingsTable.h"
#include "host/desktop/pictures/WindowDriver.h"
#include "host/desktop/window/SettingsDialog.h"
#include "host/desktop/window/SettingsModel.h"
#include "host/desktop/window/UnitEditor.h"
#include "tests/host/desktop/SampleProject.h"
#include "tests/host/desktop/ScriptedQuestions.h"
#include "tests/host/platform/Variable.h"

namespace veldra::host::desktop {
namespace {

using ::testing::HasSubstr;
using ::testing::SizeIs;

class MainWindowTest : public testing::Test {
 protected:
  void SetUp() override {
    m_window.show();
    m_window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
    ASSERT_TRUE(m_window.openProject(QString::fromStdString(m_sample.folder())));
    m_questions.asked.clear();
  }
  void TearDown() override {
    m_questions.answer(QMessageBox::Discard);
    m_window.close();
  }

  UnitCore& unit(const std::string& path) { return *m_session.project()->unitByFile(path); }
  QLineEdit& nameField() { return *m_window.findChild<UnitEditor*>()->findChild<QLineEdit*>(); }
  /// As a person does it: select, type, leave the field.
  void rename(const QString& path, const QString& name) {
    m_window.selectUnits({path});
    nameField().selectAll();
    QTest::keyClicks(&nameField(), name);
    QTest::keyClick(&nameField(), Qt::Key_Return);
  }

  SampleProject m_sample;
  ScriptedQuestions m_questions;
  DesktopSession m_session{m_questions};
  MainWindow m_window{m_session};
};

TEST_F(MainWindowTest, AUnitIsEditedSavedAndTakenBack) {
  rename("Brewing/Grinder.vcmp", "Mill");
  EXPECT_TRUE(m_window.isWindowModified());
  EXPECT_THAT(m_sample.read("Brewing/Grinder.vcmp"), HasSubstr("\"Grinder\""));
  QTest::keyClick(&m_window, Qt::Key_S, Qt::ControlModifier);
  EXPECT_THAT(m_sample.read("Brewing/Grinder.vcmp"), HasSubstr("\"name\": \"Mill\""));
  EXPECT_FALSE(m_window.isWindowModified());
  m_session.project()->undo().undo();
  EXPECT_EQ(unit("Brewing/Grinder.vcmp").record().name, "Grinder");
}

TEST_F(MainWindowTest, AReadOnlyUnitIsShownAndNotChanged) {
  m_sample.makeReadOnly("Brewing/Grinder.vcmp");
  m_window.lookAtDisk();
  rename("Brewing/Grinder.vcmp", "Mill");
  EXPECT_TRUE(nameField().isReadOnly());
  EXPECT_EQ(unit("Brewing/Grinder.vcmp").record().name, "Grinder");
  EXPECT_FALSE(m_session.hasUnsaved());
}

TEST_F(MainWindowTest, UnsavedWorkIsAskedAboutBeforeItGoes) {
  rename("Brewing/Grinder.vcmp", "Mill");
  m_questions.answer(QMessageBox::Cancel);
  EXPECT_FALSE(m_window.close());
  EXPECT_TRUE(m_window.isVisible());
  ASSERT_THAT(m_questions.asked, SizeIs(1));
  m_questions.answer(QMessageBox::Cancel);
  EXPECT_FALSE(m_window.openProject(QString::fromStdString(m_sample.folder())));
  EXPECT_EQ(unit("Brewing/Grinder.vcmp").record().name, "Mill");
  m_questions.answer(QMessageBox::Save);
  EXPECT_TRUE(m_window.close());
  EXPECT_THAT(m_sample.read("Brewing/Grinder.vcmp"), HasSubstr("\"Mill\""));
}

TEST_F(MainWindowTest, WhatOthersChangeOnTheDiskComesIn) {
  m_window.selectUnits({"Brewing/Grinder.vcmp"});
  std::string text = m_sample.read("Brewing/Grinder.vcmp");
  text.replace(text.find("\"Grinder\""), 9, "\"Quern\"");
  m_sample.write("Brewing/Grinder.vcmp", text);
  m_window.lookAtDisk();
  EXPECT_EQ(nameField().text().toStdString(), "Quern");
  EXPECT_TRUE(m_questions.asked.empty());

  rename("Brewing/Grinder.vcmp", "Mine");
  text.replace(text.find("\"Quern\""), 7, "\"Theirs\"");
  m_sample.write("Brewing/Grinder.vcmp", text);
  m_questions.answer(QMessageBox::No);
  m_window.lookAtDisk();
  EXPECT_EQ(nameField().text().toStdString(), "Mine") << "the user's work was asked for and kept";
  EXPECT_THAT(m_questions.asked, SizeIs(1));
}

TEST_F(MainWindowTest, AProjectThatCannotBeOpenedIsTold) {
  EXPECT_FALSE(m_window.openProject("/nowhere/at/all"));
  ASSERT_THAT(m_questions.asked, SizeIs(1));
  EXPECT_THAT(m_questions.asked[0].text.toStdString(), HasSubstr("/nowhere/at/all"));
  EXPECT_EQ(m_session.project(), nullptr);
}

TEST_F(MainWindowTest, AProviderThatCannotBeLoadedIsToldAndTheWindowWorksOn) {
  const Variable user("VELDRA_USER_REGISTRY", m_sample.beside("user.toml"));
  const Variable machine("VELDRA_MACHINE_REGISTRY", m_sample.beside("machine.toml"));
  SettingsTable table(m_session.host().properties(), m_session.project());
  const PropertyKey key{IPN::CM, IPN::General, "UseSCCtool"};
  ASSERT_EQ(table.set(key, "Yes", Origin::Project, nullptr), std::nullopt);
  m_window.selectUnits({"Brewing/Grinder.vcmp"});
  for (const char* command : {"check-out", "check-in", "fetch", "history", "refresh"}) {
    m_questions.asked.clear();
    EXPECT_TRUE(perform(m_window, command)) << command;
    EXPECT_FALSE(m_questions.asked.empty()) << command << " is silent";
  }
  rename("Brewing/Grinder.vcmp", "Mill");
  EXPECT_EQ(unit("Brewing/Grinder.vcmp").record().name, "Mill");
}

TEST_F(MainWindowTest, UnitsThatFailedAreNamedAndCanBeSelected) {
  SettingsTable table(m_session.host().properties(), m_session.project());
  ASSERT_EQ(table.set({IPN::CM, IPN::General, IPN::CMTool}, "Subversion", Origin::Project, nullptr),
            std::nullopt);
  ASSERT_EQ(table.set({IPN::CM, "Subversion", IPN::CMArchive}, m_sample.beside("none"),
                      Origin::Project, nullptr),
            std::nullopt);
  m_window.selectUnits({"Brewing/Grinder.vcmp", "Brewing/Brew Group.vcmp"});
  ASSERT_TRUE(perform(m_window, "check-out"));
  ASSERT_FALSE(m_questions.asked.empty());
  EXPECT_THAT(m_questions.asked.back().text.toStdString(), HasSubstr("Grinder"));
  EXPECT_THAT(m_questions.asked.back().text.toStdString(), HasSubstr("Brew Group"));
  auto* const select = m_window.findChild<QPushButton*>(controlName(ControlId::SelectFailed));
  EXPECT_TRUE(select->isVisible());
  m_window.selectUnits({"Milk/Milk.vpkg"});
  select->click();
  EXPECT_THAT(m_window.findChild<QTreeView*>("ModelTree")->selectionModel()->selectedRows(),
              SizeIs(2));
}

TEST_F(MainWindowTest, EveryCommandCanBeReachedByKeyboardAndHasAName) {
  for (const QAction* action : m_window.findChildren<QAction*>()) {
    if (action->isSeparator() || action->menu() || action->text().isEmpty()) continue;
    EXPECT_TRUE(action->text().contains('&') || !action->shortcut().isEmpty())
        << action->text().toStdString();
  }
  for (const QWidget* widget : m_window.findChildren<QAbstractItemView*>()) {
    if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith("qt_")) continue;
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->metaObject()->className();
  }
}

TEST_F(MainWindowTest, AValueIsResetWhereItIsStored) {
  UnitCore& grinder = unit("Brewing/Grinder.vcmp");
  SettingsTable table(m_session.host().properties(), m_session.project());
  const PropertyKey key{IPN::CM, IPN::General, "DebugLevel"};
  ASSERT_EQ(table.set(key, "1", Origin::Project, nullptr), std::nullopt);
  ASSERT_EQ(table.set(key, "2", Origin::Unit, &grinder), std::nullopt);
  SettingsDialog dialog(m_session, &grinder, &m_window);
  auto* filter = dialog.findChild<QLineEdit*>("Filter");
  filter->setText("DebugLevel");
  auto& view = *dialog.findChild<QTableView*>();
  const auto shownValue = [&] {
    view.selectRow(0);
    return view.model()->index(0, SettingsModel::Value).data().toString().toStdString();
  };
  auto& reset = *dialog.findChild<QPushButton*>("Reset");
  EXPECT_EQ(shownValue(), "2");
  reset.click();
  EXPECT_EQ(shownValue(), "1") << "the project's is inherited";
  reset.click();
  EXPECT_EQ(view.model()->rowCount(), 0);
  EXPECT_FALSE(reset.isEnabled());
  EXPECT_TRUE(m_questions.asked.empty());
}

}  // namespace
}  // namespace veldra::host::desktop
