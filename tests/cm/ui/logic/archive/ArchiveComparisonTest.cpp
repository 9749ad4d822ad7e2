#include "cm/ui/logic/archive/ArchiveComparison.h"

#include "cm/core/CMArchiveItem.h"
#include "cm/ui/logic/archive/ArchiveRows.h"
#include "cm/ui/logic/archive/ListArchive.h"
#include "tests/support/ListingTool.h"
#include "tests/support/RecordingBackEnd.h"
#include "tests/support/ScriptedItemView.h"

namespace veldra::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

class ArchiveComparisonTest : public ListingToolTest {
 protected:
  ArchiveComparisonTest() {
    m_host.files.makeDirectory("/tmp");
    MemoryPackage& package = m_model.addPackage("Pump.vpk");
    package.record.aggregates = {&addUnit("Pump/Rotor.vcl", "1")};
    addUnit("Known.vcl", "1");
    m_model.addEmbeddedFile("Notes.txt");
    for (const char* name : {IPN::CMFetch, IPN::CMFetchFromArchive}) {
      set(name, "get \"$targetDir\" ($label ? at $label :)");
    }
    fetchWrites("archived");
    archiveHolds("Known.vcl|2|ro|\nNew.vcl|1|ro|\nPump.vpk|1|ro|\nNotes.txt|1|ro|");
    DiagnosticList diagnostics;
    EXPECT_TRUE(listArchiveInto(m_items, {}, diagnostics));
    m_view.all = m_items.list();
  }
  void select(const std::vector<int>& rows) {
    m_view.selected = ArchiveRows(m_items.list()).itemsOf(rows);
  }
  /// The tool's fetch brings this, and the label that it was asked for, to where the command says.
  void fetchWrites(const std::string& content) {
    m_host.scriptedProcesses.answer(
        "get", Reply{.effect = [this, content] {
          const std::string& command = m_host.scriptedProcesses.runs.back().command;
          const std::size_t from = command.find('"') + 1;
          const std::size_t label = command.find(" at ");
          m_host.files.write(
              command.substr(from, command.find('"', from) - from),
              content + (label != std::string::npos ? command.substr(label) : std::string()));
        }});
  }
  /// The file of that name on a side.
  std::string onSide(char side, const std::string& name) {
    for (const auto& [path, file] : m_host.files.all()) {
      const std::string end = std::string("_") + side + '/' + name;
      if (path.starts_with("/tmp/_tmp") && path.ends_with(end)) return trimmedText(file.content);
    }
    return "(missing)";
  }
  static std::string trimmedText(const std::string& text) { return std::string(trimmed(text)); }
  /// The command line of the compare tool, without the names of the directories.
  std::string started() const {
    const Lines& commands = m_host.scriptedProcesses.detached;
    if (commands.size() != 1) return std::to_string(commands.size()) + " commands";
    std::string line = commands.front();
    for (std::size_t at = 0; (at = line.find("/tmp/_tmp")) != std::string::npos;) {
      line.erase(at, line.find_last_of('_', line.find_first_of("/\"", at + 9)) - at);
    }
    return line;
  }
  std::string text(std::size_t message) const {
    return m_host.memoryMessages.asked.at(message).text;
  }

  CMArchiveItemListWrapper m_items;
  ScriptedItemView m_view;
};

TEST_F(ArchiveComparisonTest, EachWayStartsTheToolWithItsFlags) {
  using Comparison = bool (ArchiveComparison::*)();
  const struct {
    Comparison run;
    int row;
    bool withDescendants;
    const char* command;
  } rows[] = {
      {&ArchiveComparison::OnArcVdDiff, 0, false,
       "Tandel.exe \"_1/Known.vcl\" \"_2/Known.vcl\" -fromVeldra -mergeBack -origId Plant_7_of_9 "
       "-cm2 "},
      {&ArchiveComparison::OnArcVdDiff, 2, true,
       "Tandel.exe \"_1\" \"_2\" -fromVeldra -recursive -mergeBack -origId Plant_7_of_9 -cm2 "},
      {&ArchiveComparison::OnArcCmDiff, 0, false,
       "Tandel.exe \"_1/Known.vcl\" \"_2/Known.vcl\" -fromVeldra -cm1  -cm2 "},
      {&ArchiveComparison::OnArcCmDiff, 2, true,
       "Tandel.exe \"_1\" \"_2\" -fromVeldra -recursive -cm1  -cm2 "},
      {&ArchiveComparison::OnArcCmDiff, 1, true,
       "Tandel.exe \"_1\" \"_2\" -fromVeldra -recursive -cm1  -cm2 "},
  };
  for (const auto& row : rows) {
    m_host.scriptedProcesses.detached.clear();
    select({row.row});
    m_view.answer->withDescendants = row.withDescendants;
    m_view.versions->withDescendants = row.withDescendants;
    EXPECT_TRUE((ArchiveComparison(m_view).*row.run)()) << row.command;
    EXPECT_EQ(started(), row.command);
  }
  EXPECT_EQ(m_view.refreshes, 3) << "after the comparisons of two versions";
}

