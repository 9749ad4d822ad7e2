#include "cm/tool/QuickForm.h"

#include "cm/core/CMArguments.h"
#include "cm/host/IPN.h"
#include "cm/tool/CMCheckOut.h"
#include "tests/support/ToolTest.h"

namespace veldra::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// A tool that locks a file by one program, and finds out by another one why it could not.
class QuickFormTest : public ToolTest {
 protected:
  QuickFormTest() {
    set(IPN::CMCheckOut, "co $Unit");
    set("CheckOutQuick", "lock $Unit");
    set("OperationErrorPattern", "refused");
    m_units = {&m_model.addUnit("A.vcl")};
  }
};

TEST_F(QuickFormTest, WhatItDoesWellIsAllThatRuns) {
  answer("lock", {.output = "locked\n"});
  EXPECT_EQ(callOnUnits<CMCheckOut>(), 1);
  EXPECT_THAT(commands(), ElementsAre("lock A.vcl"));
  EXPECT_EQ(window(), "lock A.vcl\nlocked\n");
  EXPECT_EQ(m_host.memoryProgress.ended.front().end, UnitEnd::Done);
}

TEST_F(QuickFormTest, WhatItFailsAtIsLeftToTheOrdinaryTemplateWithoutAWord) {
  for (const Reply& failure : std::vector<Reply>{
           {.output = "too old", .code = 1},
           {.output = "too old", .errors = "refused"},
           {.output = "too old: refused"},
           {.output = "too old", .timesOut = true},
           {.errors = "too old", .end = ProcessEnd::CouldNotStart},
       }) {
    forgetEvents();
    m_host.manager.window.str("");
    answer("lock", failure);
    answer("co A.vcl", {.output = "brought and locked"});
    EXPECT_EQ(callOnUnits<CMCheckOut>(), 1);
    EXPECT_THAT(commands(), ElementsAre("lock A.vcl", "co A.vcl"));
    EXPECT_EQ(window(), "co A.vcl\nbrought and locked");
    EXPECT_THAT(m_host.memoryMessages.asked, IsEmpty());
    EXPECT_EQ(m_host.memoryProgress.ended.back().end, UnitEnd::Done);
  }
}

TEST_F(QuickFormTest, TheOrdinaryTemplatesFailureIsTheUnits) {
  answer("lock", {.errors = "first words", .code = 1});
  answer("co A.vcl", {.errors = "held by bob", .code = 1});
  callOnUnits<CMCheckOut>();
  const MemoryProgress::End& end = m_host.memoryProgress.ended.front();
  EXPECT_EQ(end.end, UnitEnd::ToolFailed);
  EXPECT_THAT(end.words, HasSubstr("held by bob"));
  EXPECT_THAT(end.words, Not(HasSubstr("first words")));
}

TEST_F(QuickFormTest, CasesThatItIsNotForAreThoseWhereItExpandsToNothing) {
  CMLabel label("1.3");
  m_arguments = {&label};
  set(IPN::CMCheckOut, "co $label $Unit");
  for (const char* form : {"($label ? : lock $Unit)", "lock $nobody"}) {
    forgetEvents();
    set("CheckOutQuick", form);
    EXPECT_EQ(callOnUnits<CMCheckOut>(), 1);
    EXPECT_THAT(commands(), ElementsAre("co 1.3 A.vcl"));
  }
}

}  // namespace
}  // namespace veldra::test
