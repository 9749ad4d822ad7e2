// What goes wrong around the window: each is told, and leaves a window that works.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QScreen>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include "cm/core/CMFacade.h"
#include "cm/host/IPN.h"
#include "cm/ui/CCMDialog.h"
#include "cm/ui/CommandDoor.h"
#include "cm/ui/ControlIds.h"
#include "cm/ui/widgets/Control.h"
#include "host/desktop/logic/SettingsTable.h"
#include "host/desktop/pictures/WindowDriver.h"
#include "host/desktop/window/MainWindow.h"
#include "host/desktop/window/ModelTreeModel.h"
#include "host/desktop/window/UnitEditor.h"
#include "host/model/ModelText.h"
#include "tests/host/desktop/SampleProject.h"
#include "tests/host/desktop/ScriptedQuestions.h"
#include "tests/host/platform/Faults.h"
#include "tests/support/LeaksAreExpected.h"

namespace veldra::host::desktop {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr char Grinder[] = "Brewing/Grinder.vcmp";

/// Longer than the watcher of the disk waits.
constexpr int LookMilliseconds = 500;

class DesktopBadInputTest : public testing::Test {
 protected:
  void SetUp() override {
    m_window.show();
    ASSERT_TRUE(m_window.openProject(QString::fromStdString(m_sample.folder())));
    m_questions.asked.clear();
  }
  void TearDown() override {
    CMFacade::saveCallbackFunc() = {};
    m_questions.answer(QMessageBox::Discard);
    m_window.close();
  }

  QLineEdit& nameField() { return *m_window.findChild<UnitEditor*>()->findChild<QLineEdit*>(); }
  std::string asked() const {
    std::string text;
    for (const Question& question : m_questions.asked) {
      text += (question.text + "\n" + question.details + "\n").toStdString();
    }
    return text;
  }
  void set(const PropertyKey& key, const std::string& value) {
    SettingsTable table(m_session.host().properties(), m_session.project());
    ASSERT_EQ(table.set(key, value, Origin::Project, nullptr), std::nullopt);
  }
  /// A command of the user's own, behind the first of the four buttons.
  void setCommand(const std::string& line) {
    set({IPN::CM, IPN::General, "UserDefCommand_1"}, line);
    ASSERT_EQ(m_session.host().trust().trust(m_session.project()->getFullFileName()), std::nullopt);
  }
  /// As somebody else's program would.
  void renameOnDisk(const std::string& former, const std::string& name) const {
    std::string text = m_sample.read(Grinder);
    text.replace(text.find('"' + former + '"'), former.size() + 2, '"' + name + '"');
    const std::string fresh = m_sample.file("fresh");
    std::ofstream(fresh) << text;
    std::filesystem::rename(fresh, m_sample.file(Grinder));
  }
  void expectUsable() {
    m_window.selectUnits({Grinder});
    nameField().selectAll();
    QTest::keyClicks(&nameField(), "Usable");
    QTest::keyClick(&nameField(), Qt::Key_Return);
    EXPECT_EQ(m_session.project()->unitByFile(m_sample.file(Grinder))->record().name, "Usable");
    EXPECT_FALSE(m_session.work().isWorking());
  }

