#include "cm/core/CMTranscation.h"

#include <stdexcept>

#include "cm/host/IPN.h"
#include "tests/support/HostTest.h"

namespace veldra::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

class CMTranscationTest : public HostTest {
 protected:
  void setGeneral(const std::string& name, const std::string& value) {
    set(name, value, IPN::General);
  }
};

TEST_F(CMTranscationTest, SeparatorsAreWrittenWithTheirKeywordsReplaced) {
  struct Row {
    const char* separator;
    const char* written;
  };
  const std::vector<Row> rows{
      {"", ""},
      {"-- $Operation at $Time --\n", "-- Check In at 12:34:56 --\n"},
      {"$Date $User $User", "2001-02-03 ada ada"},
      {"no keyword, $time in small letters", "no keyword, $time in small letters"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.separator);
    m_host.manager.window.str("");
    setGeneral("CMOperationStartSeparator", row.separator);
    setGeneral("CMOperationEndSeparator", "");
    { CMTranscation transcation(nullptr, 1, TxnCheckIn, "Check In"); }
    EXPECT_EQ(window(), row.written);

    m_host.manager.window.str("");
    setGeneral("CMOperationStartSeparator", "");
    setGeneral("CMOperationEndSeparator", row.separator);
    { CMTranscation transcation(nullptr, 1, TxnCheckIn, "Check In"); }
    EXPECT_EQ(window(), row.written);
  }
}

TEST_F(CMTranscationTest, LaterKeywordsInAnEarlierValueAreReplacedToo) {
  m_host.memoryEnvironment.time = "$Date";
  m_host.memoryEnvironment.user = "$Time/$Operation";
  setGeneral("CMOperationStartSeparator", "$Time $User");
  CMTranscation transcation(nullptr, 1, TxnLock, "Lock");
  EXPECT_EQ(window(), "2001-02-03 $Time/Lock");
}

TEST_F(CMTranscationTest, WindowIsClearedBeforeTheSeparatorOnRequest) {
  m_host.manager.window << "old text";
  setGeneral("CMClearWindowBeforeOperation", "True");
  setGeneral("CMOperationStartSeparator", "new");
  CMTranscation transcation(nullptr, 1, TxnLock, "");
  EXPECT_EQ(window(), "new");
}

TEST_F(CMTranscationTest, EachHasSeparatorsInsideThoseOfTheOuterOne) {
  setGeneral("CMOperationStartSeparator", "<$Operation ");
  setGeneral("CMOperationEndSeparator", "$Operation>");
  {
    CMTranscation outer(nullptr, 1, TxnCheckIn, "out");
    EXPECT_FALSE(CMTranscation::isNestedTranscation());
    {
      CMTranscation inner(nullptr, 1, TxnFetch, "in");
      EXPECT_EQ(CMTranscation::getCurTranscation(), &inner);
      EXPECT_EQ(CMTranscation::getTranscationNesting(), 2);
      EXPECT_TRUE(CMTranscation::isNestedTranscation());
    }
    EXPECT_EQ(CMTranscation::getCurTranscation(), &outer);
  }
  EXPECT_EQ(window(), "<out <in in>out>");
  EXPECT_EQ(CMTranscation::getCurTranscation(), nullptr);
}

TEST_F(CMTranscationTest, MissingFacilitiesSilenceTheSeparators) {
  setGeneral("CMOperationStartSeparator", "text");
  m_host.manager.hasStream = false;
  { CMTranscation transcation(nullptr, 1, TxnLock, ""); }
  m_host.manager.hasStream = true;
  m_model.setActiveProject(nullptr);
  { CMTranscation transcation(nullptr, 1, TxnLock, ""); }
  m_host.offersOptionalFacilities = false;
  { CMTranscation transcation(nullptr, 1, TxnLock, ""); }
  installHost(nullptr);
  {
    CMTranscation transcation(nullptr, 1, TxnLock, "");
    EXPECT_FALSE(transcation.isValidTranscation());
  }
  EXPECT_EQ(window(), "");
}

TEST_F(CMTranscationTest, UndoIsOpenedForEveryTypeButFreeCommands) {
  {
    CMTranscation transcation(nullptr, 3, TxnRename, "");
    EXPECT_EQ(m_host.undo.open, 1);
  }
  { CMTranscation transcation(nullptr, 3, TxnFreeCommand, ""); }
  EXPECT_THAT(m_host.journal.lines(), ElementsAre("undo-begin 3", "operation-running 1", "undo-end",
                                                  "operation-running 1"));
}

