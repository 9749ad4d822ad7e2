#include "cm/tool/UnitBatches.h"

#include "cm/host/IPN.h"
#include "cm/tool/CMAddMember.h"
#include "cm/tool/CMCheckIn.h"
#include "cm/tool/CMCheckOut.h"
#include "tests/support/ToolTest.h"

namespace veldra::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// A tool that can check in one file, or all files of a list.
class UnitBatchesTest : public ToolTest {
 protected:
  UnitBatchesTest() {
    set(IPN::CMCheckIn, "ci $Unit");
    set("CheckInBatch", "ci-all $unitList");
    m_units = {&m_model.addUnit("A.vcl"), &m_model.addUnit("B.vcl"), &m_model.addUnit("C.vcl")};
  }
  /// Answers the batch, and keeps the list that it got.
  void answerBatch(Reply reply) {
    reply.effect = [this] {
      const std::string command = commands().back();
      const auto* list = m_host.files.find(command.substr(command.rfind(' ') + 1));
      m_list = list != nullptr ? list->content : "(no list)";
    };
    answer("ci-all", std::move(reply));
  }
  /// What ran, the batch without the path of its list.
  Lines ran() const {
    Lines lines;
    for (const std::string& command : commands()) {
      lines.push_back(command.starts_with("ci-all") ? "ci-all" : command);
    }
    return lines;
  }
  Lines ends() const {
    Lines lines;
    for (const MemoryProgress::End& end : m_host.memoryProgress.ended) {
      lines.push_back(end.unit + (end.end == UnitEnd::Done ? " done" : " failed"));
    }
    return lines;
  }

  std::string m_list;
};

TEST_F(UnitBatchesTest, OneCommandDoesAllUnits) {
  answerBatch({.output = "Committed."});
  const std::size_t filesBefore = m_host.files.all().size();
  EXPECT_EQ(callOnUnits<CMCheckIn>(), 1);
  EXPECT_THAT(ran(), ElementsAre("ci-all"));
  EXPECT_EQ(m_list, "/plan/A.vcl\n/plan/B.vcl\n/plan/C.vcl\n");
  EXPECT_THAT(m_host.journal.only({"handler-complete", "header"}), SizeIs(6));
  EXPECT_THAT(ends(), ElementsAre("/plan/A.vcl done", "/plan/B.vcl done", "/plan/C.vcl done"));
  EXPECT_THAT(m_arguments, IsEmpty());
  EXPECT_EQ(m_host.files.all().size(), filesBefore) << "the list is taken away";
}

TEST_F(UnitBatchesTest, WhatAFailedBatchLeftIsDoneOneByOne) {
  struct Row {
    Reply reply;
    Lines commands;
  };
  set("OperationErrorPattern", "^oops");
  for (const Row& row : std::vector<Row>{
           {{.output = "done: /plan/B.vcl\nout of date\n", .code = 1}, {"ci A.vcl", "ci C.vcl"}},
           {{.output = "done: /plan/B.vc\n done: /plan/A.vcl\n", .code = 1},
            {"ci A.vcl", "ci B.vcl", "ci C.vcl"}},
           {{.output = "oops\n"}, {"ci A.vcl", "ci B.vcl", "ci C.vcl"}},
           {{.output = "done: /plan/A.vcl\n", .errors = "crash", .end = ProcessEnd::Crashed},
            {"ci B.vcl", "ci C.vcl"}},
           {{.output = "done: /plan/C.vcl\n", .timesOut = true}, {"ci A.vcl", "ci B.vcl"}},
           {{.output = "done: /plan/A.vcl\ndone: /plan/B.vcl\ndone: /plan/C.vcl", .code = 1}, {}},
       }) {
    SCOPED_TRACE(row.reply.output);
    forgetEvents();
    m_host.memoryProgress.ended.clear();
    answer("ci B.vcl", {.errors = "locked", .code = 1});
    answerBatch(row.reply);
    callOnUnits<CMCheckIn>();
    Lines expected{"ci-all"};
    expected.insert(expected.end(), row.commands.begin(), row.commands.end());
    EXPECT_EQ(ran(), expected);
    const bool failsAlone =
        std::find(expected.begin(), expected.end(), "ci B.vcl") != expected.end();
    EXPECT_THAT(ends(), ElementsAre("/plan/A.vcl done",
                                    failsAlone ? "/plan/B.vcl failed" : "/plan/B.vcl done",
                                    "/plan/C.vcl done"));
  }
}

