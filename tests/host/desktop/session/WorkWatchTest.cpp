// A tool at work: its output is seen while it runs, input is held back, and it can be cancelled.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>

#include "host/desktop/session/WorkWatch.h"
#include "host/desktop/window/OutputView.h"

namespace veldra::host::desktop {
namespace {

class WorkWatchTest : public testing::Test {
 protected:
  WorkWatchTest() {
    m_processes.setWatch(&m_work);
    m_view.follow(m_sink);
    QObject::connect(&m_work, &WorkWatch::cancelled, [this] { m_processes.requestCancel(); });
  }
  std::unique_ptr<RunThread> run(const std::string& script) {
    std::unique_ptr<RunThread> run = m_processes.createRunThread("sh -c \"" + script + "\"");
    run->getStatus(RunThread::WaitForever);
    return run;
  }

  Processes m_processes;
  OutputSink m_sink;
  WorkWatch m_work{m_sink};
  OutputView m_view;
};

TEST_F(WorkWatchTest, WordsAreSeenWhileTheToolRunsAndStandOnceInTheEnd) {
  QString seen;
  QObject::connect(&m_sink, &OutputSink::live, [&] { seen = m_view.toPlainText(); });
  m_sink.stream() << "command\n" << std::flush;
  run("echo one; sleep 0.1; echo two");
  EXPECT_EQ(seen.toStdString(), "command\none\ntwo\n");
  m_sink.stream() << "one\ntwo\n" << std::flush;
  EXPECT_EQ(m_view.toPlainText().toStdString(), "command\none\ntwo\n");
}

TEST_F(WorkWatchTest, CharactersThatArriveInPiecesAreWhole) {
  m_sink.stream() << "caf\xC3" << std::flush << "\xA9\n" << std::flush;
  EXPECT_EQ(m_view.toPlainText().toStdString(), "caf\xC3\xA9\n");
}

TEST_F(WorkWatchTest, InputWaitsForNobodyAndTimersRun) {
  QLineEdit edit;
  edit.show();
  bool hasFired = false;
  QTimer::singleShot(20, [&] {
    hasFired = true;
    QTest::keyClicks(&edit, "typed");
    edit.close();
  });
  run("sleep 0.2");
  EXPECT_TRUE(hasFired);
  EXPECT_EQ(edit.text().toStdString(), "");
  EXPECT_TRUE(edit.isVisible()) << "a window must not close under a running command";
  QCoreApplication::processEvents();
  EXPECT_FALSE(m_work.isWorking());
  QTest::keyClicks(&edit, "typed");
  EXPECT_EQ(edit.text().toStdString(), "typed");
}

TEST_F(WorkWatchTest, WhatIsTypedAfterTheLastLookIsThrownAwayToo) {
  QLineEdit edit;
  edit.show();
  run("true");
  const auto type = [&edit] {
    QCoreApplication::postEvent(&edit,
                                new QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a"));
  };
  type();
  m_work.discardInput();
  EXPECT_EQ(edit.text().toStdString(), "");
  QCoreApplication::processEvents();
  type();
  m_work.discardInput();
  QCoreApplication::processEvents();
  EXPECT_EQ(edit.text().toStdString(), "a") << "nothing is at work";
}

TEST_F(WorkWatchTest, EscapeCancelsTheTool) {
  QLineEdit edit;
  edit.show();
  QTimer::singleShot(20, [&] { QTest::keyClick(&edit, Qt::Key_Escape); });
  EXPECT_EQ(run("sleep 30")->end(), ProcessEnd::Cancelled);
  EXPECT_TRUE(m_work.isCancelled());
  EXPECT_TRUE(m_work.results().wasCancelled());
}

}  // namespace
}  // namespace veldra::host::desktop
