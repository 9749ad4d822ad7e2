// Two people on one archive, through a source control provider: the second sees in the synchronize
// dialog exactly what the first has changed, compares it with what he still has, takes it over, and
// loads a unit that only the archive had.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iostream>

#include "cm/core/CMArchiveItem.h"
#include "cm/ui/logic/CommandView.h"
#include "cm/ui/logic/archive/ArchiveCommands.h"
#include "cm/ui/logic/archive/ArchiveComparison.h"
#include "cm/ui/logic/compare/UnitComparison.h"
#include "cm/ui/logic/synchronize/SyncCommand.h"
#include "cm/ui/logic/synchronize/SyncListing.h"
#include "tests/live/Desk.h"
#include "tests/live/Tool.h"

namespace veldra::live {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr char Shared[] = "Brewing/Grinder.vcmp";
constexpr char Added[] = "Milk/Milk Frother.vcmp";

/// The main dialog with one selected unit.
class SelectedUnit : public CommandView {
 public:
  explicit SelectedUnit(IUnit* unit) : m_units{unit} {}
  std::string label;

  std::size_t GetSelectedCount() override { return m_units.size(); }
  UnitList CmSelectedItems() override { return m_units; }
  std::optional<CommandOptions> askOptions(const OptionPresets& /*presets*/) override {
    CommandOptions options;
    options.label = label;
    return options;
  }
  void commandStarts(const CommandRow& /*row*/) override {}
  void commandEnds() override {}
  void DoAfterOpRefresh() override {}
  void dropGoneUnits() override {}

 private:
  UnitList m_units;
};

class SharedProviderTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!isInstalled("svn")) GTEST_SKIP() << "svn is not installed";
    m_sandbox.set("VELDRA_MACHINE_REGISTRY", m_sandbox.path("machine.toml"));
    m_sandbox.set("VELDRA_USER_REGISTRY", m_sandbox.path("user.toml"));
    m_sandbox.copySample("alice");
    cm("", {"init", m_sandbox.path("alice"), "--name", "Machine"});
    cm("", {"provider", "install", VELDRA_SUBVERSION_PROVIDER});
    cm("alice", {"provider", "use", "veldra subversion"});
    cm("alice", {"property", "set", "General.UseUnitTimeStamps", "True"});
    cm("alice", {"connect", "--archive", m_sandbox.path("archive")});
    cm("alice", {"add", "--all", "-m", "As drawn"});
    ASSERT_EQ(m_sandbox.run({"svn", "co", "-q", archive(), m_sandbox.path("bob")}).code, 0);
    m_first = between(m_sandbox.read("alice/" + std::string(Shared)), "\"description\": \"", "\"");
    step("alice has put the model into the archive, bob has a folder of his own");
  }

  static void step(const std::string& text) { std::cout << "  " << text << '\n'; }
  std::string archive() const { return "file://" + m_sandbox.path("archive"); }

  void cm(const std::string& project, std::vector<std::string> arguments) {
    if (!project.empty()) arguments.insert(arguments.begin(), {"-p", m_sandbox.path(project)});
    const Ended ended = m_sandbox.cm(arguments);
    EXPECT_EQ(ended.code, 0) << testing::PrintToString(arguments) << ended.err;
  }
  void replace(const std::string& file, const std::string& from, const std::string& to,
               const std::string& into) {
    std::string text = m_sandbox.read(file);
    const std::size_t at = text.find(from);
    ASSERT_NE(at, std::string::npos) << file;
    m_sandbox.write(into, text.replace(at, from.size(), to));
  }

  void workAsAlice() {
    const std::string shared = "alice/" + std::string(Shared);
    const std::string added = "alice/" + std::string(Added);
    cm("alice", {"checkout", Shared});
    replace(shared, m_first, "Grinds two portions.", shared);
    cm("alice", {"checkin", Shared, "-m", "two portions"});
    replace(shared, "\"name\": \"Grinder\"", "\"name\": \"Milk Frother\"", added);
    const std::string id = between(m_sandbox.read(added), "\"id\": \"", "\"");
    replace(added, id, std::string(id.rbegin(), id.rend()), added);
    cm("alice", {"add", Added, "-m", "a frother"});
    step("alice has changed " + std::string(Shared) + " and added " + Added);
  }

  /// "name: number of the state" of everything that bob's synchronize dialog lists.
  std::vector<std::string> listed() {
    DiagnosticList diagnostics;
    EXPECT_TRUE(m_listing.list({}, diagnostics));
    m_listing.fill();
    std::vector<std::string> rows;
    for (std::size_t row = 0; row < m_listing.size(); ++row) {
      rows.push_back(m_listing.item(row).getNameNShortPath(true) + ": " +
                     std::to_string(static_cast<int>(m_listing.status(row))));
      step("bob sees " + m_listing.cell(row, SyncColumn::Name) + ": " +
           m_listing.cell(row, SyncColumn::Status));
    }
    return rows;
  }

  Sandbox m_sandbox;
  std::string m_first;
  SyncListing m_listing;
};

