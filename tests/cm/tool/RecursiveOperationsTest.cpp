#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"
#include "cm/tool/CMRecCheckIn.h"
#include "cm/tool/CMRecCheckOut.h"
#include "cm/tool/CMRecCheckOutFromArchive.h"
#include "cm/tool/CMRecUnCheckout.h"
#include "tests/support/ToolTest.h"

namespace veldra::test {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class RecursiveOperationsTest : public ToolTest {
 protected:
  RecursiveOperationsTest() {
    for (const char* name :
         {IPN::CMCheckIn, IPN::CMCheckOut, IPN::CMUnLockItem, IPN::CMCheckOutFromArchive}) {
      set(name, "do $Unit");
    }
    set(IPN::CMSaveOnCheckOut, "True");
    answer("do", {.output = "answer"});
  }
};

TEST_F(RecursiveOperationsTest, StepsAndTracesOfEachOperation) {
  const std::string file = "/plan/A.vcl";
  const auto traces = [](const std::string& verb, const std::string& answer) {
    return Lines{"Executing the following command to recursively " + verb + ": do A.vcl",
                 "Recursive " + answer + " command returned the following: answer"};
  };
  struct Row {
    int (RecursiveOperationsTest::*call)(bool);
    Lines events;
    Lines traces;
  };
  const Row rows[] = {
      {&RecursiveOperationsTest::callOnUnits<CMRecCheckIn>,
       {"save", "handler-prepare 2 " + file, "run do A.vcl", "handler-complete " + file,
        "header A.vcl", "mode A.vcl"},
       traces("check in the file(s)", "check in")},
      {&RecursiveOperationsTest::callOnUnits<CMRecCheckOut>,
       {"save", "handler-prepare 1 " + file, "run do A.vcl", "handler-complete " + file},
       traces("check out the file(s)", "check out")},
      {&RecursiveOperationsTest::callOnUnits<CMRecUnCheckout>,
       {"run do A.vcl"},
       traces("uncheck out the file(s)", "uncheck out")},
  };
  MemoryUnit& unit = m_model.addUnit("A.vcl");
  for (const Row& row : rows) {
    SCOPED_TRACE(row.traces[0]);
    m_units = {&unit};
    forgetEvents();
    EXPECT_EQ((this->*row.call)(false), 1);
    EXPECT_THAT(m_host.journal.lines(), ElementsAreArray(row.events));
    EXPECT_THAT(m_units, ElementsAre(&unit));
    Lines expected = row.traces;
    if (row.events.back() == "mode A.vcl") {
      expected.insert(expected.end(),
                      {"Updating CM Header for unit " + file, "Updating Mode for unit " + file});
    }
    EXPECT_THAT(m_host.traceLog.texts(), ElementsAreArray(expected));
  }
}

TEST_F(RecursiveOperationsTest, OfAnEmptyListOnlyTheUndoSucceedsEvenWithoutATool) {
  EXPECT_EQ(callOnUnits<CMRecCheckIn>(), 0);
  EXPECT_EQ(callOnUnits<CMRecCheckOut>(), 0);
  set(IPN::CMTool, "None", IPN::General);
  EXPECT_EQ(callOnUnits<CMRecUnCheckout>(), 1);
  EXPECT_THAT(m_diagnostics, IsEmpty());
  EXPECT_THAT(m_host.journal.lines(), IsEmpty());
  m_units = {&m_model.addUnit("A.vcl")};
  EXPECT_EQ(callOnUnits<CMRecUnCheckout>(), 0);
  EXPECT_THAT(m_diagnostics, SizeIs(1));
}

TEST_F(RecursiveOperationsTest, CheckOutOfWritableFilesAsks) {
  m_units = {&m_model.addUnit("A.vcl"), &m_model.addUnit("B.vcl")};
  m_host.files.find("/plan/A.vcl")->writable = true;
  callOnUnits<CMRecCheckOut>();
  EXPECT_THAT(m_host.memoryMessages.overwriteQuestions, ElementsAre("953: A.vcl /plan/A.vcl"));
  EXPECT_THAT(commands(), ElementsAre("do B.vcl"));
}

TEST_F(RecursiveOperationsTest, CheckOutFromArchiveSavesOnceUntilToldThatItIsDueAgain) {
  addItem("A.vcl");
  const auto saves = [this] {
    forgetEvents();
    EXPECT_EQ(callOnItems<CMRecCheckOutFromArchive>(), 1);
    return m_host.journal.only({"save"}).size();
  };
  EXPECT_EQ(CMProperty::saveOnCheckout(-1), 1);
  EXPECT_EQ(saves(), 1U);
  EXPECT_EQ(CMProperty::saveOnCheckout(-1), 0);
  EXPECT_EQ(saves(), 0U);
  CMProperty::saveOnCheckout(1);
  EXPECT_EQ(saves(), 1U);
  CMProperty::saveOnCheckout(7);
  set(IPN::CMSaveOnCheckOut, "False");
  EXPECT_EQ(saves(), 0U);
  EXPECT_NE(CMProperty::saveOnCheckout(-1), 0);
}

TEST_F(RecursiveOperationsTest, CheckOutFromArchiveAsksForLoadedFilesAndLoadsNone) {
  m_model.addUnit("A.vcl");
  m_host.files.find("/plan/A.vcl")->writable = true;
  m_host.files.write("/plan/New.vcl", "", true);
  addItem("A.vcl");
  addItem("New.vcl");
  EXPECT_EQ(callOnItems<CMRecCheckOutFromArchive>(), 1);
  EXPECT_THAT(m_host.memoryMessages.overwriteQuestions, SizeIs(1));
  EXPECT_THAT(m_host.journal.lines(),
              ElementsAre("save", "handler-prepare 1 /plan/New.vcl", "run do New.vcl",
                          "handler-complete /plan/New.vcl"));
  EXPECT_THAT(
      m_host.traceLog.texts(),
      ElementsAre("Executing the following command to recursively check out the file(s) from the "
                  "archive: do New.vcl",
                  "Recursive check out from the archive command returned the following: answer"));
}

}  // namespace
}  // namespace veldra::test
