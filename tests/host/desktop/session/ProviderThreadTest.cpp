// Calls of a source control provider: where they run, and what the user sees of one that hangs.

#include "host/desktop/session/ProviderThread.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <future>
#include <set>

#include "host/desktop/window/MainWindow.h"
#include "host/desktop/window/ProviderNotice.h"
#include "host/desktop/window/UnitEditor.h"
#include "tests/host/desktop/SampleProject.h"
#include "tests/host/desktop/ScriptedQuestions.h"
#include "tests/host/platform/Faults.h"

namespace veldra::host::desktop {
namespace {

using ::testing::HasSubstr;
using ::testing::SizeIs;

TEST(ProviderThreadTest, CallsRunOnOneThreadAndEverythingElseStays) {
  ProviderThread provider([] {});
  std::set<std::thread::id> threads;
  const auto note = [&threads] { threads.insert(std::this_thread::get_id()); };
  for (int call = 0; call < 3; ++call) {
    provider.expectCall();
    provider.guard(note);
  }
  EXPECT_THAT(threads, SizeIs(1));
  EXPECT_FALSE(threads.contains(std::this_thread::get_id()));
  provider.guard(note);
  EXPECT_TRUE(threads.contains(std::this_thread::get_id()));
}

TEST(ProviderThreadTest, WhatEndsACallComesBackToItsCaller) {
  ProviderThread provider([] {});
  provider.expectCall();
  EXPECT_THROW(provider.guard([] { throw std::out_of_range("its own"); }), std::out_of_range);
  provider.expectCall();
  EXPECT_THROW(provider.guard(writeToNull), ProcessorFault);
  bool isDone = false;
  provider.expectCall();
  provider.guard([&isDone] { isDone = true; });
  EXPECT_TRUE(isDone);
}

class HangingProviderTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(m_window.openProject(QString::fromStdString(m_sample.folder())));
    m_window.show();
    m_session.work().setPatience(std::chrono::milliseconds(50));
    m_window.setWayOut([this] {
      hasLeft = true;
      m_answer.set_value();
    });
  }
  void TearDown() override {
    m_questions.answer(QMessageBox::Discard);
    m_window.close();
  }

  /// A call that comes back when the test lets it.
  void call() {
    m_session.work().providerCallStarted("SccGet");
    m_session.host().faultGuard()->guard([this] { m_answer.get_future().wait(); });
    m_session.work().providerCallEnded();
  }
  ProviderNotice& notice() { return *m_window.findChild<ProviderNotice*>(); }
  QString said() { return notice().findChild<QLabel*>()->text(); }
  void press(const char* button) {
    QTest::mouseClick(notice().findChild<QPushButton*>(button), Qt::LeftButton);
  }
  /// Does something as soon as the notice is there.
  void whenNoticed(const std::function<void()>& act) {
    auto* const look = new QTimer(&m_window);
    QObject::connect(look, &QTimer::timeout, look, [this, look, act] {
      if (!notice().isVisible()) return;
      look->deleteLater();
      act();
    });
    look->start(10);
  }

  SampleProject m_sample;
  ScriptedQuestions m_questions;
  DesktopSession m_session{m_questions};
  MainWindow m_window{m_session};
  std::promise<void> m_answer;
  bool hasLeft = false;
};

TEST_F(HangingProviderTest, TheWindowLivesAndTheUserGoesOnWaiting) {
  QLineEdit& name = *m_window.findChild<UnitEditor*>()->findChild<QLineEdit*>();
  m_window.selectUnits({"Brewing/Grinder.vcmp"});
  const QString before = name.text();
  std::string text;
  whenNoticed([&] {
    text = said().toStdString();
    QTest::keyClicks(&name, "typed");
    EXPECT_FALSE(m_window.close());
    press("Wait");
    EXPECT_FALSE(notice().isVisible());
    QTimer::singleShot(100, [&] { m_answer.set_value(); });
  });
  call();
  EXPECT_THAT(text, HasSubstr("SccGet"));
  EXPECT_THAT(text, HasSubstr("0 second"));
  EXPECT_EQ(name.text(), before);
  EXPECT_FALSE(notice().isVisible()) << "who waits is left alone for a while";
  EXPECT_FALSE(hasLeft);
}

TEST_F(HangingProviderTest, WhoLeavesLosesNothing) {
  m_window.selectUnits({"Brewing/Grinder.vcmp"});
  QLineEdit& name = *m_window.findChild<UnitEditor*>()->findChild<QLineEdit*>();
  name.selectAll();
  QTest::keyClicks(&name, "Mill");
  whenNoticed([&] { press("Leave"); });
  call();
  EXPECT_TRUE(hasLeft);
  EXPECT_THAT(m_sample.read("Brewing/Grinder.vcmp"), HasSubstr("\"name\": \"Mill\""));
}

TEST_F(HangingProviderTest, WhatCannotBeSavedKeepsTheProgramOpen) {
  m_window.selectUnits({"Brewing/Grinder.vcmp"});
  QLineEdit& name = *m_window.findChild<UnitEditor*>()->findChild<QLineEdit*>();
  name.selectAll();
  QTest::keyClicks(&name, "Mill");
  whenNoticed([&] {
    m_sample.makeReadOnly("Brewing/Grinder.vcmp");
    press("Leave");
    EXPECT_THAT(m_questions.asked, SizeIs(1));
    m_answer.set_value();
  });
  call();
  EXPECT_FALSE(hasLeft);
}

TEST_F(HangingProviderTest, AnAnswerInTimeIsNoNews) {
  m_session.work().setPatience(std::chrono::hours(1));
  QTimer::singleShot(80, [this] { m_answer.set_value(); });
  bool isShown = false;
  QObject::connect(&m_session.work(), &WorkWatch::providerHangs, [&] { isShown = true; });
  call();
  EXPECT_FALSE(isShown);
}

}  // namespace
}  // namespace veldra::host::desktop