TEST_F(ArchiveComparisonTest, EachVersionStandsOnItsSide) {
  select({1});
  m_view.versions = VersionChoice{.first = "R1", .second = "R2"};
  EXPECT_TRUE(ArchiveComparison(m_view).OnArcCmDiff()) << "the model need not have it";
  EXPECT_EQ(onSide('1', "New.vcl"), "archived at R1");
  EXPECT_EQ(onSide('2', "New.vcl"), "archived at R2");
  EXPECT_THAT(m_host.journal.only({"reload", "add"}), IsEmpty());
}

TEST_F(ArchiveComparisonTest, ATreeLiesOnBothSidesAsItLiesInTheModel) {
  select({2});
  m_view.versions = VersionChoice{.first = "R1", .second = "R2", .withDescendants = true};
  EXPECT_TRUE(ArchiveComparison(m_view).OnArcCmDiff());
  EXPECT_EQ(onSide('1', "Pump/Rotor.vcl"), "archived at R1");
  EXPECT_EQ(onSide('2', "Pump/Rotor.vcl"), "archived at R2");
  EXPECT_EQ(onSide('2', "Pump.vpk"), "archived at R2");
}

TEST_F(ArchiveComparisonTest, RefusalsAndFailuresAreToldOnceAndStartNothing) {
  using Comparison = bool (ArchiveComparison::*)();
  constexpr Comparison WithModel = &ArchiveComparison::OnArcVdDiff;
  constexpr Comparison Versions = &ArchiveComparison::OnArcCmDiff;
  const struct {
    const char* what;
    Comparison run;
    std::vector<int> rows;
    std::function<void()> given;
    const char* told;
  } rows[] = {
      {"nothing selected", WithModel, {}, {}, "60617 "},
      {"nothing selected", Versions, {}, {}, "60617 "},
      {"two selected", WithModel, {0, 1}, {}, "60618 "},
      {"two selected", Versions, {0, 1}, {}, "60618 "},
      {"not in the model", WithModel, {1}, {}, "60624 "},
      {"an embedded file", WithModel, {3}, {}, "60653 "},
      {"given up", WithModel, {0}, [this] { m_view.answer.reset(); }, ""},
      {"given up", Versions, {0}, [this] { m_view.versions.reset(); }, ""},
      {"no tool", WithModel, {0}, [this] { set("CMTool", "none", IPN::General); }, "46554 "},
      {"nothing fetched",
       WithModel,
       {0},
       [this] { m_host.scriptedProcesses.answer("get", Reply{}); },
       "60657 "},
      {"nothing fetched",
       Versions,
       {0},
       [this] { m_host.scriptedProcesses.answer("get", Reply{}); },
       "60657 "},
      {"an empty version", Versions, {0}, [this] { fetchWrites(""); }, "60650 "},
  };
  for (const auto& row : rows) {
    m_host.memoryMessages.asked.clear();
    m_view.answer = CommandOptions{};
    m_view.versions = VersionChoice{};
    set("CMTool", Tool, IPN::General);
    fetchWrites("archived");
    if (row.given) row.given();
    select(row.rows);
    EXPECT_FALSE((ArchiveComparison(m_view).*row.run)()) << row.what;
    EXPECT_EQ(messages(), row.told) << row.what;
  }
  EXPECT_THAT(m_host.scriptedProcesses.detached, IsEmpty());
}

TEST_F(ArchiveComparisonTest, WhatAnotherComparisonFetchedIsNeverTakenForThisOnes) {
  select({1});
  EXPECT_TRUE(ArchiveComparison(m_view).OnArcCmDiff());
  m_host.scriptedProcesses.answer("get", Reply{});
  EXPECT_FALSE(ArchiveComparison(m_view).OnArcCmDiff())
      << "within the same second both have the same directories";
}

TEST_F(ArchiveComparisonTest, AProviderShowsTheVersionsFirstAndIsSaidToKnowNoLabels) {
  useProvider();
  RecordedBackEnds backEnds;
  select({1});
  m_view.versions.reset();
  EXPECT_FALSE(ArchiveComparison(m_view).OnArcCmDiff());
  EXPECT_EQ(backEnds.calls, (Lines{"provider.historyArcView"}));
  m_view.versions = VersionChoice{.first = "R1", .second = "R2"};
  backEnds.calls.clear();
  m_host.memoryMessages.asked.clear();
  EXPECT_FALSE(ArchiveComparison(m_view).OnArcCmDiff()) << "this provider brings no file";
  EXPECT_EQ(backEnds.calls, (Lines{"provider.historyArcView", "provider.fetchForDiffFromArc"}));
  EXPECT_EQ(messages(), "60656 60657 ");
  EXPECT_THAT(text(0), HasSubstr("R1, R2"));
}

}  // namespace
}  // namespace veldra::test
