#include "tests/cm/tool/UnitOperationsTest.h"

#include "cm/core/CMArchive.h"
#include "cm/core/CMArguments.h"
#include "cm/core/CMFacade.h"
#include "cm/host/IPN.h"
#include "cm/tool/CMCheckIn.h"
#include "cm/tool/CMCheckOut.h"
#include "cm/tool/CMFetch.h"
#include "cm/tool/CMHistory.h"
#include "cm/tool/CMListWorkspace.h"
#include "cm/tool/CMLockItem.h"
#include "cm/tool/CMUnCheckout.h"
#include "cm/tool/CMUnLockItem.h"

namespace veldra::test {

std::vector<UnitOperationsTest::Row> UnitOperationsTest::rows() {
  using T = UnitOperationsTest;
  const std::string run = "run do /plan/Engine.vcl";
  const std::string file = "/plan/Engine.vcl";
  const Lines updates{"Updating CM Header for unit " + file, "Updating Mode for unit " + file};
  const std::string reload = "Performing ATM for the file " + file;
  return {
      {"check in",
       "CheckIn",
       &T::callOnUnits<CMCheckIn>,
       {"save", "handler-prepare 2 " + file, run, "handler-complete " + file, "header Engine.vcl",
        "mode Engine.vcl"},
       {"Executing the following command to check in the file: do " + file,
        "Check in command returned the following: answer", updates[0], updates[1]}},
      {"check out",
       "CheckOut",
       &T::callOnUnits<CMCheckOut>,
       {"before", "handler-prepare 1 " + file, "snapshot-1 " + file, run,
        "handler-complete " + file, "snapshot-2 " + file, "reload Engine.vcl", "after"},
       {"Executing the following command to check out the file: do " + file,
        "Check in command returned the following: answer", reload}},
      {"undo",
       "UnLock",
       &T::callOnUnits<CMUnCheckout>,
       {"before", run, "reload Engine.vcl", "header Engine.vcl", "mode Engine.vcl", "after"},
       {"Executing the following command to uncheck out the file: do " + file,
        "Uncheck out command returned the following: answer", reload}},
      {"lock",
       "Lock",
       &T::callOnUnits<CMLockItem>,
       {run, "header Engine.vcl", "mode Engine.vcl"},
       {"Executing the following command to lock the file: do " + file,
        "Lock command returned the following: answer", updates[0], updates[1]}},
      {"unlock",
       "UnLock",
       &T::callOnUnits<CMUnLockItem>,
       {run, "header Engine.vcl", "mode Engine.vcl"},
       {"Executing the following command to unlock the file: do " + file,
        "Unlock command returned the following: answer", updates[0], updates[1]}},
      {"fetch",
       "Fetch",
       &T::callOnUnits<CMFetch>,
       {"handler-prepare 4 " + file, run, "handler-complete " + file},
       {"Executing the following command to fetch the file: do " + file,
        "Fetch command returned the following: answer"}},
      {"history",
       "History",
       &T::callOnUnits<CMHistory>,
       {run},
       {"Executing the following command to show the history of the file: do " + file,
        "History command returned the following: answer"}},
  };
}

namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

TEST_F(UnitOperationsTest, StepsAndTracesOfEachOperation) {
  answer("do", {.output = "answer"});
  for (const Row& row : rows()) {
    SCOPED_TRACE(row.name);
    m_units = {&m_model.addUnit("Engine.vcl")};
    forgetEvents();
    EXPECT_EQ(callRow(row), 1);
    EXPECT_THAT(m_host.journal.lines(), ElementsAreArray(row.events));
    EXPECT_THAT(m_host.traceLog.texts(), ElementsAreArray(row.traces));
    EXPECT_THAT(m_units, SizeIs(1));
    EXPECT_THAT(m_arguments, IsEmpty());
    EXPECT_THAT(m_diagnostics, IsEmpty());
    for (const MemoryTrace::Line& line : m_host.traceLog.lines) {
      EXPECT_THAT(line.file, HasSubstr(".cpp"));
      EXPECT_GT(line.line, 0);
    }
    m_model.destroy(m_units[0]);
  }
}

TEST_F(UnitOperationsTest, AnEmptyListDoesNothing) {
  set(IPN::CMSaveOnCheckOut, "True");
  for (const Row& row : rows()) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(callRow(row), 0);
    EXPECT_THAT(m_host.journal.lines(), IsEmpty());
    EXPECT_THAT(m_diagnostics, IsEmpty());
  }
}