TEST_F(SharedProviderTest, TheSecondSeesComparesTakesOverAndLoads) {
  Desk bob(m_sandbox, "bob");
  EXPECT_THAT(listed(), IsEmpty()) << "nothing has happened yet";
  workAsAlice();
  const std::string expected = std::string(Shared) + ": 2";
  EXPECT_THAT(listed(), ElementsAre(expected)) << "with a provider new entries are never listed";

  const std::string mine = "bob/" + std::string(Shared);
  const FileState before = m_sandbox.files("bob").at(Shared);
  SelectedUnit selected(bob.unit(Shared));
  EXPECT_TRUE(UnitComparison(selected).OnVddiff()) << testing::PrintToString(bob.takeMessages());
  const Ended printed = bob.compareTool();
  EXPECT_EQ(printed.code, 1) << printed.err;
  EXPECT_THAT(printed.out, AllOf(HasSubstr(m_first), HasSubstr("Grinds two portions.")));
  EXPECT_EQ(m_sandbox.files("bob").at(Shared), before);
  EXPECT_FALSE(m_sandbox.files("bob").contains(std::string(Shared) + "_temp"));
  step("bob has compared his revision, yesterday's, with the newest; his file is untouched");
  EXPECT_THAT(listed(), ElementsAre(expected)) << "to look at it is not to take it over";

  m_listing.sort(SyncColumn::Name);
  bob.window().selected = m_listing.itemsOf({0});
  EXPECT_TRUE(SyncCommand(bob.window()).OnSyncCo({})) << testing::PrintToString(bob.takeMessages());
  EXPECT_THAT(m_sandbox.read(mine), HasSubstr("Grinds two portions."));
  EXPECT_THAT(listed(), IsEmpty());
  step("bob has taken it over; nothing differs any more");

  EXPECT_EQ(bob.unit(Added), nullptr);
  ASSERT_TRUE(bob.select(Added)) << "the archive browser shows what only the archive has";
  EXPECT_TRUE(ArchiveCommands(bob.window()).OnArcFetch())
      << testing::PrintToString(bob.takeMessages());
  ASSERT_NE(bob.unit(Added), nullptr);
  EXPECT_EQ(bob.unit(Added)->getName(), "Milk Frother");
  EXPECT_FALSE(m_sandbox.isWritable("bob/" + std::string(Added)));
  EXPECT_THAT(listed(), IsEmpty());
  step("bob has loaded " + std::string(Added) + " from the archive");
}

TEST_F(SharedProviderTest, AComparisonNeverTakesTheOthersWorkBack) {
  workAsAlice();
  {
    Desk bob(m_sandbox, "bob");
    SelectedUnit selected(bob.unit(Shared));
    selected.label = "Yesterday";
    EXPECT_TRUE(UnitComparison(selected).OnVddiff());
    EXPECT_THAT(testing::PrintToString(bob.takeMessages()), HasSubstr("Yesterday"))
        << "a provider knows no labels";
  }
  cm("bob", {"checkout", Shared});
  EXPECT_THAT(m_sandbox.read("bob/" + std::string(Shared)), HasSubstr("Grinds two portions."));
  cm("bob", {"checkin", Shared, "-m", "nothing"});
  const std::string file = archive() + "/" + Shared;
  EXPECT_THAT(m_sandbox.run({"svn", "cat", file}).out, HasSubstr("Grinds two portions."));
  step("bob has compared, and checked out what alice has checked in");
}

TEST_F(SharedProviderTest, AnEntryThatOnlyTheArchiveHasIsCheckedOutFromTheBrowser) {
  workAsAlice();
  Desk bob(m_sandbox, "bob");
  ASSERT_TRUE(bob.select(Added));
  EXPECT_TRUE(ArchiveCommands(bob.window()).OnArcCo())
      << testing::PrintToString(bob.takeMessages());
  ASSERT_NE(bob.unit(Added), nullptr);
  EXPECT_FALSE(bob.unit(Added)->isReadOnly());
  EXPECT_THAT(m_sandbox.run({"svnadmin", "lslocks", m_sandbox.path("archive")}).out,
              HasSubstr("Milk Frother"));
  step("bob has checked it out, and holds the lock");
}

}  // namespace
}  // namespace veldra::live
