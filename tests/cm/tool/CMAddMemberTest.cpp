#include "cm/tool/CMAddMember.h"

#include "cm/core/CMFacade.h"
#include "cm/host/IPN.h"
#include "tests/support/ToolTest.h"

namespace veldra::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class CMAddMemberTest : public ToolTest {
 protected:
  CMAddMemberTest() { set(IPN::CMAddMember, "add $Unit"); }
  int add() { return callOnUnits<CMAddMember>(); }
};

TEST_F(CMAddMemberTest, OneCommandPerUnitAfterEverythingIsSaved) {
  m_units = {&m_model.addUnit("A.vcl"), nullptr, &m_model.addUnit("B.vcl")};
  EXPECT_EQ(add(), 1);
  EXPECT_THAT(m_host.journal.only({"modified", "save", "run", "header", "mode"}),
              ElementsAre("modified A.vcl with save unit", "modified B.vcl with save unit", "save",
                          "run add A.vcl", "header A.vcl", "mode A.vcl", "run add B.vcl",
                          "header B.vcl", "mode B.vcl"));
  EXPECT_THAT(m_arguments, IsEmpty());
}

TEST_F(CMAddMemberTest, WithoutASaveCallbackNothingIsMarked) {
  CMFacade::saveCallbackFunc() = nullptr;
  m_units = {&m_model.addUnit("A.vcl")};
  EXPECT_EQ(add(), 1);
  EXPECT_THAT(m_host.journal.only({"modified"}), IsEmpty());
}

TEST_F(CMAddMemberTest, ControlledFilesMayHaveATemplateOfTheirOwn) {
  MemoryEmbeddedFile& file = m_model.addEmbeddedFile("N.txt");
  MemoryUnit& unit = m_model.addUnit("A.vcl");
  m_units = {&file, &unit};
  add();
  set("AddMember_ControlledFile", "");
  add();
  set("AddMember_ControlledFile", "add -binary $Unit");
  add();
  EXPECT_THAT(commands(), ElementsAre("add N.txt", "add A.vcl", "add N.txt", "add A.vcl",
                                      "add -binary N.txt", "add A.vcl"));
}

TEST_F(CMAddMemberTest, OldProjectsAddOnlyWhatLiesInTheWorkingDirectory) {
  set("SupportTreeRepository", "Yes");
  m_project.record.directory = "/plan";
  MemoryUnit& outside = m_model.addUnit("sub/Out.vcl");
  MemoryUnit& inside = m_model.addUnit("In.vcl");
  m_units = {&inside, &outside};
  EXPECT_EQ(add(), 1) << "a skipped unit leaves the result of the one before";
  EXPECT_THAT(commands(), ElementsAre("add In.vcl"));
  ASSERT_THAT(m_host.memoryMessages.asked, SizeIs(1));
  EXPECT_THAT(m_host.memoryMessages.asked[0].text, HasSubstr("949: Out.vcl /plan "));
  EXPECT_EQ(m_host.memoryMessages.asked[0].flags, MessageBox::IconWarning);
  EXPECT_THAT(windowLines("949: Out.vcl"), SizeIs(1));
  EXPECT_THAT(m_diagnostics, IsEmpty());

  m_project.record.directory = "/elsewhere";
  m_host.files.makeDirectory("/elsewhere");
  m_units = {&m_project};
  forgetEvents();
  add();
  EXPECT_THAT(commands(), ElementsAre("add Plant.vdy")) << "the project itself is always added";
}

TEST_F(CMAddMemberTest, WithoutAToolThereIsOneDiagnostic) {
  set(IPN::CMTool, "None", IPN::General);
  set("CheckOutCheckInDirectoryOnceDuringAddToArchive", "True", "None");
  m_units = {&m_model.addUnit("A.vcl")};
  EXPECT_EQ(add(), 0);
  EXPECT_THAT(m_host.journal.lines(), IsEmpty());
  ASSERT_THAT(m_diagnostics, SizeIs(1));
  EXPECT_EQ(m_diagnostics[0].getMessage(), "46554");
}

