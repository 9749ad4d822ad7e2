#include <algorithm>

#include "cm/host/IPN.h"
#include "cm/scc/CorvaneAdapter.h"
#include "cm/scc/ProviderState.h"
#include "cm/templates/CMProperty.h"
#include "tests/cm/scc/ProviderTest.h"
#include "tests/host/platform/TempDirectory.h"

namespace veldra::test {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// The operations beyond check-out, check-in, undo and get.
class MemberOperationsSccTest : public ProviderTest {
 protected:
  MemberOperationsSccTest() {
    m_units = {&m_a, &m_b};
    connect();
  }
  using OnUnits = int (*)(UnitList&, ArgumentList&, DiagnosticList&);
  using OnItems = int (*)(CMArchiveItemList&, ArgumentList&, DiagnosticList&);
  int call(OnUnits operation) { return operation(m_units, m_arguments, m_diagnostics); }
  int call(OnItems operation) { return operation(m_items, m_arguments, m_diagnostics); }
  int rename(const std::string& newName) {
    return CMFacade::RenameMember(&m_a, m_a.getFullFileName(), newName, m_diagnostics);
  }
  bool hasFile(const std::string& path) { return m_host.files.find(path) != nullptr; }
  std::string contentOf(const std::string& path) { return m_host.files.find(path)->content; }
  std::vector<UnitEnd> ends() const {
    std::vector<UnitEnd> all;
    for (const auto& end : m_host.memoryProgress.ended) all.push_back(end.end);
    return all;
  }
  MemoryPackage& addPackage() {
    MemoryPackage& package = m_model.addPackage("Brewing/Brewing.vpk");
    package.record.packageDirectory = "Brewing";
    m_model.addUnit("Brewing/Boiler.vcl");
    return package;
  }
  /// A get writes what the archive has to the file's place.
  void letGetWrite(const std::string& path) {
    m_provider->during = [this, path](const std::string& entryPoint) {
      if (entryPoint != "SccGet") return;
      m_seenDuringGet = hasFile(path);
      m_host.files.write(path, "archived");
    };
  }

