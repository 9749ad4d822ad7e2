#include "cm/ui/logic/CommandRun.h"

#include "cm/core/CCMSyncQuestionDlg.h"
#include "cm/ui/logic/ViewState.h"
#include "tests/support/HostTest.h"
#include "tests/support/RecordingBackEnd.h"

namespace veldra::test {
namespace {

using ::testing::ElementsAre;

/// A window whose user has selected units and fills in what the test prepared.
class ScriptedView : public CommandView {
 public:
  UnitList selected;
  std::optional<CommandOptions> answer = CommandOptions{};
  std::function<void()> whileAsking;
  std::function<void()> whileRefreshing;
  std::vector<OptionPresets> asked;
  int refreshes = 0;

  std::size_t GetSelectedCount() override { return selected.size(); }
  UnitList CmSelectedItems() override { return selected; }
  std::optional<CommandOptions> askOptions(const OptionPresets& presets) override {
    asked.push_back(presets);
    if (whileAsking) whileAsking();
    return answer;
  }
  void commandStarts(const CommandRow&) override { ++running; }
  void commandEnds() override { --running; }
  void DoAfterOpRefresh() override {
    ++refreshes;
    if (whileRefreshing) whileRefreshing();
  }
  void dropGoneUnits() override {}
  int running = 0;
};

class CommandRunTest : public HostTest {
 protected:
  bool run(DialogCommand command) { return veldra::CommandRun(m_view).run(*commandRow(command)); }
  std::string lastMessage() const {
    const auto& asked = m_host.memoryMessages.asked;
    return asked.empty() ? "" : asked.back().text.substr(0, 5);
  }

