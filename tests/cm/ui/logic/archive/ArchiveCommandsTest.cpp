#include "cm/ui/logic/archive/ArchiveCommands.h"

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMFacade.h"
#include "cm/host/IUserMessages.h"
#include "cm/templates/CMProperty.h"
#include "cm/ui/logic/ItemButtons.h"
#include "cm/ui/logic/archive/ArchiveRows.h"
#include "cm/ui/logic/archive/ListArchive.h"
#include "tests/support/ListingTool.h"
#include "tests/support/RecordingBackEnd.h"
#include "tests/support/ScriptedItemView.h"

namespace veldra::test {
namespace {

class ArchiveCommandsTest : public ListingToolTest {
 protected:
  ArchiveCommandsTest() {
    addUnit("Known.vcl", "1");
    MemoryPackage& package = m_model.addPackage("Pump/Pump.vpk");
    package.record.packageDirectory = "/plan/Pump";
    package.record.aggregates = {&addUnit("Elsewhere/Rotor.vcl", "1")};
    archiveHolds(
        "Known.vcl|2|ro|bob\nNew.vcl|1|ro|\nOther.vcl|1|ro|\nPump/Pump.vpk|1|ro|\n"
        "Elsewhere/Rotor.vcl|1|ro|\nPump/Seal.vcl|1|ro|\nREADME.xyz|1|ro|");
    DiagnosticList diagnostics;
    EXPECT_TRUE(listArchiveInto(m_items, {}, diagnostics));
    m_host.scriptedProcesses.runs.clear();
    m_view.all = m_items.list();
  }
  void select(const std::vector<int>& rows) {
    m_view.selected = ArchiveRows(m_items.list()).itemsOf(rows);
  }
  std::deque<std::string>& answers() { return m_host.memoryMessages.loadAnswers; }
  Lines loaded() { return m_host.journal.only({"reload", "add"}); }