TEST_F(UnitBatchesTest, ACheckInThatFoundNothingChangedIsRemarkedUponForItsUnitAlone) {
  // Error lines take the place of the output, but not of what it says about units.
  answerBatch({.output = "unchanged: /plan/B.vcl\ndone: /plan/A.vcl\ndone: /plan/B.vcl\n",
               .errors = "C is locked\n",
               .code = 1});
  answer("ci C.vcl", {.output = "unchanged: /plan/C.vcl\nunchanged: /plan/A.vcl\n",
                      .errors = "hint: nothing to commit\n"});
  callOnUnits<CMCheckIn>();
  Lines words;
  for (const MemoryProgress::End& end : m_host.memoryProgress.ended) words.push_back(end.words);
  EXPECT_THAT(words,
              ElementsAre("", HasSubstr("60250: /plan/B.vcl"), HasSubstr("60250: /plan/C.vcl")));
  EXPECT_THAT(ends(), ElementsAre("/plan/A.vcl done", "/plan/B.vcl done", "/plan/C.vcl done"));
}

TEST_F(UnitBatchesTest, SingleUnitsAndImpossibleBatchesTakeTheOrdinaryTemplate) {
  set("CheckInBatch", "ci-all $unitList $nobody");
  callOnUnits<CMCheckIn>();
  set("CheckInBatch", "ci-all $unitList");
  m_host.memoryEnvironment.diskFull = true;
  callOnUnits<CMCheckIn>();
  m_host.memoryEnvironment.diskFull = false;
  m_units = {m_units[0], nullptr, &m_model.addUnit("x\"y.vcl")};
  callOnUnits<CMCheckIn>();
  EXPECT_THAT(ran(), ElementsAre("ci A.vcl", "ci B.vcl", "ci C.vcl", "ci A.vcl", "ci B.vcl",
                                 "ci C.vcl", "ci A.vcl"));
  EXPECT_THAT(m_diagnostics, SizeIs(1));
}

TEST_F(UnitBatchesTest, EachTemplateAndEachArchiveHasABatchOfItsOwn) {
  set(IPN::CMArchiveSelection, "Directory");
  set(IPN::CMArchive, "/main");
  set(IPN::CMAddMember, "add $Unit");
  set("AddMemberBatch", "add-all $archive");
  set("AddMember_ControlledFile", "add-plain $Unit");
  m_model.addUnit("D.vcl");
  static_cast<MemoryUnit*>(m_units[1])->record.archive = "/own";
  MemoryUnit& other = m_model.addUnit("E.vcl");
  other.record.archive = "/own";
  m_units.insert(m_units.end(), {&m_model.addEmbeddedFile("N.txt"), &other});
  EXPECT_EQ(callOnUnits<CMAddMember>(), 1);
  EXPECT_THAT(commands(), ElementsAre("add-all /main", "add-all /own", "add-plain N.txt"));
}

TEST_F(UnitBatchesTest, AWritableFileIsAskedAboutOnceAndReloadsFollowTheBatch) {
  set(IPN::CMCheckOut, "co $Unit");
  set("CheckOutBatch", "ci-all $unitList");
  answerBatch({});
  m_host.files.find("/plan/A.vcl")->writable = true;
  EXPECT_EQ(callOnUnits<CMCheckOut>(), 1);
  EXPECT_THAT(m_host.memoryMessages.overwriteQuestions, SizeIs(1));
  EXPECT_EQ(m_list, "/plan/B.vcl\n/plan/C.vcl\n");
  EXPECT_THAT(m_host.journal.only({"run", "snapshot-1", "reload"}).front(),
              "snapshot-1 /plan/B.vcl");
  EXPECT_THAT(m_host.journal.only({"reload"}), ElementsAre("reload B.vcl", "reload C.vcl"));
}

}  // namespace
}  // namespace veldra::test