  ScriptedView m_view;
  RecordedBackEnds m_backEnds;
  MemoryPackage& m_package = m_model.addPackage("A.vpk");
  MemoryUnit& m_unit = m_model.addUnit("U.vcl");
};

TEST_F(CommandRunTest, ACommandRefreshesInsideItsTransactionAndIsCompletedOutside) {
  m_view.selected = {&m_unit};
  std::vector<int> openAtLine;
  m_host.traceLog.onLine = [&](const std::string&) { openAtLine.push_back(m_host.undo.open); };
  m_view.whileRefreshing = [&] { openAtLine.push_back(m_host.undo.open); };
  EXPECT_TRUE(run(DialogCommand::CheckOut));
  EXPECT_THAT(openAtLine, ElementsAre(0, 1, 0));
  EXPECT_EQ(m_backEnds.calls, (Lines{"tool.checkOut"}));
  EXPECT_THAT(m_host.traceLog.texts(), ElementsAre("Starting Check Out", "Check Out completed"));
  EXPECT_EQ(m_view.refreshes, 1);
  EXPECT_EQ(m_view.running, 0);
  EXPECT_EQ(m_host.undo.open, 0);
}

TEST_F(CommandRunTest, HistoryWithAToolClosesWithTheWordsOfTheRefresh) {
  m_view.selected = {&m_unit, &m_package};
  EXPECT_TRUE(run(DialogCommand::History));
  EXPECT_THAT(m_host.traceLog.texts(),
              ElementsAre("Starting History", "Refresh CM State completed"));
  useProvider("Any");
  m_host.memoryMessages.asked.clear();
  EXPECT_FALSE(run(DialogCommand::History));
  EXPECT_EQ(lastMessage(), "60401");
}

TEST_F(CommandRunTest, GivingUpStopsEverything) {
  m_view.selected = {&m_unit};
  m_view.answer.reset();
  EXPECT_FALSE(run(DialogCommand::CheckIn));
  EXPECT_TRUE(m_backEnds.calls.empty());
  EXPECT_EQ(m_view.refreshes, 0);
  EXPECT_EQ(m_host.undo.open, 0);
}

TEST_F(CommandRunTest, UnitsThatDieBehindTheOptionsAreLeftOut) {
  m_view.selected = {&m_unit};
  m_view.whileAsking = [this] { m_model.destroy(&m_unit); };
  EXPECT_FALSE(run(DialogCommand::CheckOut));
  EXPECT_TRUE(m_backEnds.calls.empty());
  EXPECT_EQ(m_host.memoryMessages.asked.front().text.substr(0, 5), "60402");
}

TEST_F(CommandRunTest, AFailureKeepsTheCommentAndDoesNotRefresh) {
  set("CMTool", "None", "General");
  m_view.selected = {&m_unit};
  m_view.answer->comment = "what I did";
  EXPECT_FALSE(run(DialogCommand::CheckIn));
  EXPECT_EQ(lastMessage(), "60480");
  EXPECT_EQ(m_view.refreshes, 0);
  EXPECT_EQ(m_host.traceLog.texts(), (Lines{"Starting Check In"}));
  set("CMTool", Tool, "General");
  EXPECT_TRUE(run(DialogCommand::CheckIn));
  EXPECT_EQ(m_view.asked.back().comment, "what I did");
  EXPECT_EQ(ViewState::unusedComment(DialogCommand::CheckIn), "") << "it is used now";
}

TEST_F(CommandRunTest, TheCommentIsKeptUntilEveryUnitIsDone) {
  class HalfDone : public BackEnd {
   public:
    int checkIn(const UnitCall& c) override {
      if (fails) c.diagnostics.emplace_back(CMDiagnostic::Failed, "U is not done.", nullptr);
      return isTool ? 1 : 0;
    }
    bool fails = true;
    bool isTool = true;
  } half;
  backEnds().tool = &half;
  backEnds().provider = &half;
  m_view.selected = {&m_unit};
  m_view.answer->comment = "what I did";
  for (const bool isTool : {true, false}) {
    half.isTool = isTool;
    if (!isTool) useProvider("Any");
    for (const bool fails : {true, false}) {
      half.fails = fails;
      run(DialogCommand::CheckIn);
      EXPECT_EQ(ViewState::unusedComment(DialogCommand::CheckIn), fails ? "what I did" : "");
    }
  }
}

TEST_F(CommandRunTest, WhatTheHostThrowsDuringTheReloadIsTold) {
  m_view.selected = {&m_unit};
  m_view.answer->withDescendants = true;
  m_host.traceLog.onLine = [](const std::string& line) {
    if (line.starts_with("Updating")) throw std::runtime_error("no memory");
  };
  EXPECT_FALSE(run(DialogCommand::CheckOut));
  EXPECT_EQ(lastMessage(), "60478");
  EXPECT_EQ(m_view.refreshes, 0);
  EXPECT_EQ(m_host.undo.open, 0);
}

TEST_F(CommandRunTest, AnAnswerForAllUnitsHoldsForOneCommandOnly) {
  class Asking : public BackEnd {
   public:
    int checkOut(const UnitCall&) override { return ask(); }
    int fetch(const UnitCall&) override { return ask(); }

   private:
    static int ask() {
      for (int unit = 0; unit < 2; ++unit) CCMSyncQuestionDlg("Overwrite it?").DoModal();
      return 1;
    }
  } asking;
  backEnds().tool = &asking;
  m_view.selected = {&m_unit};
  std::size_t questions = 0;
  for (const DialogCommand command : {DialogCommand::CheckOut, DialogCommand::Fetch}) {
    for (const char* answer : {"yestoall", "notoall"}) {
      m_host.memoryMessages.overwriteAnswers = {answer};
      EXPECT_TRUE(run(command));
      EXPECT_EQ(m_host.memoryMessages.overwriteQuestions.size(), ++questions) << answer;
    }
  }
}

TEST_F(CommandRunTest, DescendantsTakeTheRecursiveVariant) {
  m_package.record.aggregates = {&m_unit};
  m_view.selected = {&m_package};
  m_view.answer->withDescendants = true;
  EXPECT_TRUE(run(DialogCommand::CheckIn));
  EXPECT_TRUE(run(DialogCommand::CheckOut));
  EXPECT_EQ(m_backEnds.calls, (Lines{"tool.recCheckIn", "tool.recCheckOutFromArchive"}));
  EXPECT_THAT(m_host.traceLog.texts(),
              ::testing::IsSupersetOf(
                  {"Starting Recursive Check In", "Recursive Check In completed",
                   "Starting ATM after Recursive Check Out",
                   "Completed ATM after Recursive Check Out", "Recursive Check Out completed"}));
  EXPECT_THAT(m_host.journal.only({"reload"}).size(), ::testing::Gt(0U));
}

/// Says of every command that one of its units is not done.
class PartlyFailing : public BackEnd {
 public:
  int recUncheckout(const UnitCall& c) override {
    c.diagnostics.emplace_back(CMDiagnostic::Failed, "Boiler is not done.", nullptr);
    return 1;
  }
};

TEST_F(CommandRunTest, TheResultsOfARecursiveVariantAreShownBeforeTheModelIsReloaded) {
  PartlyFailing partly;
  backEnds().tool = &partly;
  m_host.memoryMessages.answer = MessageBox::AnswerYes;
  m_view.selected = {&m_unit};
  std::vector<std::string> lines;
  m_host.traceLog.onLine = [&](const std::string& line) {
    if (line.starts_with("Updating")) return;
    lines.push_back(line + ' ' + std::to_string(m_host.memoryMessages.asked.size()));
  };
  m_view.whileRefreshing = [&] { lines.push_back("refresh"); };
  EXPECT_TRUE(run(DialogCommand::UndoCheckOut));
  lines.erase(lines.begin());
  EXPECT_THAT(lines, ElementsAre("Starting Recursive Undo Check Out 1",
                                 "Starting ATM after Recursive Undo Check Out 2",
                                 "Completed ATM after Recursive Undo Check Out 2", "refresh",
                                 "Recursive Undo Check Out completed 2"));
}

TEST_F(CommandRunTest, AProviderWithoutAContextEndsTheRecursiveVariant) {
  useProvider("Any");
  m_view.selected = {&m_unit};
  m_view.answer->withDescendants = true;
  EXPECT_FALSE(run(DialogCommand::CheckIn));
  EXPECT_TRUE(m_backEnds.calls.empty());
  EXPECT_EQ(m_host.traceLog.texts().back(), "Starting Recursive Check In");
  EXPECT_EQ(m_view.refreshes, 0);
}

/// A configuration that generates source files from every unit.
class Respecting : public ICodeGenConfigInfo {
 public:
  bool isRespectMode() const override { return true; }
  bool isObserved(const IUnit*) const override { return true; }
};

TEST_F(CommandRunTest, WithoutTheSettingUndoStillAsksAboutInformationFiles) {
  Respecting configuration;
  m_project.codeGen = &configuration;
  m_view.selected = {&m_unit};
  const struct {
    const char* setting;  ///< Null for a missing one.
    std::size_t questions;
    bool isPreset;
  } rows[] = {{nullptr, 2, false}, {"False", 1, false}, {"True", 2, true}};
  for (const auto& row : rows) {
    if (row.setting != nullptr) set("EnableRespectSynchronizedCM", row.setting, "General");
    m_host.memoryMessages.asked.clear();
    m_host.memoryMessages.answer = MessageBox::AnswerNo;
    EXPECT_TRUE(run(DialogCommand::UndoCheckOut));
    EXPECT_EQ(m_host.memoryMessages.asked.size(), row.questions);
    EXPECT_TRUE(run(DialogCommand::CheckIn));
    EXPECT_EQ(m_view.asked.back().withInformationFiles, row.isPreset);
    EXPECT_EQ(m_view.asked.back().offersInformationFiles, row.questions == 2);
  }
}

TEST_F(CommandRunTest, TheBranchToolRefusesControlledFilesBeforeAnythingIsAsked) {
  set("CMTool", "Vaultrix", "General");
  m_model.addEmbeddedFile("docs/Notes.txt").record.saveUnit = &m_project;
  EXPECT_FALSE(run(DialogCommand::Connect));
  EXPECT_EQ(lastMessage(), "60403");
  EXPECT_TRUE(m_view.asked.empty());
}

TEST_F(CommandRunTest, ARecursiveFetchTakesStubsApartWhenTheSettingWantsIt) {
  set("AllowCMOperationsOnStubUnits", "True", "General");
  set("FetchStubSubUnitsSeparately", "True", "General");
  m_unit.record.flags |= UnitFlag::Stub;
  m_package.record.aggregates = {&m_unit};
  m_view.selected = {&m_package};
  m_view.answer->withDescendants = true;
  EXPECT_TRUE(run(DialogCommand::Fetch));
  EXPECT_EQ(m_backEnds.calls, (Lines{"tool.fetch", "tool.fetch"}));
}

TEST_F(CommandRunTest, UndoWithAToolAsksAboutDescendants) {
  set("CMTool", "Vaultrix", "General");
  m_view.selected = {&m_unit};
  const struct {
    int answer;
    Lines calls;
  } rows[] = {{MessageBox::AnswerCancel, {}},
              {MessageBox::AnswerNo, {"tool.uncheckout"}},
              {MessageBox::AnswerYes, {"tool.recUncheckout"}}};
  for (const auto& row : rows) {
    m_backEnds.calls.clear();
    m_host.memoryMessages.answer = row.answer;
    EXPECT_EQ(run(DialogCommand::UndoCheckOut), !row.calls.empty());
    EXPECT_EQ(m_backEnds.calls, row.calls);
  }
}

TEST_F(CommandRunTest, AddAsksAboutSubUnitsOnlyWhenTheSettingWantsIt) {
  m_package.record.aggregates = {&m_unit};
  m_view.selected = {&m_package};
  EXPECT_TRUE(run(DialogCommand::AddToArchive));
  EXPECT_TRUE(m_host.memoryMessages.asked.empty());
  EXPECT_FALSE(m_view.asked.back().offersDescendants);
  set("AddArchiveWithSubUnits", "True", "General");
  m_host.memoryMessages.answer = MessageBox::AnswerCancel;
  EXPECT_FALSE(run(DialogCommand::AddToArchive));
  m_host.memoryMessages.answer = MessageBox::AnswerYes;
  EXPECT_TRUE(run(DialogCommand::AddToArchive));
  EXPECT_TRUE(m_view.asked.back().offersDescendants);
  EXPECT_TRUE(m_view.asked.back().withDescendants) << "the window shows the answer";
  EXPECT_EQ(m_backEnds.calls, (Lines{"tool.addMember", "tool.addMember"}));
}

TEST_F(CommandRunTest, FetchAsksAsTheHostSettingSays) {
  useProvider("Any");
  m_view.selected = {&m_unit};
  auto& setting = m_host.memoryEnvironment.settings[{"General", "FetchWithDesc"}];
  for (const char* value : {"", "TRUE", "false"}) {
    setting = value;
    run(DialogCommand::Fetch);
  }
  EXPECT_EQ(m_view.asked.size(), 2U);
  EXPECT_EQ(m_backEnds.calls.size(), 3U);
}

}  // namespace
}  // namespace veldra::test