  CMArchiveItemListWrapper m_items;
  ScriptedItemView m_view;
};

TEST_F(ArchiveCommandsTest, RowsSayNameTypeVersionAndHolder) {
  const ArchiveRows rows(m_items.list());
  const Lines expected{"Known.vcl", "Class", "2", "bob"};
  for (int column = 0; column < ArchiveColumn::Count; ++column) {
    EXPECT_EQ(rows.cell(0, column), expected[static_cast<std::size_t>(column)]);
    EXPECT_EQ(rows.header(column).substr(0, 5), std::to_string(60608 + column));
  }
}

TEST_F(ArchiveCommandsTest, EachAnswerAboutNewUnits) {
  // The entries: known, new, new, and one of a type that nothing in the model is made of.
  const struct {
    std::deque<std::string> answers;
    Lines asked;
    Lines loaded;
    bool runs;
  } rows[] = {
      {{"yes", "no"}, {"New", "Other"}, {"reload Known.vcl", "add /plan/New.vcl at /plan"}, true},
      {{"yestoall"},
       {"New"},
       {"reload Known.vcl", "add /plan/New.vcl at /plan", "add /plan/Other.vcl at /plan"},
       true},
      {{"notoall"}, {"New"}, {"reload Known.vcl"}, true},
      {{"yes", "cancel"}, {"New", "Other"}, {}, false},
  };
  for (const auto& row : rows) {
    select({0, 1, 2, 6});
    answers() = row.answers;
    m_host.memoryMessages.loadQuestions.clear();
    m_host.journal.clear();
    m_host.scriptedProcesses.runs.clear();
    EXPECT_EQ(ArchiveCommands(m_view).OnArcCo(), row.runs);
    EXPECT_EQ(m_host.memoryMessages.loadQuestions, row.asked);
    EXPECT_EQ(loaded(), row.loaded);
    EXPECT_EQ(commandsOf("co").size(), row.runs ? 4U : 0U) << "what is not loaded comes, too";
    for (const char* file : {"/plan/New.vcl", "/plan/Other.vcl"}) {
      if (IUnit* const added = IUnit::getByFile(file)) m_model.destroy(added);
    }
  }
}

TEST_F(ArchiveCommandsTest, WithoutTheQuestionEverythingIsLoaded) {
  set("AskOnLoadFromArchive", "no");
  select({1, 2});
  m_view.answer->mode = true;
  m_view.answer->label = "R1";
  EXPECT_TRUE(ArchiveCommands(m_view).OnArcCo());
  EXPECT_TRUE(m_host.memoryMessages.loadQuestions.empty());
  EXPECT_EQ(loaded(), (Lines{"add /plan/New.vcl at /plan", "add /plan/Other.vcl at /plan"}));
  EXPECT_EQ(commandsOf("co").front(), "co rw /plan/New.vcl -l R1");
  EXPECT_EQ(m_view.refreshes, 1);
}

TEST_F(ArchiveCommandsTest, DescendantsAreNestedUnitsAndNewFilesOfThePackage) {
  select({3});
  m_view.answer->withDescendants = true;
  CMProperty::saveOnCheckout(0);
  EXPECT_TRUE(ArchiveCommands(m_view).OnArcCo());
  EXPECT_EQ(commandsOf("co"), (Lines{"co ro /plan/Pump/Pump.vpk", "co ro /plan/Elsewhere/Rotor.vcl",
                                     "co ro /plan/Pump/Seal.vcl"}));
  EXPECT_EQ(loaded().size(), 3U);
  EXPECT_TRUE(m_host.memoryMessages.loadQuestions.empty()) << "who takes all means all";
  EXPECT_EQ(CMProperty::saveOnCheckout(-1), 1) << "a large check-out is saved before the next one";
}

TEST_F(ArchiveCommandsTest, TheHostHearsBeforeAndAfterLoading) {
  CMFacade::ATMCallbackFunc() = [this](IMainFrame*) { m_host.journal.add("before"); };
  CMFacade::afterATMCallbackFunc() = [this](IMainFrame*) { m_host.journal.add("after"); };
  set("AskOnLoadFromArchive", "NO");
  select({1});
  EXPECT_TRUE(ArchiveCommands(m_view).OnArcCo());
  const Lines heard = m_host.journal.only({"before", "add", "after"});
  ASSERT_GE(heard.size(), 3U);
  EXPECT_EQ(Lines(heard.end() - 3, heard.end()),
            (Lines{"before", "add /plan/New.vcl at /plan", "after"}));
}

TEST_F(ArchiveCommandsTest, DescendantsAreOfferedOnlyWhereThereAreAny) {
  m_host.memoryEnvironment.settings[{"General", "AlwaysEnableWithDescendentsOption"}] = "FALSE";
  m_view.answer.reset();
  const struct {
    int row;
    bool offers;
  } rows[] = {{0, false}, {1, false}, {3, true}};
  for (const auto& row : rows) {
    select({row.row});
    ArchiveCommands(m_view).OnArcCo();
    EXPECT_EQ(m_view.asked.back().offersDescendants, row.offers) << row.row;
  }
}

TEST_F(ArchiveCommandsTest, RefusalsAndFailures) {
  select({});
  EXPECT_FALSE(ArchiveCommands(m_view).OnArcCo());
  EXPECT_EQ(messages(), "60617 ");
  m_host.memoryMessages.asked.clear();
  select({0});
  m_view.answer.reset();
  EXPECT_FALSE(ArchiveCommands(m_view).OnArcCo());
  EXPECT_EQ(messages(), "");
  m_view.answer = CommandOptions{};
  unset("CheckOutFromArchive");
  EXPECT_FALSE(ArchiveCommands(m_view).OnArcCo());
  EXPECT_EQ(messages(), "60619 ");
  EXPECT_FALSE(ArchiveCommands(m_view).OnArcFetch()) << "fetching is for providers";
  EXPECT_EQ(messages(), "60619 60404 ");
  EXPECT_EQ(m_view.refreshes, 0);
}

TEST_F(ArchiveCommandsTest, AProviderFetchesAndChecksOutOneByOne) {
  useProvider();
  RecordedBackEnds backEnds;
  set("AskOnLoadFromArchive", "NO", "SCC");
  select({0});
  EXPECT_TRUE(ArchiveCommands(m_view).OnArcFetch());
  select({3});
  m_view.answer->withDescendants = true;
  EXPECT_TRUE(ArchiveCommands(m_view).OnArcCo());
  EXPECT_EQ(backEnds.calls,
            (Lines{"provider.fetchFromArchive", "provider.checkOutFromArchive",
                   "provider.checkOutFromArchive", "provider.checkOutFromArchive"}));
}

TEST_F(ArchiveCommandsTest, WhatIsFetchedBelowAPackageIsLoadedWithoutAQuestion) {
  useProvider();
  RecordedBackEnds backEnds;
  // In an earlier command the user did not want it.
  select({5});
  answers() = {"no"};
  EXPECT_TRUE(ArchiveCommands(m_view).OnArcFetch());
  EXPECT_EQ(loaded(), Lines{});
  select({3, 1});
  answers() = {"no"};
  m_view.answer->withDescendants = true;
  EXPECT_TRUE(ArchiveCommands(m_view).OnArcFetch());
  EXPECT_EQ(m_host.memoryMessages.loadQuestions, (Lines{"Seal", "New"}));
  EXPECT_EQ(loaded(), (Lines{"add /plan/Pump/Seal.vcl at /plan/Pump"}));
}

TEST_F(ArchiveCommandsTest, AFetchAsksAboutLoadingFirstAndTellsWhatFailed) {
  useProvider();
  // Its library cannot be loaded, which is told once.
  EXPECT_NE(CMProperty::useSccCompliantTool(), 0);
  m_host.memoryMessages.asked.clear();
  select({});
  EXPECT_FALSE(ArchiveCommands(m_view).OnArcFetch());
  EXPECT_EQ(messages(), "60617 ");
  select({1});
  answers() = {"cancel"};
  EXPECT_FALSE(ArchiveCommands(m_view).OnArcFetch());
  EXPECT_TRUE(m_view.asked.empty()) << "who gives up is asked nothing more";
  EXPECT_EQ(messages(), "60617 ");
  answers() = {"yes"};
  EXPECT_FALSE(ArchiveCommands(m_view).OnArcFetch());
  EXPECT_EQ(m_host.memoryMessages.asked.back().text.substr(0, 5), "60620");
  EXPECT_EQ(m_host.memoryMessages.asked.back().flags, MessageBox::IconError);
  EXPECT_EQ(m_view.refreshes, 0);
}

TEST_F(ArchiveCommandsTest, ButtonsFollowTheBackEnd) {
  const auto shown = [] {
    std::string ids;
    for (int i = 0; i <= static_cast<int>(ItemButton::CheckOutBranch); ++i) {
      const ButtonFace face = ItemButtonRules::face(static_cast<ItemButton>(i));
      if (face.isShown) ids += std::to_string(face.controlId) + ' ';
    }
    return ids;
  };
  EXPECT_EQ(shown(), "218 235 220 ");
  set("EnableCheckoutBranch", "True");
  EXPECT_EQ(shown(), "218 235 220 236 ");
  useProvider();
  EXPECT_EQ(shown(), "218 246 220 ");
  set("EnableFetchFromArchive", "False", "SCC");
  EXPECT_EQ(shown(), "218 220 ");
}

}  // namespace
}  // namespace veldra::test