  SampleProject m_sample;
  ScriptedQuestions m_questions;
  DesktopSession m_session{m_questions};
  MainWindow m_window{m_session};
};

TEST_F(DesktopBadInputTest, UnitsStayWhatTheyAreUnderAnOpenWindowAndNewsComeInAfterwards) {
  m_window.selectUnits({Grinder});
  std::string name = "Grinder";
  for (const char* opener : {"dialog", "settings"}) {
    const std::string next = name + "+";
    ASSERT_TRUE(perform(m_window, opener, [&](QDialog& window) {
      renameOnDisk(name, next);
      QTest::qWait(LookMilliseconds);
      EXPECT_EQ(nameField().text().toStdString(), name) << opener;
      if (auto* dialog = qobject_cast<CCMDialog*>(&window)) {
        EXPECT_FALSE(dialog->units().anyGone());
      }
    }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return nameField().text().toStdString() == next; }))
        << opener;
    name = next;
  }
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_F(DesktopBadInputTest, WhatOthersChangeDuringACommandComesIn) {
  set({IPN::CM, IPN::General, IPN::CMTool}, "Subversion");
  set({IPN::CM, "Subversion", IPN::CMArchive}, m_sample.beside("none"));
  m_window.selectUnits({Grinder});
  ASSERT_TRUE(
      perform(m_window, "check-out", [this](QDialog&) { renameOnDisk("Grinder", "Mill"); }));
  EXPECT_EQ(nameField().text().toStdString(), "Mill");
}

TEST_F(DesktopBadInputTest, AFileThatVanishesUnderTheDialogIsTold) {
  set({IPN::CM, IPN::General, IPN::CMTool}, "Subversion");
  set({IPN::CM, "Subversion", IPN::CMArchive}, m_sample.beside("none"));
  ASSERT_TRUE(perform(m_window, "dialog", [this](QDialog& window) {
    auto& dialog = dynamic_cast<CCMDialog&>(window);
    dialog.setView(true);
    const std::string file = m_sample.file(Grinder);
    dialog.selectFiles([&file](const std::string& candidate) { return candidate == file; });
    ASSERT_EQ(dialog.GetSelectedCount(), 1U);
    std::filesystem::remove(file);
    QTimer answer;
    answer.setSingleShot(true);
    QObject::connect(&answer, &QTimer::timeout, &dialog, [] {
      auto* options = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (options != nullptr) options->accept();
    });
    answer.start();
    EXPECT_TRUE(dialog.runCommand(ControlId::CheckIn));
    EXPECT_THAT(asked(), HasSubstr("Grinder"));
    EXPECT_FALSE(dialog.isRunning());
    m_questions.asked.clear();
  }));
  EXPECT_THAT(asked(), HasSubstr("gone from the disk"));
}

TEST_F(DesktopBadInputTest, ACommandThatCrashesOrThrowsInsideTheHostIsTold) {
  setCommand("no-such-tool");
  const std::function<void()> faults[] = {writeToNull, [] { throw std::runtime_error("no disk"); },
                                          [] { throw 7; }};
  for (const auto& fault : faults) {
    m_questions.asked.clear();
    CMFacade::saveCallbackFunc() = fault;
    {
      const test::LeaksAreExpected leaks;
      EXPECT_FALSE(runCommandOn(ControlId::UserCommand1, {}, &m_window));
    }
    EXPECT_THAT(asked(), Not(IsEmpty()));
    CMFacade::saveCallbackFunc() = {};
    m_window.lookAtDisk();
    expectUsable();
  }
}

TEST_F(DesktopBadInputTest, TheWindowManagerCannotCloseItDuringACommand) {
  setCommand("sh -c \"sleep 0.3\"");
  bool hasAsked = false;
  QTimer manager;
  manager.setSingleShot(true);
  QObject::connect(&manager, &QTimer::timeout, &m_window, [&] {
    m_window.close();
    hasAsked = true;
  });
  manager.start(50);
  EXPECT_TRUE(runCommandOn(ControlId::UserCommand1, {}, &m_window)) << asked();
  EXPECT_TRUE(hasAsked);
  EXPECT_TRUE(m_window.isVisible());
  QCoreApplication::processEvents();
  EXPECT_TRUE(m_window.close());
}

TEST_F(DesktopBadInputTest, ABrokenProjectFileIsToldAndTheProjectStaysAmongTheRecent) {
  std::string project;
  for (const auto& entry : std::filesystem::directory_iterator(m_sample.folder())) {
    if (entry.path().extension() == ".vdy") project = entry.path().filename().string();
  }
  const std::string good = m_sample.read(project);
  const std::string contents[] = {"<<<<<<< mine\n" + good, "{", "", std::string("\0\1", 2), "[1]"};
  const QString folder = QString::fromStdString(m_sample.folder());
  for (const std::string& content : contents) {
    m_questions.asked.clear();
    m_sample.write(project, content);
    const bool isOpen = m_window.openProject(folder);
    EXPECT_THAT(asked(), HasSubstr(project)) << content << isOpen;
    EXPECT_TRUE(QSettings().value("recent").toStringList().contains(folder)) << content;
    m_sample.write(project, good);
    EXPECT_TRUE(m_window.openProject(folder));
    expectUsable();
    m_questions.answer(QMessageBox::Discard);
  }
}

TEST_F(DesktopBadInputTest, NoNameForgesWhatIsShownOrMakesTheWindowWider) {
  const std::string names[] = {"<b>bold</b>&amp;",
                               "line\nbreak\ttab\x07",
                               "abc\xE2\x80\xAEgpj.exe",
                               "two\xE2\x80\xA8lines",
                               "[*]",
                               std::string(500, 'n')};
  const std::string folder = std::string(150, 'd') + "/" + std::string(150, 'e') + "/";
  std::filesystem::create_directories(m_sample.file(folder));
  int count = 0;
  for (const std::string& name : names) {
    m_sample.write(folder + std::to_string(++count) + ".vcmp",
                   writeModelText(newModelText("Component", name)));
  }
  ASSERT_TRUE(m_window.openProject(QString::fromStdString(m_sample.folder())));
  const auto& model = *m_window.findChild<ModelTreeModel*>();
  for (int i = 1; i <= count; ++i) {
    const std::string path = folder + std::to_string(i) + ".vcmp";
    const QModelIndex line = model.indexOfPath(path);
    ASSERT_TRUE(line.isValid()) << path;
    for (const QChar sign : line.data().toString()) {
      EXPECT_NE(sign.category(), QChar::Other_Control) << i;
      EXPECT_NE(sign.category(), QChar::Other_Format) << i;
      EXPECT_NE(sign.category(), QChar::Separator_Line) << i;
    }
    EXPECT_FALSE(line.data(Qt::ToolTipRole).toString().contains("<b>")) << i;
    m_window.selectUnits({QString::fromStdString(path)});
    QCoreApplication::processEvents();
    EXPECT_LT(m_window.minimumSizeHint().width(), 1000) << i;
  }
}

}  // namespace
}  // namespace veldra::host::desktop
