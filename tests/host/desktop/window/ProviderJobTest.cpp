// The main job by keyboard alone, through the Subversion provider that comes with the program.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStandardPaths>
#include <QTest>
#include <QTreeView>

#include "cm/templates/CMProperty.h"
#include "host/cli/InstalledProviders.h"
#include "host/desktop/pictures/WindowDriver.h"
#include "host/desktop/window/MainWindow.h"
#include "host/desktop/window/ModelTreeModel.h"
#include "host/desktop/window/UnitEditor.h"
#include "tests/host/desktop/SampleProject.h"
#include "tests/host/desktop/ScriptedQuestions.h"
#include "tests/host/desktop/SvnOutput.h"
#include "tests/host/platform/Variable.h"

namespace veldra::host::desktop {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr Qt::KeyboardModifiers CtrlShift = Qt::ControlModifier | Qt::ShiftModifier;

class ProviderJobTest : public testing::Test {
 protected:
  void SetUp() override {
    if (QStandardPaths::findExecutable("svn").isEmpty()) GTEST_SKIP() << "svn is not installed";
    if (!std::filesystem::exists(cli::shippedProvider(m_session.host().installationRoot()))) {
      GTEST_SKIP() << "the provider is not built";
    }
    m_window.show();
    m_window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
    ASSERT_TRUE(m_window.openProject(QString::fromStdString(m_sample.folder())));
  }
  void TearDown() override {
    m_questions.answer(QMessageBox::Discard);
    m_window.close();
  }

  /// Chooses the provider and says where the project is kept.
  void choose() {
    ASSERT_TRUE(perform(m_window, "settings", [this](QDialog& dialog) {
      auto& backEnd = *dialog.findChild<QComboBox*>("BackEnd");
      backEnd.setFocus();
      QTest::keyClick(&backEnd, Qt::Key_End);
      auto& archive = *dialog.findChild<QLineEdit*>("Archive");
      archive.setFocus();
      archive.selectAll();
      QTest::keyClicks(&archive, QString::fromStdString(m_sample.beside("archive")));
      QTest::keyClick(&archive, Qt::Key_Tab);
      QTest::keyClick(&dialog, Qt::Key_Escape);
    }));
  }
  /// Presses the keys of a command; `fill` fills in its options, which Return accepts.
  void command(Qt::Key key, const FillDialog& fill = {}) {
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (!dialog || !dialog->findChild<QDialogButtonBox*>()) return;
      timer.stop();
      if (fill) fill(*dialog);
      QTest::keyClick(dialog, Qt::Key_Return);
    });
    timer.start(20);
    m_window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    QTest::keyClick(&m_window, key, CtrlShift);
    QCoreApplication::processEvents();
  }
  static void comment(QDialog& dialog, const char* text) {
    auto& edit = *dialog.findChild<QPlainTextEdit*>();
    edit.setFocus();
    QTest::keyClicks(&edit, text);
    QTest::keyClick(&edit, Qt::Key_Tab);
  }
  /// What a screen reader says of a line of the tree, and the picture that others see.
  std::pair<std::string, QImage> line(const std::string& path) {
    auto& model = *m_window.findChild<ModelTreeModel*>();
    const QModelIndex index = model.indexOfPath(path);
    return {index.data(Qt::AccessibleDescriptionRole).toString().toStdString(),
            index.data(Qt::DecorationRole).value<QIcon>().pixmap(32, 32).toImage()};
  }
  std::string asked() const {
    std::string text;
    for (const Question& question : m_questions.asked) {
      text += (question.text + "\n" + question.details + "\n").toStdString();
    }
    return text;
  }
  SampleProject m_sample;
  const Variable m_user{"VELDRA_USER_REGISTRY", m_sample.beside("user.toml")};
  const Variable m_machine{"VELDRA_MACHINE_REGISTRY", m_sample.beside("machine.toml")};
  ScriptedQuestions m_questions;
  DesktopSession m_session{m_questions};
  MainWindow m_window{m_session};
};

TEST_F(ProviderJobTest, FromTheSettingsToACheckedInChange) {
  choose();
  ASSERT_EQ(asked(), "");
  ASSERT_NE(CMProperty::useSccCompliantTool(), 0);
  m_questions.answer(QMessageBox::Yes);
  ASSERT_TRUE(perform(m_window, "connect"));
  m_window.selectUnits({"Brewing/Brewing.vpkg", "Brewing/Grinder.vcmp"});
  command(Qt::Key_A, [](QDialog& dialog) { comment(dialog, "As drawn"); });
  QTest::keyClick(&m_window, Qt::Key_F5);
  QCoreApplication::processEvents();
  const auto [added, addedPicture] = line("Brewing/Grinder.vcmp");
  const auto [outside, outsidePicture] = line("Milk/Milk Pump.vcmp");
  EXPECT_THAT(added, HasSubstr("ontrolled")) << asked();
  EXPECT_THAT(outside, HasSubstr("Not in the archive yet"));

  m_window.selectUnits({"Brewing/Grinder.vcmp"});
  command(Qt::Key_O);
  const auto [out, outPicture] = line("Brewing/Grinder.vcmp");
  EXPECT_THAT(out, AllOf(HasSubstr("Writable"), HasSubstr("hecked out"))) << asked();
  EXPECT_NE(outPicture, addedPicture);
  EXPECT_NE(outPicture, outsidePicture);
  const std::string url = "file://" + m_sample.beside("archive") + "/Brewing/Grinder.vcmp";
  EXPECT_THAT(svn({"info", QString::fromStdString(url)}), HasSubstr("Lock Owner"));

  QLineEdit& name = *m_window.findChild<UnitEditor*>()->findChild<QLineEdit*>();
  name.setFocus();
  name.selectAll();
  QTest::keyClicks(&name, "Mill");
  command(Qt::Key_I, [](QDialog& dialog) { comment(dialog, "Called it what it is"); });
  EXPECT_THAT(svn({"cat", QString::fromStdString(url)}), HasSubstr("\"name\": \"Mill\""))
      << asked();
  EXPECT_THAT(svn({"log", QString::fromStdString(url)}), HasSubstr("Called it what it is"));
  EXPECT_THAT(svn({"info", QString::fromStdString(url)}), Not(HasSubstr("Lock Owner")));
  EXPECT_TRUE(name.isReadOnly());
}

}  // namespace
}  // namespace veldra::host::desktop
