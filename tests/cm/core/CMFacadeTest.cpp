#include "tests/cm/core/CMFacadeTest.h"

#include <stdexcept>

#include "cm/core/CMTranscation.h"
#include "cm/core/ModuleState.h"
#include "cm/templates/CMProperty.h"

namespace veldra::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

TEST_F(CMFacadeTest, EveryEntryPointReachesItsBackEndOnBothRoutes) {
  for (const EntryRow& row : allRows()) {
    SCOPED_TRACE(row.name);
    Caller caller = callerWithUnit();
    set("UseSCCtool", "no", "General");
    EXPECT_EQ(row.call(caller), *row.underTool != '\0' ? RecordedBackEnds::Result : 0);
    EXPECT_EQ(calls(), oneOrNone(row.underTool));

    useProvider("Other");
    EXPECT_EQ(row.call(caller), *row.underProvider != '\0' ? RecordedBackEnds::Result : 0);
    EXPECT_EQ(calls(), oneOrNone(row.underProvider));
    EXPECT_THAT(caller.diagnostics, IsEmpty());
  }
}

/// Notes the kind of the transaction that a call runs in.
class TypeWatcher : public BackEnd {
 public:
  int checkIn(const UnitCall&) override {
    type = CMTranscation::getCurTranscation()->getTranscationType();
    name = CMTranscation::getCurTranscation()->getOperationName();
    return 1;
  }
  int type = -1;
  std::string name = "unset";
};

TEST_F(CMFacadeTest, TransactionIsOpenWhileTheBackEndRunsAndHasNoName) {
  TypeWatcher watcher;
  backEnds().tool = &watcher;
  Caller caller = callerWithUnit();
  EXPECT_EQ(CMFacade::CheckIn(caller.units, caller.arguments, caller.diagnostics), 1);
  EXPECT_EQ(watcher.type, TxnCheckIn);
  EXPECT_EQ(watcher.name, "");
  EXPECT_EQ(CMTranscation::getCurTranscation(), nullptr);
}

TEST_F(CMFacadeTest, EveryEntryPointOpensOneUndoTransaction) {
  for (const EntryRow& row : allRows()) {
    SCOPED_TRACE(row.name);
    Caller caller = callerWithUnit();
    m_host.journal.clear();
    row.call(caller);
    EXPECT_THAT(m_host.journal.only({"undo-begin", "undo-end"}),
                ElementsAre("undo-begin 1", "undo-end"));
  }
}

TEST_F(CMFacadeTest, TransactionTypesDecideWhetherAStubUnitTakesPart) {
  // Fetch, check out, connect and free commands work on stubs; the type decides, so it shows here.
  for (const EntryRow& row : unitRows()) {
    SCOPED_TRACE(row.name);
    MemoryUnit& stub = m_model.addUnit("Stub.vcl");
    stub.record.flags |= UnitFlag::Stub;
    Caller caller;
    caller.units = {&stub};
    const bool typeTakesStubs = row.type == 1 || row.type == 5 || row.type == 15;
    const bool stays = !row.checksUnits || typeTakesStubs;
    const int result = row.call(caller);
    EXPECT_THAT(caller.units, SizeIs(stays ? 1 : 0));
    EXPECT_EQ(result, stays || !row.needsUnits ? RecordedBackEnds::Result : 0);
  }
}

