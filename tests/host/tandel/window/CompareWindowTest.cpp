#include "host/tandel/window/CompareWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>
#include <QTreeView>
#include <algorithm>

#include "host/model/RememberedProjects.h"
#include "host/tandel/Tandel.h"
#include "host/tandel/window/DifferenceTable.h"
#include "tests/host/desktop/ScriptedQuestions.h"
#include "tests/host/model/TempModel.h"

namespace veldra::host::tandel {
namespace {

using compare::FilePair;
using testing::HasSubstr;

/// Two versions of a unit with three differences: an element added, one removed, and a description
/// that changed; the first side is a copy of the open model's file.
class CompareWindowTest : public testing::Test {
 protected:
  CompareWindowTest() {
    m_model.putProject();
    m_file = m_model.put("Pump.vcmp", FirstText);
    rememberProject("M 7", m_model.path("M.vdy"));
    m_pairs.push_back({.name = "Pump.vcmp",
                       .first = m_sides.write("Pump.vcmp", FirstText),
                       .second = m_sides.write("newer.vcmp", SecondText),
                       .state = FilePair::State::Different});
    m_options.fromVeldra = true;
    m_options.mergesBack = true;
    m_options.projectIdentifier = "M_7";
  }
  ~CompareWindowTest() override {
    if (m_window == nullptr) return;
    m_questions.answer(QMessageBox::Discard);
    m_window->close();
  }

  void open() {
    m_session = std::make_unique<CompareSession>(m_pairs);
    m_window = std::make_unique<CompareWindow>(m_host, *m_session, m_options, m_questions);
    m_window->show();
    m_window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
  }
  QTreeView& list() { return *m_window->findChild<QTreeView*>(); }
  /// 0 is the left one.
  QPlainTextEdit& pane(int side) {
    auto panes = m_window->findChildren<QPlainTextEdit*>();
    std::ranges::sort(panes, {},
                      [](const QWidget* pane) { return pane->mapToGlobal(QPoint()).x(); });
    return *panes.at(side);
  }
  std::string cell(int row, int column) {
    return list().model()->index(row, column).data().toString().toStdString();
  }
  int rows() { return list().model()->rowCount(); }
  /// The row whose words contain this.
  int rowOf(const std::string& words) {
    for (int row = 0; row < rows(); ++row) {
      const std::string text =
          cell(row, DifferenceTable::Element) + ' ' + cell(row, DifferenceTable::Detail);
      if (text.find(words) != std::string::npos) return row;
    }
    ADD_FAILURE() << words;
    return 0;
  }
  void goTo(const std::string& words) {
    list().setCurrentIndex(list().model()->index(rowOf(words), 0));
  }
  bool takesSecond(const std::string& words) {
    return m_session->choice(0, static_cast<std::size_t>(rowOf(words))) == compare::Side::Second;
  }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(m_window.get(), key, modifiers);
  }
  std::string status() { return m_window->statusBar()->currentMessage().toStdString(); }

  static inline const std::string FirstText = TempModel::unitText(
      "Component", "Pump",
      R"("description": "wet", "elements": [{"type": "Port", "name": "in", "id": "i"},
         {"type": "Port", "name": "out", "id": "o"}])");
  static inline const std::string SecondText = TempModel::unitText(
      "Component", "Pump",
      R"("description": "dry", "elements": [{"type": "Port", "name": "in", "id": "i"},
         {"type": "Port", "name": "drain", "id": "d"}])");

  TempModel m_model;
  TempDirectory m_sides;
  std::string m_file;
  std::vector<FilePair> m_pairs;
  TandelOptions m_options;
  desktop::ScriptedQuestions m_questions;
  ReferenceHost m_host{{}};
  std::unique_ptr<CompareSession> m_session;
  std::unique_ptr<CompareWindow> m_window;
};

TEST_F(CompareWindowTest, EachDifferenceHasARowAndItsPlaceOnBothSides) {
  open();
  EXPECT_EQ(rows(), 3);
  EXPECT_THAT(pane(0).toPlainText().toStdString(), HasSubstr("description: wet"));
  EXPECT_THAT(pane(1).toPlainText().toStdString(), HasSubstr("description: dry"));
  EXPECT_EQ(pane(0).blockCount(), pane(1).blockCount()) << "what belongs together stands level";
  EXPECT_THAT(cell(rowOf("wet"), DifferenceTable::Detail), HasSubstr("dry"));
  EXPECT_EQ(list().currentIndex().row(), 0);
  EXPECT_FALSE(m_window->isWindowModified());
}

