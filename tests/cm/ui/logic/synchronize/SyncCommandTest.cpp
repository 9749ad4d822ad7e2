#include "cm/ui/logic/synchronize/SyncCommand.h"

#include <numeric>

#include "cm/core/CMArchiveItem.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/synchronize/SyncListing.h"
#include "tests/support/ListingTool.h"
#include "tests/support/RecordingBackEnd.h"
#include "tests/support/ScriptedItemView.h"

namespace veldra::test {
namespace {

class SyncCommandTest : public ListingToolTest {
 protected:
  SyncCommandTest() {
    addUnit("Behind.vcl", "1");
    addUnit("Mine.vcl", "1", true);
    addUnit("Yours.vcl", "1", true);
    archiveHolds("Behind.vcl|2|ro|\nMine.vcl|2|ro|\nNew.vcl|1|ro|\nYours.vcl|2|ro|");
    DiagnosticList diagnostics;
    m_listing.list({}, diagnostics);
    m_listing.fill();
    m_host.scriptedProcesses.runs.clear();
  }
  bool run(const std::vector<int>& rows, const std::string& label = {}) {
    m_view.selected = m_listing.itemsOf(rows);
    return SyncCommand(m_view).OnSyncCo(label);
  }
  std::deque<std::string>& answers() { return m_host.memoryMessages.overwriteAnswers; }
  std::size_t questions() const { return m_host.memoryMessages.overwriteQuestions.size(); }

  SyncListing m_listing;
  ScriptedItemView m_view;
};

TEST_F(SyncCommandTest, WhatIsBehindComesWithoutAQuestionAndUnlocked) {
  EXPECT_TRUE(run({0, 2}));
  EXPECT_EQ(questions(), 0U);
  EXPECT_TRUE(m_host.memoryMessages.loadQuestions.empty());
  EXPECT_EQ(commandsOf("co"), (Lines{"co ro /plan/Behind.vcl", "co ro /plan/New.vcl"}));
  EXPECT_EQ(m_host.journal.only({"reload", "add"}),
            (Lines{"reload Behind.vcl", "add /plan/New.vcl at /plan"}));
  EXPECT_EQ(m_view.refreshes, 1);
  EXPECT_EQ(m_view.running, 0);
}

TEST_F(SyncCommandTest, EachAnswerAboutOwnChanges) {
  const struct {
    std::deque<std::string> answers;
    std::size_t questions;
    Lines taken;
    const char* messages;
  } rows[] = {
      {{"yes", "no"}, 2, {"co ro /plan/Mine.vcl"}, ""},
      {{"yestoall"}, 1, {"co ro /plan/Mine.vcl", "co ro /plan/Yours.vcl"}, ""},
      {{"notoall"}, 1, {}, "60614 "},
      {{"no", "no"}, 2, {}, "60614 "},
      {{"yes", "cancel"}, 2, {}, ""},
  };
  set("AskOnCheckoutReadWrite", "No");
  for (const auto& row : rows) {
    answers() = row.answers;
    m_host.memoryMessages.overwriteQuestions.clear();
    m_host.memoryMessages.asked.clear();
    m_host.scriptedProcesses.runs.clear();
    run({1, 3});
    EXPECT_EQ(questions(), row.questions) << row.answers.front();
    EXPECT_EQ(commandsOf("co"), row.taken) << row.answers.front();
    EXPECT_EQ(messages(), row.messages) << row.answers.front();
  }
}

TEST_F(SyncCommandTest, OwnChangesAreOutOfTheWayMeanwhileAndACopyIsKept) {
  MemoryFiles& files = m_host.files;
  files.write("/plan/Mine.vcl", "mine", true);
  files.write("/plan/Yours.vcl", "yours", true);
  answers() = {"yestoall"};
  Reply reply;
  reply.effect = [&files] {
    EXPECT_EQ(files.find("/plan/Mine.vcl"), nullptr) << "a tool would merge into it";
    files.write("/plan/Mine.vcl", "the archive's");
  };
  m_host.scriptedProcesses.answer("co ro /plan/Mine.vcl", reply);
  run({1, 3});
  EXPECT_EQ(files.find("/plan/Mine.vcl")->content, "the archive's");
  EXPECT_EQ(files.find("/plan/Yours.vcl")->content, "yours") << "nobody has brought another one";
  EXPECT_EQ(files.find("/plan/Mine.vcl_temp"), nullptr);
  EXPECT_EQ(m_host.memoryKeptCopies.lines.front(), "keep /plan/Mine.vcl before Synchronize");
}

TEST_F(SyncCommandTest, WithoutACopyTheOwnFileStays) {
  m_host.files.write("/plan/Mine.vcl", "mine", true);
  m_host.memoryKeptCopies.refusal = "no room";
  answers() = {"yestoall"};
  run({1});
  EXPECT_EQ(commandsOf("co"), Lines{});
  EXPECT_EQ(messages(), "60030 ");
  EXPECT_EQ(m_host.files.find("/plan/Mine.vcl")->content, "mine");
}

TEST_F(SyncCommandTest, NothingSelectedIsAWarning) {
  EXPECT_FALSE(run({}));
  EXPECT_EQ(messages(), "60617 ");
}

TEST_F(SyncCommandTest, ThePropertyTurnsTheCheckOutIntoAFetch) {
  set("CallCheckOutOnSynchronize", "False");
  EXPECT_TRUE(run({0, 2}));
  EXPECT_EQ(commandsOf("get"), (Lines{"get /plan/Behind.vcl", "get /plan/New.vcl"}));
  EXPECT_EQ(m_host.journal.only({"reload", "add"}),
            (Lines{"reload Behind.vcl", "add /plan/New.vcl at /plan"}));
}

TEST_F(SyncCommandTest, AProviderChecksOutOneByOneWhateverThePropertySays) {
  m_view.selected = m_listing.itemsOf({0, 2});
  useProvider();
  RecordedBackEnds backEnds;
  set("CallCheckOutOnSynchronize", "False", "SCC");
  SyncCommand(m_view).OnSyncCo({});
  EXPECT_EQ(backEnds.calls, (Lines(2, "provider.checkOutFromArchive")));
}

TEST_F(SyncCommandTest, TheBranchToolChecksOutRecursively) {
  m_view.selected = m_listing.itemsOf({0, 2});
  set("CMTool", "Vaultrix", "General");
  RecordedBackEnds backEnds;
  SyncCommand(m_view).OnSyncCo({});
  EXPECT_EQ(backEnds.calls, (Lines{"tool.recCheckOutFromArchive"}));
  EXPECT_EQ(CMProperty::saveOnCheckout(-1), 1);
}

TEST_F(SyncCommandTest, TheLabelReachesTheCheckOut) {
  EXPECT_TRUE(run({0}, "R1"));
  EXPECT_EQ(commandsOf("co"), (Lines{"co ro /plan/Behind.vcl -l R1"}));
}

TEST_F(SyncCommandTest, AFailedLoadIsToldAndTheListReadAnew) {
  m_host.reloads.quickReload = ReloadScript::Outcome::Lose;
  set("CallCheckOutOnSynchronize", "False");
  EXPECT_FALSE(run({0}));
  EXPECT_EQ(messages(), "60616 ");
  EXPECT_EQ(m_view.refreshes, 1);
}

TEST_F(SyncCommandTest, AFailedCheckOutEndsTheCommand) {
  unset("CheckOutFromArchive");
  EXPECT_FALSE(run({0}));
  EXPECT_EQ(messages(), "60615 ");
  EXPECT_EQ(m_view.refreshes, 0);
}

}  // namespace
}  // namespace veldra::test