TEST_F(CMTranscationTest, NeighboursAreTheTransactionItself) {
  CMTranscation outer(nullptr, 1, TxnLock, "");
  CMTranscation inner(nullptr, 1, TxnLock, "");
  EXPECT_EQ(inner.getPrevTranscation(), &inner);
  EXPECT_EQ(outer.getNextTranscation(), &outer);
  const CMTranscation& original = inner;
  installHost(&m_host);  // Forgets every live transaction.
  EXPECT_EQ(inner.getPrevTranscation(), nullptr);
  EXPECT_EQ(original.getTranscationType(), TxnLock);
}

TEST_F(CMTranscationTest, ValidityByProjectBackEndAndTool) {
  struct Row {
    const char* useProvider;
    const char* tool;
    bool valid;
  };
  for (const Row& row : std::vector<Row>{{"no", "Tool", true},
                                         {"no", "nOnE", false},
                                         {"no", "(missing)", true},
                                         {"yes", "None", true}}) {
    SCOPED_TRACE(std::string(row.useProvider) + row.tool);
    m_host.memoryMessages.asked.clear();
    setGeneral("UseSCCtool", row.useProvider);
    unset(IPN::CMTool, IPN::General);
    if (row.tool != std::string("(missing)")) setGeneral(IPN::CMTool, row.tool);
    CMTranscation transcation(nullptr, 1, TxnLock, "");
    m_host.memoryMessages.asked.clear();
    EXPECT_EQ(transcation.isValidTranscation(), row.valid);
    if (!row.valid) {
      EXPECT_THAT(m_host.memoryMessages.asked,
                  ElementsAre(MemoryMessages::Shown{"46554", MessageBox::IconError, ""}));
    }
  }
  m_model.setActiveProject(nullptr);
  CMTranscation transcation(nullptr, 1, TxnLock, "");
  EXPECT_FALSE(transcation.isValidTranscation());
}

/// Which units stay under which transaction type.
struct UnitRow {
  const char* name;
  bool stub;
  bool reference;
  bool separate;
  std::vector<int> staysFor;  ///< {-1}: for every type.
};

TEST_F(CMTranscationTest, UnitCheckByTypeAndKindOfUnit) {
  const std::vector<UnitRow> rows{
      {"plain", false, false, true, {-1}},
      {"without a file of its own", true, true, false, {-1}},
      {"stub", true, false, true, {1, 5, 15, 16}},
      {"reference", false, true, true, {15, 16}},
      // A stub is judged as a stub alone.
      {"stub and reference", true, true, true, {1, 5, 15, 16}},
  };
  MemoryUnit& unit = m_model.addUnit("U.vcl");
  for (const UnitRow& row : rows) {
    for (int type = TxnLock; type <= TxnFreeCommand; ++type) {
      SCOPED_TRACE(std::string(row.name) + " type " + std::to_string(type));
      unit.record.flags =
          (row.stub ? UnitFlag::Stub : 0) | (row.separate ? UnitFlag::SavedSeparately : 0);
      unit.record.referenced = row.reference;
      CMTranscation transcation(nullptr, 1, static_cast<CMTranscationType>(type), "");
      UnitList units{&unit};
      CMTranscation::checkUnitsForOperation(units);
      const bool stays =
          row.staysFor[0] == -1 || std::count(row.staysFor.begin(), row.staysFor.end(), type) > 0;
      EXPECT_THAT(units, SizeIs(stays ? 1 : 0));
    }
  }
}

TEST_F(CMTranscationTest, SettingsAllowStubAndReferenceUnits) {
  MemoryUnit& stub = m_model.addUnit("S.vcl");
  stub.record.flags |= UnitFlag::Stub;
  MemoryUnit& reference = m_model.addUnit("R.vcl");
  reference.record.referenced = true;
  MemoryUnit& both = m_model.addUnit("B.vcl");
  both.record.flags |= UnitFlag::Stub;
  both.record.referenced = true;
  CMTranscation transcation(nullptr, 1, TxnLock, "");
  setGeneral("AllowCMOperationsOnStubUnits", "True");
  UnitList units{&stub, &reference, &both};
  CMTranscation::checkUnitsForOperation(units);
  EXPECT_THAT(units, ElementsAre(&stub));
  setGeneral("AllowCMOperationsOnReferenceUnits", "True");
  units = {&stub, &reference, &both};
  CMTranscation::checkUnitsForOperation(units);
  EXPECT_THAT(units, ElementsAre(&stub, &reference, &both));
}