  MemoryUnit& m_a = m_model.addUnit("A.vcl");
  MemoryUnit& m_b = m_model.addUnit("B.vcl");
  bool m_seenDuringGet = false;
};

TEST_F(MemberOperationsSccTest, WindowsOfTheProviderAreOpenedAndAReloadFollowsWhenItSaysSo) {
  EXPECT_EQ(call(CMFacade::History), 1);
  EXPECT_EQ(call(CMFacade::Properties), 1);
  EXPECT_THAT(calls(), ElementsAre("SccHistory /plan/A.vcl", "SccHistory /plan/B.vcl",
                                   "SccProperties /plan/A.vcl", "SccProperties /plan/B.vcl"));
  EXPECT_THAT(traces("Invoking SccProperties"),
              Contains("Invoking SccProperties on Scc dll for the following file:\n\t"
                       "/plan/A.vcl\n"));
  forget();
  providerState().capabilities = scc::SCC_CAP_HISTORY_MULTFILE;
  m_provider->results["SccHistory"] = scc::SCC_I_RELOADFILE;
  EXPECT_EQ(call(CMFacade::History), 1);
  EXPECT_THAT(calls(), ElementsAre("SccHistory /plan/A.vcl /plan/B.vcl"));
  EXPECT_THAT(m_host.journal.only({"before", "reload", "after"}),
              ElementsAre("before", "reload A.vcl", "reload B.vcl", "after"));
  EXPECT_THAT(shown(), IsEmpty());
  m_provider->results["SccHistory"] = scc::SCC_E_NOTAUTHORIZED;
  EXPECT_EQ(call(CMFacade::History), 0);
  EXPECT_THAT(shown(), ElementsAre(HasSubstr("48346")));
}

TEST_F(MemberOperationsSccTest, AddTakesTheTypeFromTheContent) {
  const host::TempDirectory folder;
  folder.write("text.vcl", "class A\n");
  folder.write("image.slx", std::string("PK\0\1", 4));
  for (MemoryUnit* unit : {&m_a, &m_b}) unit->record.directory = folder.path();
  m_a.record.fileName = "text.vcl";
  m_b.record.fileName = "image.slx";
  for (const IUnit* unit : m_units) m_provider->status[unit->getFullFileName()] = 0;
  EXPECT_EQ(call(CMFacade::AddMember), 1);
  ASSERT_THAT(calls("SccAdd"), SizeIs(1));
  EXPECT_TRUE(calls("SccAdd")[0].ends_with(" 'why' 1 0")) << calls("SccAdd")[0];
  EXPECT_THAT(shown(), ElementsAre("60206: 2 %2"));
}

TEST_F(MemberOperationsSccTest, AddLeavesOutWhatTheArchiveHasAndFindsOutWhatBecameOfTheRest) {
  m_provider->status = {{"/plan/B.vcl", 0}};
  m_provider->results["SccAdd"] = scc::SCC_E_ACCESSFAILURE;
  EXPECT_EQ(call(CMFacade::AddMember), 0);
  EXPECT_THAT(calls("SccAdd"), ElementsAre("SccAdd /plan/B.vcl 'why' 0"));
  EXPECT_THAT(ends(), ElementsAre(UnitEnd::ToolFailed, UnitEnd::ToolFailed));
  forget();
  // The last error counts for all, but this file was added before it came.
  m_provider->during = [this](const std::string& entryPoint) {
    if (entryPoint == "SccAdd") m_provider->status["/plan/B.vcl"] = 1;
  };
  m_units = {&m_b};
  EXPECT_EQ(call(CMFacade::AddMember), 0);
  EXPECT_THAT(ends(), ElementsAre(UnitEnd::Done));
}

TEST_F(MemberOperationsSccTest, ADirectoryIsAddedWithWhatLiesInIt) {
  addPackage();
  m_provider->status = {{"/plan/Brewing/Brewing.vpk", 0}, {"/plan/Brewing/Boiler.vcl", 0}};
  EXPECT_EQ(CMFacade::AddDirectory("/plan/Brewing", m_arguments, m_diagnostics), 1);
  EXPECT_EQ(CMFacade::AddDirectory("/plan/Empty", m_arguments, m_diagnostics), 1);
  EXPECT_THAT(calls("SccAdd"),
              ElementsAre("SccAdd /plan/Brewing/Brewing.vpk /plan/Brewing/Boiler.vcl 'why' 0 0",
                          "SccAdd /plan/Empty 'why' 0"));
}

TEST_F(MemberOperationsSccTest, DeleteTakesAPackageWithAllBelowItAndKeepsTheFiles) {
  m_units = {&addPackage(), &m_a};
  m_provider->status = {{"/plan/A.vcl", 0}};
  EXPECT_EQ(call(CMFacade::DeleteMember), 1);
  EXPECT_THAT(calls("SccRemove"),
              ElementsAre("SccRemove /plan/Brewing/Brewing.vpk /plan/Brewing/Boiler.vcl 'why'"));
  EXPECT_TRUE(hasFile("/plan/Brewing/Boiler.vcl"));
  EXPECT_THAT(ends(), ElementsAre(UnitEnd::Done, UnitEnd::Done, UnitEnd::Done));
  forget();
  m_provider->results["SccRemove"] = scc::SCC_E_FILEISCHECKEDOUT;
  EXPECT_EQ(call(CMFacade::DeleteMember), 0);
  EXPECT_THAT(shown(), SizeIs(1));
  EXPECT_THAT(ends(), Contains(UnitEnd::ToolFailed).Times(2));
}

TEST_F(MemberOperationsSccTest, ADirectoryOfATaskBasedProviderIsDeletedAsTheArchiveHasIt) {
  CMProperty::setSCCToolName("corvane");
  m_provider->listed = {"/plan/Old/A.vcl", "/plan/Old/A.vcl", "/plan/Old2/B.vcl"};
  EXPECT_EQ(CMFacade::DeleteDirectory("/plan/Old", m_arguments, m_diagnostics, false, nullptr), 1);
  EXPECT_THAT(calls(),
              ElementsAre("SccPopulateList 5 /plan/Old 1", "SccRemove /plan/Old/A.vcl 'why'"));
}

TEST_F(MemberOperationsSccTest, RenameKeepsArchiveAndDiskInStep) {
  EXPECT_EQ(rename("Engine.vcl"), 1);
  EXPECT_THAT(calls("SccRename"), ElementsAre("SccRename /plan/A.vcl /plan/Engine.vcl"));
  EXPECT_EQ(contentOf("/plan/Engine.vcl"), "content of A.vcl");
  EXPECT_FALSE(hasFile("/plan/A.vcl"));
}

TEST_F(MemberOperationsSccTest, WhatIsCheckedOutIsCheckedInUnderItsNewName) {
  m_provider->status["/plan/A.vcl"] = 0x1003;
  EXPECT_EQ(
      CMFacade::RenameMember(&m_a, m_a.getFullFileName(), "Engine.vcl", m_arguments, m_diagnostics),
      1);
  EXPECT_THAT(calls("SccCheckin"), ElementsAre("SccCheckin /plan/Engine.vcl 'why' 0"));
  // The new place stands, and the user learns that the file is still out.
  m_provider->results["SccCheckin"] = scc::SCC_E_CHECKINCONFLICT;
  m_provider->status["/plan/B.vcl"] = 0x1003;
  CMTargetFile target("/plan/New");
  m_units = {&m_b};
  m_arguments.push_back(&target);
  EXPECT_EQ(call(CMFacade::MoveMember), 1);
  EXPECT_TRUE(hasFile("/plan/New/B.vcl"));
  EXPECT_THAT(shown(), ElementsAre(HasSubstr("48329")));
}

TEST_F(MemberOperationsSccTest, RenameRefusesWhatCannotStayInStep) {
  EXPECT_EQ(rename("B.vcl"), 0) << "there is such a file";
  EXPECT_EQ(rename(""), 0);
  EXPECT_THAT(calls("SccRename"), IsEmpty());
  m_provider->results["SccRename"] = scc::SCC_E_NOTAUTHORIZED;
  EXPECT_EQ(rename("Engine.vcl"), 0);
  EXPECT_TRUE(hasFile("/plan/A.vcl"));
  m_provider->results.clear();
  forget();
  // The name is taken on the disk while the archive is at work.
  m_provider->during = [this](const std::string& entryPoint) {
    if (entryPoint == "SccRename") m_host.files.write("/plan/Engine.vcl", "mine");
  };
  EXPECT_EQ(rename("Engine.vcl"), 0);
  EXPECT_THAT(calls("SccRename"), ElementsAre("SccRename /plan/A.vcl /plan/Engine.vcl",
                                              "SccRename /plan/Engine.vcl /plan/A.vcl"));
  EXPECT_EQ(contentOf("/plan/Engine.vcl"), "mine");
  EXPECT_THAT(shown(), ElementsAre(HasSubstr("60209: /plan/A.vcl")));
}

TEST_F(MemberOperationsSccTest, WhatTheArchiveDoesNotHaveIsMovedOnTheDiskAlone) {
  m_provider->status["/plan/A.vcl"] = 0;
  EXPECT_EQ(rename("Engine.vcl"), 1);
  EXPECT_THAT(calls("SccRename"), IsEmpty());
  EXPECT_TRUE(hasFile("/plan/Engine.vcl"));
}

TEST_F(MemberOperationsSccTest, MoveGoesToTheTargetAndTakesPackagesWhole) {
  CMTargetFile target("/plan/New");
  m_units = {&addPackage(), &m_a};
  m_arguments = {&target};
  EXPECT_EQ(call(CMFacade::MoveMember), 1);
  EXPECT_THAT(calls("SccRename"),
              ElementsAre("SccRename /plan/Brewing/Brewing.vpk /plan/New/Brewing/Brewing.vpk",
                          "SccRename /plan/Brewing/Boiler.vcl /plan/New/Brewing/Boiler.vcl",
                          "SccRename /plan/A.vcl /plan/New/A.vcl"));
  EXPECT_TRUE(hasFile("/plan/New/Brewing/Boiler.vcl"));
  m_units = {&m_b};
  m_arguments.clear();
  forget();
  EXPECT_EQ(call(CMFacade::MoveMember), 0);
  ASSERT_THAT(m_diagnostics, SizeIs(1));
  EXPECT_THAT(m_diagnostics[0].getMessage(), HasSubstr("60210: /plan/B.vcl"));
}

TEST_F(MemberOperationsSccTest, APackageGoesAtOnceWhereTheProviderKnowsDirectories) {
  providerState().capabilities = scc::SCC_CAP_DIRECTORYSTATUS;
  m_provider->status["/plan/Brewing/Boiler.vcl"] = 0x1003;
  CMTargetFile target("/plan/New");
  m_units = {&addPackage()};
  m_arguments.push_back(&target);
  EXPECT_EQ(call(CMFacade::MoveMember), 1);
  EXPECT_THAT(calls(),
              ElementsAre("SccDirQueryInfo /plan/Brewing",
                          "SccQueryInfo /plan/Brewing/Brewing.vpk /plan/Brewing/Boiler.vcl",
                          "SccRename /plan/Brewing /plan/New/Brewing",
                          "SccCheckin /plan/New/Brewing/Boiler.vcl 'why' 0"));
  EXPECT_TRUE(hasFile("/plan/New/Brewing/Boiler.vcl"));
  EXPECT_FALSE(hasFile("/plan/Brewing/Boiler.vcl"));
  EXPECT_THAT(ends(), ElementsAre(UnitEnd::Done));
}

TEST_F(MemberOperationsSccTest, ARenamedPackageTakesItsDirectoryAlong) {
  providerState().capabilities = scc::SCC_CAP_DIRECTORYSTATUS;
  MemoryPackage& package = addPackage();
  m_provider->status["/plan/Brewing/Brewing.vpk"] = 0x1003;
  EXPECT_EQ(CMFacade::RenameMember(&package, package.getFullFileName(), "/plan/Mill/Mill.vpk",
                                   m_arguments, m_diagnostics),
            1);
  EXPECT_THAT(calls("SccRename"),
              ElementsAre("SccRename /plan/Brewing /plan/Mill",
                          "SccRename /plan/Mill/Brewing.vpk /plan/Mill/Mill.vpk"));
  EXPECT_THAT(calls("SccCheckin"), ElementsAre("SccCheckin /plan/Mill/Mill.vpk 'why' 0"));
  EXPECT_TRUE(hasFile("/plan/Mill/Boiler.vcl"));
}

TEST_F(MemberOperationsSccTest, APackageStaysWhereItIsWhenOneOfItsFilesDoes) {
  CMTargetFile target("/plan/New");
  m_units = {&addPackage()};
  m_arguments = {&target};
  m_provider->during = [this](const std::string& entryPoint) {
    if (entryPoint != "SccRename") return;
    const bool isBoiler = calls().back().find("Boiler") != std::string::npos;
    m_provider->results["SccRename"] = isBoiler ? scc::SCC_E_FILEISCHECKEDOUT : scc::SCC_OK;
  };
  EXPECT_EQ(call(CMFacade::MoveMember), 0);
  EXPECT_THAT(calls("SccRename"),
              ElementsAre("SccRename /plan/Brewing/Brewing.vpk /plan/New/Brewing/Brewing.vpk",
                          "SccRename /plan/Brewing/Boiler.vcl /plan/New/Brewing/Boiler.vcl",
                          "SccRename /plan/New/Brewing/Brewing.vpk /plan/Brewing/Brewing.vpk"));
  EXPECT_TRUE(hasFile("/plan/Brewing/Brewing.vpk"));
  EXPECT_THAT(ends(), ElementsAre(UnitEnd::ToolFailed));
}

TEST_F(MemberOperationsSccTest, ThePackageContentOfATaskBasedProviderMovesFileByFile) {
  CMProperty::setSCCToolName("Corvane");
  MemoryPackage& package = addPackage();
  m_units.clear();
  EXPECT_EQ(CMFacade::movePackageContent(&package, m_units, "/plan/Brewing", "/plan/Roasting",
                                         m_arguments, m_diagnostics, false),
            1);
  EXPECT_THAT(calls("SccRename"),
              ElementsAre("SccRename /plan/Brewing/Brewing.vpk /plan/Roasting/Brewing.vpk",
                          "SccRename /plan/Brewing/Boiler.vcl /plan/Roasting/Boiler.vcl"));
}

TEST_F(MemberOperationsSccTest, TheArchiveIsListedWithVersionHolderAndStatus) {
  set(IPN::CMHeaderItsVersion, "Rev: (\\d+)", IPN::General);
  m_a.record.header = "Rev: 12";
  m_provider->listed = {"/plan/A.vcl", "/plan/B.vcl", "/plan/New.vcl", "/elsewhere/C.vcl"};
  m_provider->status = {{"/plan/A.vcl", 0x1003}, {"/plan/B.vcl", 5}, {"/plan/New.vcl", 0}};
  m_provider->holders["/plan/B.vcl"] = "bob";
  CMArchiveItemListWrapper items;
  EXPECT_EQ(CMFacade::ListArchive(items.list(), m_arguments, m_diagnostics), 1);
  EXPECT_THAT(calls("SccPopulateList"), ElementsAre("SccPopulateList 0 /plan 1"));
  ASSERT_EQ(items.list().size(), 2U);
  const CMArchiveItem& mine = **items.list().begin();
  EXPECT_EQ(mine.getVersion() + mine.getLocker(), "12ada");
  EXPECT_EQ(ListedMode::of(mine), ListedMode::ReadWrite);
  EXPECT_THAT(mine.getStatus(), HasSubstr("49762"));
  const CMArchiveItem& others = **std::next(items.list().begin());
  EXPECT_EQ(others.getLocker(), "bob");
  EXPECT_THAT(others.getStatus(), HasSubstr("49763"));

  // Where names have either separator, they have either case as well.
  m_host.memoryEnvironment.separator = '\\';
  m_provider->listed = {"/PLAN\\A.vcl", "\\plan/Sub\\..\\..\\B.vcl"};
  CMArchiveItemListWrapper again;
  EXPECT_EQ(CMFacade::ListArchive(again.list(), m_arguments, m_diagnostics), 1);
  EXPECT_EQ(again.list().size(), 1U);
}

TEST_F(MemberOperationsSccTest, FilesOfTheArchiveAreCheckedOutAndLoaded) {
  m_model.fullPathRepFiles = true;
  addPackage();
  addItem("/plan/Brewing/Brewing.vpk");
  addItem("/plan/Fresh.vcl");
  m_provider->listed = {"/plan/Brewing/Boiler.vcl", "/plan/Brewing/Grinder.vcl"};
  EXPECT_EQ(call(CMFacade::RecCheckOutFromArchive), 1);
  EXPECT_THAT(calls("SccCheckout"), ElementsAre("SccCheckout /plan/Brewing/Brewing.vpk '' 0",
                                                "SccCheckout /plan/Fresh.vcl '' 0",
                                                "SccCheckout /plan/Brewing/Boiler.vcl '' 0",
                                                "SccCheckout /plan/Brewing/Grinder.vcl '' 0"));
  EXPECT_THAT(m_host.journal.only({"reload", "add"}),
              ElementsAre("reload Brewing.vpk", "add /plan/Fresh.vcl at /plan", "reload Boiler.vcl",
                          "add /plan/Brewing/Grinder.vcl at /plan/Brewing"));
}

TEST_F(MemberOperationsSccTest, ARecursiveCheckOutTakesWhatLiesBelow) {
  MemoryPackage& package = addPackage();
  // What lies in a unit need not lie in its directory.
  package.record.packageDirectory.clear();
  package.record.aggregates = {&m_a};
  m_units = {&package};
  EXPECT_EQ(call(CMFacade::RecCheckOut), 0);
  EXPECT_THAT(calls("SccCheckout"), ElementsAre("SccCheckout /plan/Brewing/Brewing.vpk '' 0",
                                                "SccCheckout /plan/A.vcl '' 0"));
}

TEST_F(MemberOperationsSccTest, AComparisonLeavesTheWorkingFileUntouched) {
  CMTargetFile target("/tmp/side2/A.vcl");
  m_arguments = {&target};
  m_units = {&m_a};
  m_host.files.write("/plan/A.vcl", "with my changes", true);
  letGetWrite("/plan/A.vcl");
  EXPECT_EQ(call(CMFacade::FetchForDiff), 1);
  EXPECT_FALSE(m_seenDuringGet) << "nothing to merge with";
  EXPECT_EQ(contentOf("/tmp/side2/A.vcl"), "archived");
  EXPECT_EQ(contentOf("/plan/A.vcl"), "with my changes");
  EXPECT_TRUE(m_host.files.find("/plan/A.vcl")->writable);
  EXPECT_FALSE(hasFile("/plan/A.vcl_temp"));
  EXPECT_THAT(m_host.journal.only({"reload"}), IsEmpty());
}

TEST_F(MemberOperationsSccTest, AComparisonThatFailsGivesTheWorkingFileBack) {
  CMTargetFile target("/tmp/side2/A.vcl");
  m_arguments = {&target};
  m_units = {&m_a};
  m_provider->results["SccGet"] = scc::SCC_E_CONNECTIONFAILURE;
  EXPECT_EQ(call(CMFacade::FetchForDiff), 0);
  EXPECT_EQ(contentOf("/plan/A.vcl"), "content of A.vcl");
  m_provider->results.clear();
  m_provider->during = [](const std::string& entryPoint) {
    if (entryPoint == "SccGet") throw ProcessorFault("a crash");
  };
  EXPECT_EQ(call(CMFacade::FetchForDiff), 0);
  EXPECT_EQ(contentOf("/plan/A.vcl"), "content of A.vcl");
  EXPECT_FALSE(hasFile("/tmp/side2/A.vcl"));
}

TEST_F(MemberOperationsSccTest, WhatAKilledComparisonLeftAsideComesBack) {
  CMTargetFile target("/tmp/side2/A.vcl");
  m_arguments = {&target};
  m_units = {&m_a};
  m_host.files.move("/plan/A.vcl", "/plan/A.vcl_temp");
  letGetWrite("/plan/A.vcl");
  EXPECT_EQ(call(CMFacade::FetchForDiff), 1);
  EXPECT_EQ(contentOf("/tmp/side2/A.vcl"), "archived");
  EXPECT_EQ(contentOf("/plan/A.vcl"), "content of A.vcl");
  EXPECT_FALSE(hasFile("/plan/A.vcl_temp"));
}

TEST_F(MemberOperationsSccTest, AComparisonIsRefusedWhereItWouldLoseChanges) {
  CMTargetFile target("/tmp/side2/A.vcl");
  m_units = {&m_a};
  EXPECT_EQ(call(CMFacade::FetchForDiff), 0);
  EXPECT_THAT(m_diagnostics, SizeIs(1)) << "no target";
  m_arguments = {&target};
  // The provider would take what comes back for changes to the newer version.
  for (const auto& [status, message] : {std::pair(0x821, "60211"), std::pair(0x21, "60870")}) {
    forget();
    m_provider->status["/plan/A.vcl"] = status;
    EXPECT_EQ(call(CMFacade::FetchForDiff), 0);
    EXPECT_THAT(shown(), ElementsAre(HasSubstr(message)));
    EXPECT_THAT(calls("SccGet"), IsEmpty());
  }
  m_host.files.write("/plan/A.vcl_temp", "of another comparison");
  m_provider->status.clear();
  EXPECT_EQ(call(CMFacade::FetchForDiff), 0);
  EXPECT_THAT(calls("SccGet"), IsEmpty());
  EXPECT_EQ(contentOf("/plan/A.vcl_temp"), "of another comparison");
}

TEST_F(MemberOperationsSccTest, AComparisonUnderACommandLineToolUsesItsFetch) {
  set("UseSCCtool", "No", IPN::General);
  set(IPN::CMFetch, "get $Unit");
  CMTargetFile target("/tmp/side2/A.vcl");
  m_arguments = {&target};
  m_units = {&m_a};
  answer("get", {.effect = [this] { m_host.files.write("/plan/A.vcl", "archived"); }});
  EXPECT_EQ(call(CMFacade::FetchForDiff), 1);
  EXPECT_THAT(commands(), ElementsAre("get A.vcl"));
  EXPECT_EQ(contentOf("/tmp/side2/A.vcl"), "archived");
  EXPECT_EQ(contentOf("/plan/A.vcl"), "content of A.vcl");
}

TEST_F(MemberOperationsSccTest, ItemsAreFetchedToTheirPlaceOrToATarget) {
  m_model.fullPathRepFiles = true;
  addItem("/plan/A.vcl");
  EXPECT_EQ(call(CMFacade::FetchFromArchive), 1);
  EXPECT_THAT(m_host.journal.only({"reload"}), ElementsAre("reload A.vcl"));
  EXPECT_THAT(calls(), ElementsAre("SccGet /plan/A.vcl 0", "SccQueryInfo /plan/A.vcl"));
  forget();
  letGetWrite("/plan/A.vcl");
  m_host.files.makeDirectory("/tmp/side1");
  CMTargetFile target("/tmp/side1");
  m_arguments = {&target};
  EXPECT_EQ(call(CMFacade::FetchForDiffFromArc), 1);
  EXPECT_EQ(contentOf("/tmp/side1/A.vcl"), "archived");
  EXPECT_THAT(m_host.journal.only({"reload"}), IsEmpty());
  EXPECT_EQ(call(CMFacade::HistoryArcView), 1);
  EXPECT_THAT(calls("SccHistory"), ElementsAre("SccHistory /plan/A.vcl"));
}

TEST_F(MemberOperationsSccTest, WithoutASelectedProviderItsOwnEntryPointsSaySo) {
  set("UseSCCtool", "No", IPN::General);
  EXPECT_EQ(call(CMFacade::Properties) + call(CMFacade::HistoryArcView), 0);
  EXPECT_THAT(m_diagnostics, SizeIs(2));
  EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(MemberOperationsSccTest, AnActivityIsAskedForOncePerBatch) {
  CMProperty::setSCCToolName("ORBIS");
  m_host.memoryMessages.textAnswer = "bug-7";
  EXPECT_EQ(call(CMFacade::CheckOut), 0);
  EXPECT_THAT(m_host.memoryMessages.textQuestions, SizeIs(1));
  EXPECT_THAT(calls("SccSetTask"), ElementsAre("SccSetTask bug-7"));
  EXPECT_THAT(calls("SccCheckout"), SizeIs(2));
  call(CMFacade::CheckOut);
  EXPECT_THAT(m_host.memoryMessages.textQuestions, SizeIs(2));
  EXPECT_THAT(m_host.memoryMessages.lastProposals, ElementsAre("bug-7"));
  forget();
  m_host.memoryMessages.textAnswer.reset();
  call(CMFacade::CheckOut);
  EXPECT_THAT(calls("SccCheckout"), IsEmpty());
  EXPECT_THAT(ends(), ElementsAre(UnitEnd::Declined, UnitEnd::Declined));
  call(CMFacade::CheckOut);
  EXPECT_THAT(m_host.memoryMessages.lastProposals, ElementsAre("bug-7")) << "not forgotten by that";
}

TEST_F(MemberOperationsSccTest, ATaskIsChosenOrMadeWhereThereIsNone) {
  CMProperty::setSCCToolName("Corvane");
  m_provider->tasks = {"paint", "polish"};
  call(CMFacade::CheckOut);
  EXPECT_THAT(m_host.memoryMessages.textQuestions, SizeIs(1));
  EXPECT_THAT(calls("SccCheckout"), IsEmpty()) << "the user gave up";
  EXPECT_THAT(ends(), ElementsAre(UnitEnd::Declined, UnitEnd::Declined));
  forget();
  m_units = {&m_a, &m_b};
  m_host.memoryMessages.textAnswer = "sand";
  call(CMFacade::CheckOut);
  EXPECT_THAT(m_host.memoryMessages.lastProposals, ElementsAre("paint", "polish"));
  EXPECT_THAT(calls("SccCreateTask"), ElementsAre("SccCreateTask sand"));
  EXPECT_THAT(calls("SccSetTask"), ElementsAre("SccSetTask sand"));
  EXPECT_THAT(calls("SccCheckout"), SizeIs(2));
  forget();
  m_provider->defaultTask = "sand";
  call(CMFacade::CheckOut);
  EXPECT_THAT(m_host.memoryMessages.textQuestions, SizeIs(2)) << "there is one already";
}

TEST_F(MemberOperationsSccTest, TaskCommandsReachTheProviderOrSayThatItLacksThem) {
  m_provider->tasks = {"paint"};
  m_provider->defaultTask = "paint";
  std::vector<std::string> tasks;
  std::string task;
  EXPECT_EQ(CorvaneAdapter::ListTasks(tasks), 1);
  EXPECT_THAT(tasks, ElementsAre("paint"));
  EXPECT_EQ(CorvaneAdapter::GetDefaultTask(task), 1);
  EXPECT_EQ(task, "paint");
  EXPECT_EQ(CorvaneAdapter::CheckinTask("paint", "done"), 1);
  EXPECT_THAT(calls("SccCheckinTask"), ElementsAre("SccCheckinTask paint 'done'"));
  EXPECT_EQ(CorvaneAdapter::ShowTask("paint"), 0);
  EXPECT_THAT(shown(), ElementsAre("60203: Show Task SccShowTask"));
}

}  // namespace
}  // namespace veldra::test
