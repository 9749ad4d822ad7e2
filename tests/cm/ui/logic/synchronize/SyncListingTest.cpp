#include "cm/ui/logic/synchronize/SyncListing.h"

#include "cm/core/CMArchiveItem.h"
#include "cm/ui/logic/synchronize/SyncPossible.h"
#include "cm/ui/logic/synchronize/SyncSettings.h"
#include "tests/support/ListingTool.h"
#include "tests/support/RecordingBackEnd.h"

namespace veldra::test {
namespace {

class SyncListingTest : public ListingToolTest {
 protected:
  bool list(const std::string& label = {}) {
    DiagnosticList diagnostics;
    const bool isListed = m_listing.list(label, diagnostics);
    m_listing.fill();
    return isListed;
  }
  /// "name status" for each row.
  Lines rows() const {
    Lines lines;
    for (std::size_t row = 0; row < m_listing.size(); ++row) {
      lines.push_back(m_listing.cell(row, SyncColumn::Name) + " " +
                      std::to_string(static_cast<int>(m_listing.status(row))));
    }
    return lines;
  }

  SyncListing m_listing;
};

TEST_F(SyncListingTest, VersionsDecideWhatIsListed) {
  addUnit("Same.vcl", "1");
  addUnit("Behind.vcl", "1");
  addUnit("Mine.vcl", "1", true);
  addUnit("Case.vcl", "1a");
  m_model.addEmbeddedFile("Notes.txt");
  archiveHolds(
      "Same.vcl|1|ro|\nBehind.vcl|2|ro|\nMine.vcl|2|ro|\nNotes.txt|9|ro|\nOther.xyz|1|ro|\n"
      "New.vcl|1|ro|\nCase.vcl|1A|ro|");
  EXPECT_TRUE(list());
  EXPECT_EQ(rows(), (Lines{"Behind 2", "Mine 8", "New 1", "Case 2"}));
  const Lines words{"60601", "60602", "60600", "60601"};
  for (std::size_t row = 0; row < words.size(); ++row) {
    EXPECT_EQ(m_listing.item(row).getStatus().substr(0, 5), words[row]);
  }
  EXPECT_EQ(m_listing.cell(0, SyncColumn::Version), "1") << "the unit's";
  EXPECT_EQ(m_listing.cell(2, SyncColumn::Version), "1") << "the item's";
  EXPECT_EQ(m_listing.cell(1, SyncColumn::Access), "RW");
  EXPECT_EQ(m_listing.cell(2, SyncColumn::Access), "");
  m_listing.sort(SyncColumn::Name);
  EXPECT_EQ(rows(), (Lines{"Behind 2", "Case 2", "Mine 8", "New 1"}));
}

TEST_F(SyncListingTest, ATermStandsInPlaceOfTheType) {
  addUnit("Term.vcl", "1").record.termName = "a term";
  archiveHolds("Term.vcl|2|ro|");
  list();
  EXPECT_EQ(m_listing.cell(0, SyncColumn::Type), "a term");
}

TEST_F(SyncListingTest, StubsAreLeftOutOnlyWhenTheSettingSaysSo) {
  MemoryUnit& stub = addUnit("Stub.vcl", "1");
  stub.record.flags |= UnitFlag::Stub;
  archiveHolds("Stub.vcl|2|ro|");
  list();
  EXPECT_EQ(m_listing.cell(0, SyncColumn::Access), "U");
  set("FilterUnresolvedUnitsInCMSynchDialog", "True", "General");
  list();
  EXPECT_EQ(m_listing.size(), 0U);
}

TEST_F(SyncListingTest, TheBranchToolComparesTimes) {
  set("CMTool", "Vaultrix", "General");
  for (const char* property : {"ListArchive", "MultiRecordDelimiter", "ListArchiveItsWorkingFile",
                               "ListArchiveItsVersion"}) {
    set(property, get(property), "Vaultrix");
  }
  MemoryUnit& mine = addUnit("Mine.vcl", "1", true);
  addUnit("Same.vcl", "1");
  addUnit("Other.vcl", "1");
  addUnit("Gone.vcl", "1");
  addUnit("Untimed.vcl", "2").record.fileTime.reset();
  m_host.files.find("/plan/Mine.vcl")->time = 2;
  m_host.files.find("/plan/Mine.vcl")->writable = true;
  m_host.files.find("/plan/Other.vcl")->writable = true;
  m_host.files.remove("/plan/Gone.vcl");
  EXPECT_FALSE(mine.record.readOnly);
  archiveHolds(
      "Mine.vcl|1|ro|\nSame.vcl|2|ro|\nOther.vcl|1|ro|\nGone.vcl|2|ro|\nUntimed.vcl|2|ro|\n"
      "New.vcl|1|ro|");
  EXPECT_TRUE(list());
  EXPECT_EQ(rows(), (Lines{"Mine 2", "Other 2", "Untimed 2", "New 1"}))
      << "never as changed here; a mode that differs counts";
  EXPECT_EQ(m_listing.cell(0, SyncColumn::Version), "1") << "the item's";
}

/// A provider whose archive has one more file than the model.
class OneMoreInTheArchive : public RecordingBackEnd {
 public:
  explicit OneMoreInTheArchive(Lines& calls) : RecordingBackEnd("provider", calls, 1) {}
  int listArchive(const ItemCall& call) override {
    for (const char* file : {"/plan/New.vcl", "/plan/Touched.vcl"}) {
      call.items.addTail(new CMArchiveItem(file, "9", CMArchiveItem::ReadOnly, {}, {}));
    }
    return 1;
  }
};

TEST_F(SyncListingTest, AProviderComparesTimesAndNeverListsWhatOnlyTheArchiveHas) {
  useProvider();
  Lines calls;
  OneMoreInTheArchive provider(calls);
  const BackEnds former = backEnds();
  backEnds().provider = &provider;
  set("ShowNewItemsInSynchronize", "YES", "SCC");
  set(IPN::CMHeaderItsVersion, "v:(\\S+)", "SCC");
  for (const char* name : {"Touched.vcl", "Mine.vcl", "Same.vcl"}) addUnit(name, "1");
  m_host.files.find("/plan/Touched.vcl")->time = 2;
  m_host.files.find("/plan/Mine.vcl")->writable = true;
  EXPECT_TRUE(list());
  EXPECT_THAT(rows(), ::testing::UnorderedElementsAre("Touched 2", "Mine 2"))
      << "each unit once, though placeholder and archive both name it";
  EXPECT_EQ(m_listing.cell(0, SyncColumn::Version), "1") << "the unit's";
  backEnds() = former;
}

TEST_F(SyncListingTest, ExcludedStubsHaveNothingToCompare) {
  MemoryUnit& stub = addUnit("Stub.vcl", "1");
  stub.record.flags |= UnitFlag::Stub;
  stub.record.fileTime = 7;
  ItemComparison comparison({&stub});
  EXPECT_EQ(comparison.getItemSyncStatus(nullptr, &stub), SyncStatus::ArchiveAhead);
  comparison.setStubExclusion(true);
  EXPECT_EQ(comparison.getItemSyncStatus(nullptr, &stub), SyncStatus::NothingToCompare);
}

TEST_F(SyncListingTest, AFailedListingKeepsTheFormerOne) {
  addUnit("Behind.vcl", "1");
  archiveHolds("Behind.vcl|2|ro|");
  EXPECT_TRUE(list());
  m_host.scriptedProcesses.answer("ls", {.output = "", .code = 1});
  EXPECT_FALSE(list()) << "a tool that fails must not look like an archive that is in step";
  EXPECT_EQ(rows(), (Lines{"Behind 2"}));
}

TEST_F(SyncListingTest, AToolWithoutVersionsInItsFilesListsThemItself) {
  set(IPN::CMHeaderItsVersion, "");
  set(IPN::WorkspaceVersions, "here");
  m_model.addUnit("Same.vcl");
  m_model.addUnit("Behind.vcl");
  archiveHolds("Same.vcl|1|ro|\nBehind.vcl|2|ro|");
  m_host.scriptedProcesses.answer("here", {.output = "Same.vcl|1|ro|\nBehind.vcl|1|ro|"});
  EXPECT_TRUE(list());
  EXPECT_EQ(rows(), (Lines{"Behind 2"}));
  m_host.scriptedProcesses.answer("here", {.output = "", .code = 1});
  EXPECT_FALSE(list());
}

TEST_F(SyncListingTest, AUnitWithoutAHeaderHasTheVersionThatTheToolLists) {
  set(IPN::WorkspaceVersions, "here");
  addUnit("Behind.vcl", "1");
  m_model.addUnit("Same.puml");
  archiveHolds("Behind.vcl|2|ro|\nSame.puml|7|ro|");
  m_host.scriptedProcesses.answer("here", {.output = "Behind.vcl|2|ro|\nSame.puml|7|ro|"});
  EXPECT_TRUE(list());
  EXPECT_EQ(rows(), (Lines{"Behind 2"})) << "what a file says of itself comes first";
}

TEST_F(SyncListingTest, TheLabelReachesTheListing) {
  set(IPN::CMListArchive, "ls $archive ($label ? -l $label :)");
  archiveHolds("");
  list("R 1");
  EXPECT_EQ(commandsOf("ls").back(), "ls /main -l \"R 1\"");
}

TEST_F(SyncListingTest, WithoutAProjectOrAToolNothingCanBeSynchronized) {
  unset("CMTool", "General");
  EXPECT_FALSE(canSynchronize(1));
  m_model.setActiveProject(nullptr);
  EXPECT_FALSE(canSynchronize(1));
  EXPECT_EQ(messages(), "");
}

TEST_F(SyncListingTest, SynchronizingNeedsAToolOrTimeStamps) {
  EXPECT_TRUE(canSynchronize(1));
  set("CMTool", "none", "General");
  EXPECT_FALSE(canSynchronize(1));
  EXPECT_EQ(messages(), "");
  const struct {
    const char* tool;
    bool provider;
    const char* message;
  } rows[] = {{"Vaultrix", false, "60613 "}, {Tool, true, "60612 "}};
  for (const auto& row : rows) {
    set("CMTool", row.tool, "General");
    set("UseSCCtool", row.provider ? "YES" : "NO", "General");
    m_host.memoryMessages.asked.clear();
    EXPECT_FALSE(canSynchronize(1));
    EXPECT_THAT(messages(), ::testing::HasSubstr(row.message));
    set("UseUnitTimeStamps", "True", "General");
    EXPECT_TRUE(canSynchronize(1));
    unset("UseUnitTimeStamps", "General");
    m_host.memoryEnvironment.settings[{"General", "UseUnitTimeStamps"}] = "TRUE";
    EXPECT_TRUE(canSynchronize(1));
    m_host.memoryEnvironment.settings.clear();
  }
}

TEST_F(SyncListingTest, TheChoicesGoBackIntoTheProjectThatHasThem) {
  SyncSettings{.byLabel = true, .label = "R1"}.write();
  EXPECT_EQ(get("Synchronize_Method", "General"), "(missing)");
  set("Synchronize_Method", "Header", "General");
  set("label", "", "General");
  SyncSettings{.byLabel = true, .label = "R1"}.write();
  EXPECT_EQ(get("Synchronize_Method", "General"), "label");
  EXPECT_EQ(get("label", "General"), "R1");
  EXPECT_TRUE(SyncSettings::read().byLabel);
  EXPECT_EQ(m_host.journal.only({"no-undo-begin", "no-undo-end"}).size(), 4U);
}

}  // namespace
}  // namespace veldra::test