TEST_F(CMTranscationTest, EmbeddedFileIsAReferenceWhenItsSaveUnitIs) {
  MemoryUnit& owner = m_model.addUnit("Owner.vcl");
  MemoryEmbeddedFile& file = m_model.addEmbeddedFile("Notes.txt");
  file.record.flags = 0;
  file.record.saveUnit = &owner;
  CMTranscation transcation(nullptr, 1, TxnLock, "");
  UnitList units{&file};
  CMTranscation::checkUnitsForOperation(units);
  EXPECT_THAT(units, SizeIs(1));
  owner.record.referenced = true;
  CMTranscation::checkUnitsForOperation(units);
  EXPECT_THAT(units, IsEmpty());
}

TEST_F(CMTranscationTest, RemovedUnitsAreNamedAndTheWarningComesOncePerOutermostTransaction) {
  MemoryUnit& stub = m_model.addUnit("S.vcl");
  stub.record.flags |= UnitFlag::Stub;
  MemoryUnit& reference = m_model.addUnit("R.vcl");
  reference.record.referenced = true;
  for (int outermost = 1; outermost <= 2; ++outermost) {
    CMTranscation outer(nullptr, 1, TxnLock, "");
    UnitList units{&stub, &reference};
    CMTranscation::checkUnitsForOperation(units);
    {
      CMTranscation inner(nullptr, 1, TxnLock, "");
      units = {&stub};
      CMTranscation::checkUnitsForOperation(units);
    }
    units = {&stub};
    CMTranscation::checkUnitsForOperation(units);
    EXPECT_THAT(m_host.memoryMessages.asked, SizeIs(outermost));
  }
  EXPECT_EQ(m_host.memoryMessages.asked[0].flags, MessageBox::IconWarning);
  EXPECT_THAT(windowLines("60002: S Class"), SizeIs(6));
  EXPECT_THAT(windowLines("60003: R Class"), SizeIs(2));
}

TEST_F(CMTranscationTest, ControlledFileNoticeComesOnceForACheckOut) {
  MemoryEmbeddedFile& a = m_model.addEmbeddedFile("A.txt");
  MemoryEmbeddedFile& b = m_model.addEmbeddedFile("B.txt");
  UnitList units{&a, &b};
  {
    CMTranscation checkIn(nullptr, 1, TxnCheckIn, "");
    CMTranscation::checkUnitsForOperation(units);
    EXPECT_THAT(m_host.memoryMessages.oneTime, IsEmpty());
  }
  CMTranscation checkOut(nullptr, 1, TxnCheckOut, "");
  CMTranscation::checkUnitsForOperation(units);
  CMTranscation::checkUnitsForOperation(units);
  ASSERT_THAT(m_host.memoryMessages.oneTime, SizeIs(1));
  EXPECT_EQ(m_host.memoryMessages.oneTime[0].key, "CONTROLLED_FILE_CHECKOUT_MSG");
  EXPECT_EQ(m_host.memoryMessages.oneTime[0].flags, MessageBox::IconInformation);
  EXPECT_THAT(m_host.memoryMessages.oneTime[0].text, HasSubstr("A.txt"));
}

TEST_F(CMTranscationTest, UnitCheckOutsideATransactionChangesNothing) {
  MemoryUnit& stub = m_model.addUnit("S.vcl");
  stub.record.flags |= UnitFlag::Stub;
  UnitList units{&stub, nullptr};
  CMTranscation::checkUnitsForOperation(units);
  EXPECT_THAT(units, SizeIs(2));
}

TEST_F(CMTranscationTest, AHostThatThrowsLeavesNoTransactionBehind) {
  class BrokenUndoer : public MemoryUndoer {
   public:
    using MemoryUndoer::MemoryUndoer;
    void startTransaction(const IViewParameters*, int) override {
      throw std::runtime_error("undo is broken");
    }
  };
  class BrokenManager : public MemoryCMManager {
   public:
    using MemoryCMManager::MemoryCMManager;
    void setCMOperationRunning(int) override { throw std::runtime_error("no window"); }
  };
  class BrokenHost : public MemoryHost {
   public:
    Undoer* undoer() override { return hasUndo ? MemoryHost::undoer() : &brokenUndoer; }
    IAbstractCMManager* cmManager() override { return &brokenManager; }
    bool hasUndo = false;
    BrokenUndoer brokenUndoer{journal};
    BrokenManager brokenManager{journal};
  } host;
  installHost(&host);
  for (const bool hasUndo : {false, true}) {
    host.hasUndo = hasUndo;
    EXPECT_ANY_THROW(CMTranscation(nullptr, 1, TxnLock, ""));
    EXPECT_EQ(CMTranscation::getTranscationNesting(), 0);
  }
  EXPECT_THAT(host.journal.lines(), ElementsAre("undo-begin 1", "undo-end"));
  installHost(&m_host);
}

}  // namespace
}  // namespace veldra::test