TEST_F(UnitOperationsTest, WithoutAToolThereIsOneDiagnostic) {
  set(IPN::CMTool, "None", IPN::General);
  m_units = {&m_model.addUnit("A.vcl"), &m_model.addUnit("B.vcl")};
  for (const Row& row : rows()) {
    SCOPED_TRACE(row.name);
    m_diagnostics.clear();
    EXPECT_EQ(callRow(row), 0);
    ASSERT_THAT(m_diagnostics, SizeIs(1));
    EXPECT_EQ(m_diagnostics[0].getMessage(), "46554");
    EXPECT_EQ(m_diagnostics[0].getStatus(), 0);
  }
  EXPECT_THAT(m_host.journal.lines(), IsEmpty());
}

TEST_F(UnitOperationsTest, AMissingTemplateRunsNothing) {
  for (const Row& row : rows()) {
    SCOPED_TRACE(row.name);
    unset(row.templateProperty);
    m_units = {&m_model.addUnit("A.vcl")};
    forgetEvents();
    EXPECT_EQ(callRow(row), 0);
    EXPECT_THAT(m_host.journal.only({"run", "header", "mode", "reload", "handler-complete"}),
                IsEmpty());
  }
}

TEST_F(UnitOperationsTest, TheResultIsThatOfTheLastUnit) {
  // A unit in a sub-directory has a template that cannot be expanded.
  for (const Row& row : rows()) {
    SCOPED_TRACE(row.name);
    set(row.templateProperty, "do $Unit($UnitDirectory?$nobody)");
    m_units = {&m_model.addUnit("sub/" + std::string(row.name) + "1.vcl"), nullptr,
               &m_model.addUnit(std::string(row.name) + "2.vcl")};
    forgetEvents();
    EXPECT_EQ(callRow(row), 1);
    EXPECT_THAT(commands(), SizeIs(1));
    m_units = {&m_model.addUnit(std::string(row.name) + "3.vcl"),
               &m_model.addUnit("sub/" + std::string(row.name) + "4.vcl")};
    EXPECT_EQ(callRow(row), 0);
  }
}

TEST_F(UnitOperationsTest, ACommandThatCannotRunHasNoAfterSteps) {
  m_project.unitDirectory = "/gone";
  MemoryUnit& unit = m_model.addUnit("A.vcl");
  m_host.memoryEnvironment.unenterableDirectory = "/gone";
  m_units = {&unit};
  for (const char* name : {"check in", "check out", "undo", "lock"}) {
    SCOPED_TRACE(name);
    EXPECT_EQ(call(name), 0);
    EXPECT_THAT(m_host.journal.only({"header", "mode", "reload", "handler-complete"}), IsEmpty());
  }
}

TEST_F(UnitOperationsTest, CallersArgumentsComeFirstAndAreGivenBack) {
  set(IPN::CMArchive, "/main");
  set(IPN::CMCheckIn, "$archive $Unit $log");
  CMLog log("why");
  CMArchive mine("/mine");
  m_arguments = {&log, &mine};
  m_units = {&m_model.addUnit("A.vcl"), &m_model.addUnit("B.vcl")};
  EXPECT_EQ(call("check in"), 1);
  EXPECT_THAT(m_arguments, ElementsAre(&log, &mine));
  EXPECT_THAT(commands(), ElementsAre("/mine A.vcl why", "/mine B.vcl why"));
  m_arguments = {&log};
  forgetEvents();
  call("check in");
  EXPECT_THAT(commands(), ElementsAre("/main A.vcl why", "/main B.vcl why"));
}

TEST_F(UnitOperationsTest, BareCommentsDoNotTakeThePlaceOfFiles) {
  set("EncloseCommentsInQuotes", "No", IPN::General);
  set(IPN::CMCheckIn, "ci -m$log $UnitPath");
  CMLog log("why");
  m_arguments = {&log};
  m_units = {&m_model.addUnit("A.vcl")};
  call("check in");
  EXPECT_THAT(commands(), ElementsAre("ci -mwhy /plan/A.vcl"));
}