class AddByDirectoryTest : public CMAddMemberTest {
 protected:
  AddByDirectoryTest() {
    set("CheckOutCheckInDirectoryOnceDuringAddToArchive", "True");
    set("CheckOut", "co $mode$LabelPart");
    set("CheckIn", "ci $LogPart $UnitPath $UnitPath $unitpath");
    set("AddMember_WithoutCheckOutCheckInDirectory", "mk $UnitPath");
  }
};

TEST_F(AddByDirectoryTest, EachDirectoryIsCheckedOutOnceAndBackIn) {
  MemoryUnit& moved = m_model.addUnit("b/Moved.vcl");
  moved.record.persistAsDirectory = "/plan/a";
  m_units = {&m_model.addUnit("a/A.vcl"), &moved};
  EXPECT_EQ(add(), 1);
  EXPECT_THAT(commands(), ElementsAre("co /plan/a", "mk /plan/a/A.vcl", "mk /plan/b/Moved.vcl",
                                      "ci -nc /plan/a /plan/a $unitpath"));
  EXPECT_THAT(m_host.traceLog.texts(),
              ElementsAre("Executing the following command to check out the directory: co /plan/a",
                          "Check out directory command returned the following: ",
                          "Executing the following command to add the filemk /plan/a/A.vcl",
                          "Add member command returned the following: ",
                          "Executing the following command to add the filemk /plan/b/Moved.vcl",
                          "Add member command returned the following: ",
                          "Executing the following command to check in the directory: "
                          "ci -nc /plan/a /plan/a $unitpath",
                          "Check in directory command returned the following: "));
}

TEST_F(AddByDirectoryTest, EveryDirectoryIsAGroup) {
  m_units = {&m_model.addUnit("a/A.vcl"), &m_model.addUnit("b/B.vcl"), &m_model.addUnit("a/C.vcl")};
  add();
  EXPECT_THAT(commands(), SizeIs(7));
}

TEST_F(AddByDirectoryTest, ACancelledBatchLeavesNoDirectoryCheckedOut) {
  m_units = {&m_model.addUnit("a/A.vcl"), &m_model.addUnit("a/C.vcl"), &m_model.addUnit("b/B.vcl")};
  m_host.memoryProgress.cancelAfter = 1;
  add();
  EXPECT_THAT(commands(),
              ElementsAre("co /plan/a", "mk /plan/a/A.vcl", "ci -nc /plan/a /plan/a $unitpath"));
}

TEST_F(AddByDirectoryTest, AFailedCheckOutKeepsTheFilesBackButTheDirectoryIsCheckedIn) {
  set("CheckOut", "");
  m_units = {&m_model.addUnit("a/A.vcl")};
  EXPECT_EQ(add(), 1);
  EXPECT_THAT(commands(), ElementsAre("ci -nc /plan/a /plan/a $unitpath"));
  set("CheckIn", "");
  EXPECT_EQ(add(), 0);
}

TEST_F(AddByDirectoryTest, WithoutAnInstallationRootNothingRuns) {
  m_host.memoryEnvironment.rootKnown = false;
  m_units = {&m_model.addUnit("a/A.vcl")};
  EXPECT_EQ(add(), 0);
  EXPECT_THAT(commands(), IsEmpty());
}

TEST_F(AddByDirectoryTest, TheSettingOfAnotherToolDoesNotCount) {
  set("CheckOutCheckInDirectoryOnceDuringAddToArchive", "False");
  set("CheckOutCheckInDirectoryOnceDuringAddToArchive", "True", IPN::General);
  m_units = {&m_model.addUnit("A.vcl")};
  add();
  EXPECT_THAT(commands(), ElementsAre("add A.vcl"));
}

}  // namespace
}  // namespace veldra::test
