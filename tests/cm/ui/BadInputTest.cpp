// What goes wrong around the dialogs: each is told, and leaves a dialog that works.

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>

#include "cm/core/CMFacade.h"
#include "cm/core/CMTranscation.h"
#include "cm/host/MessageIds.h"
#include "cm/ui/CommandDoor.h"
#include "cm/ui/logic/ButtonRules.h"
#include "tests/cm/ui/DialogTest.h"
#include "tests/host/platform/Faults.h"
#include "tests/support/LeaksAreExpected.h"

namespace veldra::test {
namespace {

/// A user who says yes to every window that comes up, and counts them.
class Yes : public QObject {
 public:
  Yes() {
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, [this] {
      auto* const window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (window == nullptr || qobject_cast<CCMDialog*>(window) != nullptr) return;
      ++windows;
      if (auto* archive = findControl<QLineEdit>(*window, ControlId::ConnectArchive)) {
        archive->setText(QStringLiteral("/archive"));
      }
      window->accept();
    });
    m_timer.start();
  }
  int windows = 0;

 private:
  QTimer m_timer;
};

class BadInputTest : public DialogTest {
 protected:
  BadInputTest() {
    m_project.record.aggregates.clear();
    m_package.record.aggregates.clear();
  }

  std::vector<std::string> told() const {
    std::vector<std::string> texts;
    for (const auto& shown : m_host.memoryMessages.notified) texts.push_back(shown.text);
    for (const auto& shown : m_host.memoryMessages.asked) texts.push_back(shown.text);
    return texts;
  }
  bool isTold(int id) const {
    const std::vector<std::string> texts = told();
    return std::any_of(texts.begin(), texts.end(), [id](const std::string& text) {
      return text.find(std::to_string(id)) != std::string::npos;
    });
  }
  static QTreeView& listOf(CCMDialog& dialog) { return at<QTreeView>(dialog, ControlId::FlatList); }
  static int rowOf(CCMDialog& dialog, const IUnit& unit) {
    for (std::size_t row = 0; row < dialog.units().size(); ++row) {
      if (dialog.units().at(row) == &unit) return static_cast<int>(row);
    }
    return -1;
  }
  static void select(CCMDialog& dialog, const IUnit& unit) {
    QTreeView& list = listOf(dialog);
    list.selectionModel()->select(list.model()->index(rowOf(dialog, unit), 0),
                                  QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  }
  /// Open, with this unit selected in the list.
  static void open(CCMDialog& dialog, const IUnit& unit) {
    dialog.setView(true);
    dialog.show();
    select(dialog, unit);
  }
  static void expectUsable(CCMDialog& dialog) {
    EXPECT_FALSE(dialog.isRunning());
    dialog.runCommand(ControlId::TreeView);
    EXPECT_TRUE(dialog.runCommand(ControlId::FlatView));
    EXPECT_TRUE(at(dialog, ControlId::CheckIn).isEnabled());
    dialog.close();
    EXPECT_FALSE(dialog.isVisible());
  }
  void expectCheckOutWorks(CCMDialog& dialog, const std::string& file) {
    set("CheckOut", "checkout $unit");
    const std::size_t before = commands().size();
    open(dialog, *IUnit::getByFile(file));
    acceptNextWindow();
    EXPECT_TRUE(dialog.runCommand(ControlId::CheckOut));
    EXPECT_EQ(commands().size(), before + 1);
    EXPECT_EQ(m_host.undo.open, 0);
    EXPECT_EQ(CMTranscation::getTranscationNesting(), 0);
  }
};

class BadStateTest;

struct State {
  const char* name;
  void (BadStateTest::*make)();
};

class BadStateTest : public BadInputTest, public ::testing::WithParamInterface<State> {
 public:
  void noProject() { m_model.setActiveProject(nullptr); }
  void noTool() { unset("CMTool", "General"); }
  void toolNone() { set("CMTool", "None", "General"); }
  void unloadableProvider() {
    m_host.files.write("/nowhere.so", "no library");
    m_host.memoryRegistry.write("Software\\SourceCodeControlProvider", "ProviderRegKey",
                                "Software\\P");
    m_host.memoryRegistry.write("Software\\P", "SccServerPath", "/nowhere.so");
    useProvider();
  }
};

TEST_P(BadStateTest, EveryCommandSaysSoAndLeavesAWorkingDialog) {
  (this->*GetParam().make)();
  CCMDialog dialog;
  dialog.setView(true);
  dialog.show();
  listOf(dialog).selectAll();
  for (const ButtonRow& row : buttonTable()) {
    const auto& button = at<QAbstractButton>(dialog, row.controlId);
    if (button.isHidden() || row.command >= DialogCommand::UserCommand1 ||
        row.command == DialogCommand::RunTool || row.command == DialogCommand::CheckOutBranch) {
      continue;
    }
    m_host.memoryMessages.asked.clear();
    m_host.memoryMessages.notified.clear();
    Yes yes;
    EXPECT_TRUE(dialog.runCommand(row.controlId)) << row.controlId;
    EXPECT_FALSE(told().empty()) << "silent: " << row.controlId;
    EXPECT_FALSE(dialog.isRunning());
  }
  EXPECT_TRUE(commands().empty());
  EXPECT_EQ(m_host.undo.open, 0);
  expectUsable(dialog);
}

INSTANTIATE_TEST_SUITE_P(States, BadStateTest,
                         ::testing::Values(State{"NoProject", &BadStateTest::noProject},
                                           State{"NoTool", &BadStateTest::noTool},
                                           State{"ToolNone", &BadStateTest::toolNone},
                                           State{"UnloadableProvider",
                                                 &BadStateTest::unloadableProvider}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(BadInputTest, AFaultInsideTheHostEndsTheCommandAndNothingElse) {
  host::FaultGuard guard;
  m_host.guard = &guard;
  set("CheckOut", "crash $unit");
  set("SaveOnCheckout", "True");
  m_host.scriptedProcesses.answer("crash", {.effect = host::writeToNull});
  CCMDialog dialog;
  open(dialog, m_class);
  {
    const LeaksAreExpected leaks;
    acceptNextWindow();
    dialog.runCommand(ControlId::CheckOut);
  }
  EXPECT_TRUE(isTold(MessageId::CommandFault));
  EXPECT_EQ(CMTranscation::getTranscationNesting(), 0);
  EXPECT_EQ(m_host.undo.open, 0);
  expectCheckOutWorks(dialog, "/plan/Brewing/Boiler.vcl");
  expectUsable(dialog);
}

TEST_F(BadInputTest, WhatTheHostThrowsEndsTheCommandAndNothingElse) {
  set("UserDefCommand_1", "mine", "General");
  CCMDialog dialog;
  open(dialog, m_class);
  CMFacade::saveCallbackFunc() = [] { throw std::runtime_error("no disk"); };
  dialog.runCommand(ControlId::UserCommand1);
  CMFacade::saveCallbackFunc() = {};
  ASSERT_FALSE(told().empty());
  EXPECT_NE(told().back().find(std::to_string(MessageId::CommandFault)), std::string::npos);
  expectCheckOutWorks(dialog, "/plan/Brewing/Boiler.vcl");
  expectUsable(dialog);
}

TEST_F(BadInputTest, AUserCommandThatFailsIsTold) {
  set("UserDefCommand_2", "mine", "General");
  m_host.scriptedProcesses.answer("mine", {.code = 1});
  CCMDialog dialog;
  open(dialog, m_class);
  dialog.runCommand(ControlId::UserCommand2);
  EXPECT_TRUE(isTold(MessageId::CommandFailed + static_cast<int>(DialogCommand::UserCommand2)));
  expectUsable(dialog);
}

TEST_F(BadInputTest, AUnitThatVanishesWhileTheQuestionIsOpenIsToldAndGoes) {
  set("CheckOut", "checkout $unit");
  CCMDialog dialog;
  open(dialog, m_class);
  onNextWindow([this](QDialog& window) {
    m_model.destroy(&m_class);
    window.accept();
  });
  dialog.runCommand(ControlId::CheckOut);
  EXPECT_TRUE(isTold(MessageId::SelectionGone));
  EXPECT_TRUE(commands().empty());
  EXPECT_EQ(listOf(dialog).model()->rowCount(), 3) << "the line is gone";
  expectUsable(dialog);
}

TEST_F(BadInputTest, TheSelectionThatTheQuestionWasAskedForIsTaken) {
  set("CheckOut", "checkout $unit");
  CCMDialog dialog;
  open(dialog, m_class);
  onNextWindow([this, &dialog](QDialog& window) {
    select(dialog, m_package);
    window.accept();
  });
  dialog.runCommand(ControlId::CheckOut);
  EXPECT_EQ(commands(), (Lines{"checkout Boiler.vcl"}));
  expectUsable(dialog);
}

TEST_F(BadInputTest, ASecondDialogWaitsForTheCommandOfTheFirst) {
  set("CheckOut", "checkout $unit");
  CCMDialog first;
  CCMDialog second;
  open(second, m_package);
  open(first, m_class);
  int runs = 0;
  m_host.scriptedProcesses.answer(
      "Boiler", {.effect = [&] {
        if (++runs > 1) return;
        Yes yes;
        second.runCommand(ControlId::CheckOut);
        EXPECT_FALSE(runCommandOn(ControlId::CheckOut, {&m_package}, nullptr));
      }});
  acceptNextWindow();
  first.runCommand(ControlId::CheckOut);
  EXPECT_TRUE(isTold(MessageId::CommandStillRuns));
  EXPECT_EQ(commands(), (Lines{"checkout Boiler.vcl"})) << "commands do not overlap";
  // Reloads have put new units into the model; the other dialog hears of it.
  QCoreApplication::processEvents();
  EXPECT_FALSE(second.units().anyGone());
  expectUsable(first);
  expectUsable(second);
}

TEST_F(BadInputTest, ATipShowsTheSignsOfMarkupThatANameHas) {
  m_class.record.fileName = "R&D \"a\".vcl";
  CCMDialog dialog;
  open(dialog, m_class);
  const QString tip =
      listOf(dialog).model()->index(rowOf(dialog, m_class), 0).data(Qt::ToolTipRole).toString();
  EXPECT_TRUE(Qt::mightBeRichText(tip)) << "otherwise the entities would be seen";
  EXPECT_TRUE(tip.contains(QStringLiteral("R&amp;D")));
}

TEST_F(BadInputTest, NoNameForgesWhatIsShownOrBreaksACommand) {
  set("CheckOut", "checkout");
  const std::string names[] = {"<b>bold</b>&amp;<img src=x>",
                               "line\nbreak\ttab\x07",
                               "abc\xE2\x80\xAE"
                               "gpj.exe",
                               "\xD7\x90\xD7\x91\xD7\x92",
                               std::string(500, 'n'),
                               "%1 %2 %n",
                               "two\xE2\x80\xA8lines\xE2\x80\xA9here",
                               "\xFF\xFE broken"};
  const std::string file = m_class.getFullFileName();
  for (const std::string& name : names) {
    // The check-out before has put another object in its place.
    auto& unit = dynamic_cast<MemoryUnit&>(*IUnit::getByFile(file));
    unit.record.name = name;
    CCMDialog dialog;
    open(dialog, unit);
    const int row = rowOf(dialog, unit);
    const QString text = listOf(dialog).model()->index(row, 1).data().toString();
    for (const QChar sign : text) {
      EXPECT_NE(sign.category(), QChar::Other_Control) << name;
      EXPECT_NE(sign.category(), QChar::Other_Format) << name;
      EXPECT_NE(sign.category(), QChar::Separator_Line) << name;
    }
    acceptNextWindow();
    EXPECT_TRUE(dialog.runCommand(ControlId::CheckOut));
    EXPECT_EQ(commands().size(), static_cast<std::size_t>(&name - names) + 1) << name;
    for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
      EXPECT_FALSE(Qt::mightBeRichText(widget->toolTip()) && widget->toolTip().contains("<b>"));
      const auto* const label = qobject_cast<const QLabel*>(widget);
      const bool isPlain = label == nullptr || label->textFormat() == Qt::PlainText ||
                           !Qt::mightBeRichText(label->text());
      EXPECT_TRUE(isPlain) << name;
    }
    expectUsable(dialog);
  }
}

}  // namespace
}  // namespace veldra::test
