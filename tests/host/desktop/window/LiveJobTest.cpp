// The main job in the real window with a real Subversion repository, which is asked itself in the
// end.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStandardPaths>
#include <QTest>

#include "host/desktop/pictures/WindowDriver.h"
#include "host/desktop/window/MainWindow.h"
#include "host/desktop/window/UnitEditor.h"
#include "tests/host/desktop/SampleProject.h"
#include "tests/host/desktop/ScriptedQuestions.h"
#include "tests/host/desktop/SvnOutput.h"

namespace veldra::host::desktop {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::string textOf(const ScriptedQuestions& questions) {
  std::string text;
  for (const Question& question : questions.asked) {
    text += (question.text + "\n" + question.details + "\n").toStdString();
  }
  return text;
}

class LiveJobTest : public testing::Test {
 protected:
  void SetUp() override {
    if (QStandardPaths::findExecutable("svn").isEmpty()) GTEST_SKIP() << "svn is not installed";
    m_window.show();
    ASSERT_TRUE(m_window.openProject(QString::fromStdString(m_sample.folder())));
  }

  SampleProject m_sample;
  QString m_archive = QString::fromStdString(m_sample.beside("archive"));
  ScriptedQuestions m_questions;
  DesktopSession m_session{m_questions};
  MainWindow m_window{m_session};
};

TEST_F(LiveJobTest, FromNothingToACheckedInChange) {
  ASSERT_TRUE(perform(m_window, "connect", [this](QDialog& dialog) {
    auto& tool = *dialog.findChild<QComboBox*>("Tool");
    tool.setCurrentIndex(tool.findData("Subversion"));
    dialog.findChild<QLineEdit*>("Archive")->setText(m_archive);
  }));
  ASSERT_THAT(textOf(m_questions), IsEmpty());

  m_window.selectUnits({"Brewing/Brewing.vpkg", "Brewing/Grinder.vcmp"});
  ASSERT_TRUE(perform(m_window, "add", [](QDialog& dialog) {
    dialog.findChild<QPlainTextEdit*>()->setPlainText("First \"version\"");
  }));
  ASSERT_THAT(textOf(m_questions), IsEmpty());
  auto* name = m_window.findChild<UnitEditor*>()->findChild<QLineEdit*>();
  m_window.selectUnits({"Brewing/Grinder.vcmp"});
  EXPECT_TRUE(name->isReadOnly()) << "what is in the archive is checked out first";

  ASSERT_TRUE(perform(m_window, "check-out"));
  ASSERT_THAT(textOf(m_questions), IsEmpty());
  EXPECT_FALSE(name->isReadOnly());
  const std::string url = "file://" + m_archive.toStdString() + "/Brewing/Grinder.vcmp";
  EXPECT_THAT(svn({"info", QString::fromStdString(url)}), HasSubstr("Lock Owner"));
  name->selectAll();
  QTest::keyClicks(name, "Mill");

  // What was typed is neither taken over nor saved yet; the check-in sees to both.
  ASSERT_TRUE(perform(m_window, "check-in", [](QDialog& dialog) {
    dialog.findChild<QPlainTextEdit*>()->setPlainText("Called it what it is");
  }));
  ASSERT_THAT(textOf(m_questions), IsEmpty());
  EXPECT_TRUE(name->isReadOnly());
  EXPECT_THAT(svn({"cat", QString::fromStdString(url)}), HasSubstr("\"name\": \"Mill\""));
  EXPECT_THAT(svn({"log", QString::fromStdString(url)}), HasSubstr("Called it what it is"));
  m_window.close();
}

}  // namespace
}  // namespace veldra::host::desktop