TEST_F(CMFacadeTest, NothingRunsWhenTheTransactionIsNotValid) {
  set("CMTool", "None", "General");
  for (const EntryRow& row : allRows()) {
    SCOPED_TRACE(row.name);
    Caller caller = callerWithUnit();
    EXPECT_EQ(row.call(caller), 0);
    EXPECT_THAT(calls(), IsEmpty());
    EXPECT_THAT(caller.diagnostics, IsEmpty());
  }
  m_model.setActiveProject(nullptr);
  Caller caller;
  EXPECT_EQ(CMFacade::Fetch(caller.units, caller.arguments, caller.diagnostics), 0);
  EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(CMFacadeTest, ListWorkspaceNeedsNoTransactionAndStaysWithTheTool) {
  useProvider();
  m_model.setActiveProject(nullptr);
  Caller caller;
  EXPECT_EQ(CMFacade::ListWorkspace(caller.units, caller.arguments, caller.diagnostics),
            RecordedBackEnds::Result);
  EXPECT_THAT(calls(), ElementsAre("tool.listWorkspace"));
  EXPECT_THAT(m_host.journal.lines(), IsEmpty());
}

TEST_F(CMFacadeTest, CheckOutWithoutUnitsReleasesTheModificationGuard) {
  Caller caller;
  EXPECT_EQ(CMFacade::CheckOut(caller.units, caller.arguments, caller.diagnostics), 0);
  EXPECT_THAT(calls(), IsEmpty());
  EXPECT_THAT(m_host.journal.only({"cg"}), ElementsAre("cg ignored", "cg tracked"));
}

TEST_F(CMFacadeTest, SavedUnitsAreAppliedAfterFetchAndUncheckoutOnly) {
  for (const EntryRow& row : allRows()) {
    SCOPED_TRACE(row.name);
    const bool applies = std::string(row.name) == "Fetch" || std::string(row.name) == "Uncheckout";
    Caller caller = callerWithUnit();
    m_host.journal.clear();
    row.call(caller);
    EXPECT_THAT(m_host.journal.only({"apply-saved-units"}), SizeIs(applies ? 1 : 0));
  }
}

class FlagWatcher : public BackEnd {
 public:
  explicit FlagWatcher(MemoryModel& model) : m_model(model) {}
  int uncheckout(const UnitCall&) override { return look(); }
  int uncheckoutItems(const ItemCall&) override { return look(); }
  HostFlags seen;

 private:
  int look() {
    seen = m_model.flags();
    m_model.flags() = {true, false};
    throw std::runtime_error("on the way out");
  }
  MemoryModel& m_model;
};

TEST_F(CMFacadeTest, UncheckoutSetsTheHostFlagsAndRestoresThemOnEveryWayOut) {
  FlagWatcher watcher(m_model);
  backEnds().tool = &watcher;
  for (const bool valid : {true, false}) {
    for (const bool items : {true, false}) {
      SCOPED_TRACE(std::to_string(valid) + std::to_string(items));
      set("CMTool", valid ? Tool : "NONE", "General");
      m_model.flags() = {true, false};
      watcher.seen = {};
      Caller caller = callerWithUnit();
      EXPECT_EQ(
          items ? onItems(CMFacade::Uncheckout)(caller) : onUnits(CMFacade::Uncheckout)(caller), 0);
      EXPECT_EQ(watcher.seen.isOk2All, false);
      EXPECT_EQ(watcher.seen.reloadForDupId, valid);
      EXPECT_EQ(m_model.flags().isOk2All, true);
      EXPECT_EQ(m_model.flags().reloadForDupId, false);
    }
  }
}

TEST_F(CMFacadeTest, NoExceptionLeavesAnEntryPoint) {
  class Throwing : public RecordingBackEnd {
   public:
    using RecordingBackEnd::RecordingBackEnd;
    int checkIn(const UnitCall&) override { throw std::runtime_error("broken host"); }
    int fetch(const UnitCall&) override { throw 42; }
    int listWorkspace(const UnitCall&) override { throw 42; }
    int setUp() override { throw std::runtime_error("broken provider"); }
    int runTool() override { throw std::runtime_error("broken provider"); }
  } throwing("tool", m_backEnds.calls, 1);
  backEnds() = {&throwing, &throwing};
  Caller caller = callerWithUnit();
  EXPECT_EQ(onUnits(CMFacade::CheckIn)(caller), 0);
  ASSERT_THAT(m_host.memoryMessages.asked, SizeIs(1));
  EXPECT_THAT(m_host.memoryMessages.asked[0].text, HasSubstr("broken host"));
  EXPECT_EQ(onUnits(CMFacade::Fetch)(caller), 0);
  EXPECT_EQ(onUnits(CMFacade::ListWorkspace)(caller), 0);
  useProvider();
  EXPECT_EQ(CMFacade::doSetUpSCC(), 0);
  EXPECT_EQ(CMFacade::RunToolExe(), 0);
  EXPECT_EQ(m_host.undo.open, 0);
  EXPECT_EQ(CMTranscation::getTranscationNesting(), 0);
}

TEST_F(CMFacadeTest, NoExceptionOfTheHostsModelLeavesAnEntryPoint) {
  class Broken : public MemoryHost {
   public:
    IModel& model() override { throw std::runtime_error("broken model"); }
  } broken;
  Caller caller = callerWithUnit();
  installHost(&broken);
  for (const EntryRow& row : allRows()) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(row.call(caller), 0);
  }
  EXPECT_THAT(broken.memoryMessages.asked, SizeIs(allRows().size()));
  EXPECT_EQ(broken.undo.open, 0);
  EXPECT_EQ(CMTranscation::getTranscationNesting(), 0);
  installHost(&m_host);
}