TEST_F(CompareWindowTest, KeysWalkAndChooseAndOnlyTheChosenGoesIntoTheModel) {
  open();
  press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(list().currentIndex().row(), 1);
  press(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(list().currentIndex().row(), 0);
  goTo("wet");
  press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_TRUE(takesSecond("wet"));
  goTo("drain");
  press(Qt::Key_Right, Qt::AltModifier);
  press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_FALSE(takesSecond("drain"));
  EXPECT_TRUE(m_window->isWindowModified());
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_FALSE(m_window->isWindowModified());
  const std::string merged = m_model.read("Pump.vcmp");
  EXPECT_THAT(merged, HasSubstr("\"dry\""));
  EXPECT_THAT(merged, HasSubstr("\"out\""));
  EXPECT_THAT(merged, testing::Not(HasSubstr("\"drain\"")));
  EXPECT_THAT(status(), HasSubstr("Pump.vcmp"));
  EXPECT_TRUE(m_questions.asked.empty());
}

TEST_F(CompareWindowTest, AFileThatSomebodyHasChangedIsOverwrittenOnlyAfterAQuestion) {
  open();
  goTo("wet");
  press(Qt::Key_Right, Qt::AltModifier);
  m_model.put("Pump.vcmp", TempModel::unitText("Component", "Pump", R"("description": "new")"));
  press(Qt::Key_S, Qt::ControlModifier);
  ASSERT_EQ(m_questions.asked.size(), 1U);
  EXPECT_THAT(m_model.read("Pump.vcmp"), HasSubstr("\"new\""));
  EXPECT_TRUE(m_window->isWindowModified());
  m_questions.answer(QMessageBox::Yes);
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_THAT(m_model.read("Pump.vcmp"), HasSubstr("\"dry\""));
  EXPECT_EQ(m_host.kept().list().size(), 1U) << "with a copy kept";
}

TEST_F(CompareWindowTest, ClosingAsksForChoicesThatAreNotSaved) {
  open();
  goTo("wet");
  QTest::keyClick(&list(), Qt::Key_Return);
  EXPECT_TRUE(takesSecond("wet")) << "Return turns a choice round";
  m_questions.answer(QMessageBox::Cancel);
  EXPECT_FALSE(m_window->close());
  m_questions.answer(QMessageBox::Save);
  EXPECT_TRUE(m_window->close());
  EXPECT_THAT(m_model.read("Pump.vcmp"), HasSubstr("\"dry\""));
}

TEST_F(CompareWindowTest, TwoVersionsOfTheArchiveCanOnlyBeLookedAt) {
  m_options.mergesBack = false;
  open();
  press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_FALSE(m_window->isWindowModified());
  const auto actions = m_window->findChild<QToolBar*>()->actions();
  EXPECT_FALSE(actions.at(2)->isEnabled()) << "take first";
  EXPECT_FALSE(actions.at(3)->isEnabled()) << "take second";
  EXPECT_TRUE(actions.at(1)->isEnabled()) << "next";
}

TEST_F(CompareWindowTest, BehindTheLastDifferenceComesTheNextFileThatDiffers) {
  const std::string text = m_sides.write("same", "1\n");
  m_pairs.push_back(
      {.name = "same", .first = text, .second = text, .state = FilePair::State::Same});
  m_pairs.push_back({.name = "notes.txt",
                     .first = m_sides.write("a", "1\n2\n"),
                     .second = m_sides.write("b", "1\n3\n"),
                     .state = FilePair::State::Different});
  open();
  auto& files = *m_window->findChild<QListWidget*>();
  EXPECT_EQ(files.count(), 3);
  for (int step = rows(); step > 0; --step) press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(files.currentRow(), 2);
  EXPECT_THAT(pane(1).toPlainText().toStdString(), HasSubstr("3"));
  press(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(files.currentRow(), 0);
  EXPECT_EQ(list().currentIndex().row(), rows() - 1);
  files.setCurrentRow(1);
  EXPECT_EQ(rows(), 0);
}

TEST_F(CompareWindowTest, AFileThatCannotBeReadIsToldAndLeavesTheWindowUsable) {
  open();
  m_pairs.push_back({.name = "gone",
                     .first = m_sides.file("gone"),
                     .second = m_sides.file("gone"),
                     .state = FilePair::State::Unreadable});
  m_window->close();
  open();
  m_window->findChild<QListWidget*>()->setCurrentRow(1);
  ASSERT_FALSE(m_questions.asked.empty());
  EXPECT_THAT(m_questions.asked.back().text.toStdString(), HasSubstr("gone"));
  EXPECT_EQ(rows(), 0);
  press(Qt::Key_Right, Qt::AltModifier);
  press(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(rows(), 3);
}

TEST_F(CompareWindowTest, EveryPartTellsItsNameToAScreenReader) {
  open();
  for (const QWidget* part : std::initializer_list<const QWidget*>{
           &list(), &pane(0), &pane(1), m_window->findChild<QListWidget*>()}) {
    EXPECT_FALSE(part->accessibleName().isEmpty()) << part->metaObject()->className();
  }
}

}  // namespace
}  // namespace veldra::host::tandel