TEST_F(UnitOperationsTest, TheUnitsArchiveBecomesTheMainOneUnlessTheUserChooses) {
  struct Case {
    const char* selection;
    bool changes;
  };
  set(IPN::CMArchive, "/main");
  MemoryUnit& unit = m_model.addUnit("A.vcl");
  unit.record.archive = "/own";
  for (const Case& c : std::vector<Case>{{"File", true}, {"Directory", true}, {"Ask", false}}) {
    for (const char* name : {"check in", "check out", "lock", "unlock", "undo", "fetch"}) {
      SCOPED_TRACE(std::string(c.selection) + " " + name);
      const bool chooses = std::string(name) != "undo" && std::string(name) != "fetch";
      m_host.reloads.canReload = true;
      m_host.reloads.quickReload = ReloadScript::Outcome::SameObject;
      set(IPN::CMArchive, "/main");
      set(IPN::CMArchiveSelection, c.selection);
      m_units = {&unit};
      call(name);
      EXPECT_EQ(get(IPN::CMArchive), c.changes && chooses ? "/own" : "/main");
    }
  }
}

TEST_F(UnitOperationsTest, WhoSavesTheModel) {
  struct Case {
    const char* name;
    const char* setting;
    bool saves;
  };
  for (const Case& c : std::vector<Case>{{"check in", "False", true},
                                         {"check out", "True", true},
                                         {"check out", "False", false},
                                         {"undo", "True", false},
                                         {"lock", "True", false},
                                         {"unlock", "True", false},
                                         {"fetch", "True", false}}) {
    SCOPED_TRACE(std::string(c.name) + c.setting);
    set(IPN::CMSaveOnCheckOut, c.setting);
    m_units = {&m_model.addUnit("A.vcl")};
    forgetEvents();
    call(c.name);
    EXPECT_THAT(m_host.journal.only({"save"}), SizeIs(c.saves ? 1 : 0));
  }
  CMFacade::saveCallbackFunc() = nullptr;
  EXPECT_EQ(call("check in"), 1);
}

TEST_F(UnitOperationsTest, FilesWhoseNamesNoCommandCanCarryAreRefusedBeforeAnyRuns) {
  for (const char* bad : {"a\"b.vcl", "a>b.vcl", "a\nb.vcl", "$log.vcl", "(a?b).vcl", "a\\b.vcl"}) {
    SCOPED_TRACE(bad);
    MemoryUnit& hostile = m_model.addUnit("B.vcl");
    hostile.setFileName(bad);
    m_units = {&m_model.addUnit("A.vcl"), &hostile, &m_model.addUnit("C d.vcl")};
    answer("A.vcl", {.effect = [this] { EXPECT_THAT(m_diagnostics, SizeIs(1)); }});
    for (const char* name : {"check in", "lock", "fetch"}) {
      forgetEvents();
      EXPECT_EQ(call(name), 1);
      EXPECT_THAT(commands(), ElementsAre("do /plan/A.vcl", "do /plan/C d.vcl"));
      ASSERT_THAT(m_diagnostics, SizeIs(1));
      EXPECT_THAT(m_diagnostics[0].getMessage(), HasSubstr(std::string("60006: /plan/") + bad));
      EXPECT_EQ(m_diagnostics[0].getStatus(), 0);
    }
    for (IUnit* unit : m_units) m_model.destroy(unit);
  }
}