TEST_F(CMFacadeTest, ProviderIsSetUpOnlyWhenSelectedAndCleanedUpOnlyWhenLoaded) {
  EXPECT_EQ(CMFacade::doSetUpSCC(), 1);
  EXPECT_EQ(CMFacade::doCleanUpSCC(), 1);
  EXPECT_EQ(CMFacade::doCloseProjectSCC(), 1);
  EXPECT_THAT(calls(), IsEmpty());

  useProvider();
  moduleState().providerLoaded = true;
  EXPECT_EQ(CMFacade::doSetUpSCC(), RecordedBackEnds::Result);
  EXPECT_EQ(CMFacade::doCleanUpSCC(), 1);
  EXPECT_EQ(CMFacade::doCloseProjectSCC(), 1);
  EXPECT_EQ(CMFacade::RunToolExe(), RecordedBackEnds::Result);
  EXPECT_THAT(calls(), ElementsAre("provider.setUp", "provider.cleanUp", "provider.cleanUp",
                                   "provider.runTool"));
}

TEST_F(CMFacadeTest, ConnectDialogOpensNoUndoAndTestsNothing) {
  m_model.setActiveProject(nullptr);
  EXPECT_EQ(CMFacade::doConnectToArcDlg(), 1);
  EXPECT_EQ(m_host.memoryMessages.connectDialogs, 1);
  EXPECT_THAT(m_host.journal.only({"undo-begin"}), IsEmpty());
}

TEST_F(CMFacadeTest, DuplicatesGoByIdentityAndTheFirstStays) {
  MemoryUnit& p = m_model.addUnit("P.vcl");
  MemoryUnit& q = m_model.addUnit("Q.vcl");
  MemoryUnit& otherP = m_model.addUnit("P.vcl");
  UnitList units{&p, &q, &p, &otherP, &q, &p};
  CMFacade::removeDuplicatesFromItemList(units);
  EXPECT_THAT(units, ElementsAre(&p, &q, &otherP));
}

TEST_F(CMFacadeTest, SlotsStartEmptyForEveryHost) {
  CMFacade::saveCallbackFunc() = [] {};
  installHost(&m_host);
  EXPECT_FALSE(CMFacade::saveCallbackFunc());
  EXPECT_FALSE(CMFacade::ATMCallbackFunc());
  EXPECT_FALSE(CMFacade::afterATMCallbackFunc());
  EXPECT_EQ(CMFacade::ATMCallbackFuncParameter(), nullptr);
  EXPECT_EQ(CMFacade::afterATMCallbackFuncParameter(), nullptr);
}

TEST_F(CMFacadeTest, OperationsThatABackEndLacksSaySo) {
  BackEnd lacksEverything;
  backEnds() = {&lacksEverything, &lacksEverything};
  for (const EntryRow& row : allRows()) {
    SCOPED_TRACE(row.name);
    if (*row.underTool == '\0') continue;
    Caller caller = callerWithUnit();
    EXPECT_EQ(row.call(caller), 0);
    ASSERT_THAT(caller.diagnostics, SizeIs(1));
    EXPECT_EQ(caller.diagnostics[0].getStatus(), CMDiagnostic::Failed);
    EXPECT_THAT(caller.diagnostics[0].getMessage(), HasSubstr("60001"));
  }
  EXPECT_EQ(CMFacade::RunToolExe(), 0);
  ASSERT_THAT(m_host.memoryMessages.asked, SizeIs(1));
  EXPECT_THAT(m_host.memoryMessages.asked[0].text, HasSubstr("60001"));
}

}  // namespace
}  // namespace veldra::test