TEST_F(UnitOperationsTest, ProgressTellsPositionAndEndOfEveryUnit) {
  m_units = {&m_model.addUnit("A.vcl"), &m_model.addUnit("B.vcl"), &m_model.addUnit("C>.vcl")};
  answer("B.vcl", {.errors = "locked by bob", .code = 1});
  call("check in");
  const auto& started = m_host.memoryProgress.started;
  const auto& ended = m_host.memoryProgress.ended;
  ASSERT_THAT(started, SizeIs(3));
  EXPECT_EQ(started[1].operation, "Check In");
  EXPECT_EQ(started[1].position, 2U);
  EXPECT_EQ(started[1].count, 3U);
  EXPECT_EQ(started[1].unit, "/plan/B.vcl");
  ASSERT_THAT(ended, SizeIs(3));
  EXPECT_EQ(ended[0].end, UnitEnd::Done);
  EXPECT_EQ(ended[1].end, UnitEnd::ToolFailed);
  EXPECT_EQ(ended[1].words, "locked by bob");
  EXPECT_EQ(ended[2].end, UnitEnd::Refused);
}

TEST_F(UnitOperationsTest, CancellingStopsBeforeTheNextUnit) {
  m_units = {&m_model.addUnit("A.vcl"), &m_model.addUnit("B.vcl")};
  m_host.memoryProgress.cancelAfter = 1;
  EXPECT_EQ(call("check in"), 1);
  EXPECT_THAT(commands(), SizeIs(1));
  EXPECT_THAT(m_units, SizeIs(2));
}

TEST_F(UnitOperationsTest, AFailedToolPutsTheModelFileBack) {
  answer("do", {.errors = "broken", .code = 2});
  m_units = {&m_model.addUnit("A.vcl")};
  for (const char* name : {"check in", "check out", "fetch"}) {
    forgetEvents();
    call(name);
    EXPECT_THAT(m_host.journal.only({"handler-complete"}), IsEmpty()) << name;
  }
}

TEST_F(UnitOperationsTest, AHostWithNothingOptionalDoesNotFall) {
  class BareHost : public MemoryHost {
   public:
    BareHost() { offersOptionalFacilities = false; }
    IProcesses* processes() override { return &scriptedProcesses; }
  } host;
  MemoryProject& project = host.memoryModel.openProject("/plan", "Plant.vdy");
  host.files.makeDirectory("/start");
  for (const Row& row : rows())
    project.attachProperty(IPN::CM, IPN::General,
                           std::make_unique<MemoryProperty>(row.templateProperty, "do $Unit"));
  project.attachProperty(IPN::CM, IPN::General, std::make_unique<MemoryProperty>("CMTool", "T"));
  installHost(&host);
  for (const Row& row : rows()) {
    SCOPED_TRACE(row.name);
    m_units = {&host.memoryModel.addUnit("A.vcl")};
    const bool reloads = std::string(row.name) == "check out" || std::string(row.name) == "undo";
    EXPECT_EQ(callRow(row), reloads ? 0 : 1) << "what cannot be reloaded is no success";
  }
  EXPECT_THAT(host.scriptedProcesses.runs, SizeIs(rows().size()));
  installHost(&m_host);
}

TEST_F(UnitOperationsTest, FetchOfAnOldProjectFileKeepsTheListOnItsUnit) {
  MemoryUnit& old = m_model.addUnit("Old.VDR");
  m_units = {&old};
  EXPECT_EQ(call("fetch"), 1);
  EXPECT_THAT(m_units, ElementsAre(&old));
}

TEST_F(UnitOperationsTest, ListWorkspaceTakesWhatHasAFileAndIsNotExcluded) {
  MemoryUnit& unit = m_model.addUnit("A.vcl");
  MemoryUnit& excluded = m_model.addUnit("X.vcl");
  excluded.record.excluded = true;
  MemoryPackage& package = m_model.addPackage("P.vpk");
  MemoryPackage& inner = m_model.addPackage("Inner.vpk");
  inner.record.flags = 0;
  MemoryEmbeddedFile& file = m_model.addEmbeddedFile("N.txt");
  file.record.saveUnit = &unit;
  MemoryEmbeddedFile& fileOfExcluded = m_model.addEmbeddedFile("M.txt");
  fileOfExcluded.record.saveUnit = &excluded;
  m_model.addWorkspace("Plant.vws");
  m_units = {&excluded};
  EXPECT_EQ(callOnUnits<CMListWorkspace>(), 1);
  EXPECT_THAT(m_units, ElementsAre(&m_project, &unit, &package, &file));
  EXPECT_THAT(m_host.traceLog.lines, IsEmpty());
}

}  // namespace
}  // namespace veldra::test
