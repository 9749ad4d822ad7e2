#include "cm/core/CMAskOnCheckoutGuard.h"
#include "cm/host/IPN.h"
#include "cm/tool/CMUnCheckout.h"
#include "tests/cm/tool/UnitOperationsTest.h"

// Check-out and undo check-out: the question before, the reload after, and what becomes of the
// list.

namespace veldra::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::UnorderedElementsAre;
using Outcome = ReloadScript::Outcome;

class ReloadingTest : public UnitOperationsTest {};

TEST_F(ReloadingTest, CheckOutAsksBeforeOverwritingAWritableFile) {
  struct Case {
    const char* setting;
    bool writable;
    const char* says;
    bool asks;
    bool runs;
  };
  for (const Case& c : std::vector<Case>{{"Yes", true, "yes", true, true},
                                         {"", true, "no", true, false},
                                         {"(missing)", true, "cancel", true, false},
                                         {"nO", true, "no", false, true},
                                         {"Yes", false, "no", false, true}}) {
    SCOPED_TRACE(std::string(c.setting) + c.says);
    unset("AskOnCheckoutReadWrite");
    if (c.setting != std::string("(missing)")) set("AskOnCheckoutReadWrite", c.setting);
    MemoryUnit& unit = m_model.addUnit("A.vcl");
    m_host.files.find("/plan/A.vcl")->writable = c.writable;
    m_host.memoryMessages.overwriteQuestions.clear();
    m_host.memoryMessages.overwriteAnswers = {c.says};
    m_units = {&unit};
    forgetEvents();
    EXPECT_EQ(call("check out"), c.runs ? 1 : 0);
    EXPECT_THAT(commands(), SizeIs(c.runs ? 1 : 0));
    EXPECT_EQ(m_host.memoryMessages.overwriteQuestions,
              c.asks ? Lines{"953: A.vcl /plan/A.vcl"} : Lines{});
    EXPECT_THAT(m_units, SizeIs(1)) << "a declined unit stays in the list";
    m_model.destroy(m_units[0]);
  }
}

TEST_F(ReloadingTest, ADeclinedUnitLeavesTheStatusOfTheOneBefore) {
  CMAskOnCheckoutGuard guard;
  m_units = {&m_model.addUnit("A.vcl"), &m_model.addUnit("B.vcl"), &m_model.addUnit("C.vcl")};
  for (const char* file : {"/plan/B.vcl", "/plan/C.vcl"}) m_host.files.find(file)->writable = true;
  m_host.memoryMessages.overwriteAnswers = {"notoall"};
  EXPECT_EQ(call("check out"), 1);
  EXPECT_THAT(commands(), ElementsAre("do /plan/A.vcl"));
  EXPECT_THAT(m_host.memoryMessages.overwriteQuestions, SizeIs(1));
}

TEST_F(ReloadingTest, RepeatedUnitsRunOnceWhereUnitsAreTracked) {
  for (const auto& [name, times] : std::vector<std::pair<const char*, std::size_t>>{
           {"check out", 1}, {"undo", 1}, {"fetch", 2}}) {
    SCOPED_TRACE(name);
    MemoryUnit& unit = m_model.addUnit("A.vcl");
    m_units = {&unit, &unit};
    forgetEvents();
    call(name);
    EXPECT_THAT(commands(), SizeIs(times));
    m_model.destroy(m_model.unitByFile("A.vcl"));
  }
}

TEST_F(ReloadingTest, AUnitThatAReloadDestroyedIsSkipped) {
  for (const char* name : {"check out", "undo"}) {
    SCOPED_TRACE(name);
    MemoryUnit& first = m_model.addUnit("A.vcl");
    IUnit* const second = &m_model.addUnit("B.vcl");
    IUnit* const third = &m_model.addUnit("C.vcl");
    m_host.reloads.quickReload = Outcome::SameObject;
    answer("A.vcl", {.effect = [&] {
             if (m_model.unitByFile("B.vcl") != nullptr) m_model.destroy(second);
           }});
    m_units = {&first, second, third};
    forgetEvents();
    EXPECT_EQ(call(name), 1);
    EXPECT_THAT(commands(), ElementsAre("do /plan/A.vcl", "do /plan/C.vcl"));
    EXPECT_THAT(m_units, UnorderedElementsAre(&first, third));
    m_model.destroy(&first);
    m_model.destroy(third);
  }
}

TEST_F(ReloadingTest, ReloadedUnitsTakeThePlaceOfTheOldOnes) {
  for (const char* name : {"check out", "undo"}) {
    SCOPED_TRACE(name);
    m_units = {&m_model.addUnit("A.vcl"), &m_model.addUnit("B.vcl")};
    EXPECT_EQ(call(name), 1);
    EXPECT_THAT(m_units,
                UnorderedElementsAre(m_model.unitByFile("A.vcl"), m_model.unitByFile("B.vcl")));
    for (IUnit* unit : m_units) m_model.destroy(unit);
  }
}

TEST_F(ReloadingTest, WaysOfReloadingAfterACheckOut) {
  struct Case {
    const char* name;
    int compare;
    bool canReload;
    Lines events;
  };
  m_model.addWorkspace("Plant.vws");
  for (const Case& c : std::vector<Case>{
           {"same object", 1, true, {"refresh A.vcl"}},
           {"same object wins over reload", 1, false, {"refresh A.vcl"}},
           {"in place", 0, true, {"reload A.vcl"}},
           {"added again", 0, false, {"add /plan/A.vcl at A.vcl", "saved-list A.vcl"}}}) {
    SCOPED_TRACE(c.name);
    m_host.reloads.compareAnswer = c.compare;
    m_host.reloads.canReload = c.canReload;
    m_units = {&m_model.addUnit("A.vcl")};
    forgetEvents();
    EXPECT_EQ(call("check out"), 1);
    EXPECT_EQ(m_host.journal.only({"refresh", "reload", "add", "saved-list"}), c.events);
    ASSERT_THAT(m_units, SizeIs(1));
    m_model.destroy(m_units[0]);
  }
}

TEST_F(ReloadingTest, AUnitThatCannotBeReloadedIsReported) {
  set("ReportLoadingError", "Message Box");
  struct Case {
    const char* name;
    int compare;
    bool canReload;
  };
  for (const Case& c : std::vector<Case>{{"check out", 1, true},
                                         {"check out", 0, true},
                                         {"check out", 0, false},
                                         {"undo", 0, true},
                                         {"undo", 0, false}}) {
    SCOPED_TRACE(c.name);
    m_host.reloads = {.canReload = c.canReload,
                      .quickReload = Outcome::Lose,
                      .addToModel = Outcome::Lose,
                      .fileCompare = Outcome::Lose,
                      .compareAnswer = c.compare};
    m_host.memoryMessages.asked.clear();
    MemoryUnit& unit = m_model.addUnit("A.vcl");
    m_units = {&unit};
    forgetEvents();
    EXPECT_EQ(call(c.name), 0);
    ASSERT_THAT(m_host.memoryMessages.asked, SizeIs(1));
    EXPECT_EQ(m_host.memoryMessages.asked[0].text, "47640: /plan/A.vcl");
    EXPECT_THAT(m_host.journal.only({"header", "mode"}), IsEmpty());
    m_model.destroy(&unit);
  }
}

TEST_F(ReloadingTest, ControlledFilesAreNotReloaded) {
  for (const char* name : {"check out", "undo"}) {
    SCOPED_TRACE(name);
    MemoryEmbeddedFile& file = m_model.addEmbeddedFile("Notes.txt");
    m_units = {&file};
    forgetEvents();
    EXPECT_EQ(call(name), 1);
    EXPECT_THAT(commands(), SizeIs(1));
    EXPECT_THAT(m_host.journal.only(
                    {"snapshot-1", "snapshot-2", "reload", "add", "refresh", "header", "mode"}),
                IsEmpty());
    EXPECT_THAT(m_units, ElementsAre(&file));
    m_model.destroy(&file);
  }
}

TEST_F(ReloadingTest, UndoLetsTheFileFollowTheNameThatCameBack) {
  struct Case {
    const char* name;
    const char* before;
    const char* now;
    const char* computed;
    bool ownerForbids, approves;
    const char* expected;
  };
  CMUnCheckout operation;
  for (const Case& c : std::vector<Case>{
           {"follows", "A.vcl", "A.vcl", "New.vcl", false, true, "New.vcl"},
           {"was renamed before", "Old.vcl", "A.vcl", "New.vcl", false, true, "A.vcl"},
           {"no record", "", "A.vcl", "New.vcl", false, true, "A.vcl"},
           {"same name", "A.vcl", "A.vcl", "A.vcl", false, true, "A.vcl"},
           {"owner objects", "A.vcl", "A.vcl", "New.vcl", true, true, "A.vcl"},
           {"host objects", "A.vcl", "A.vcl", "New.vcl", false, false, "A.vcl"}}) {
    SCOPED_TRACE(c.name);
    MemoryUnit& unit = m_model.addUnit("A.vcl");
    unit.record.computedFileName = c.computed;
    unit.record.ownerForbidsRename = c.ownerForbids;
    unit.record.approvesRename = c.approves;
    operation.renameFileIfNeeded(&unit, c.before, c.now);
    EXPECT_EQ(unit.getFileName(), c.expected);
    m_model.destroy(&unit);
  }
  operation.renameFileIfNeeded(nullptr, "A.vcl", "A.vcl");

  MemoryUnit& unit = m_model.addUnit("A.vcl");
  unit.record.recordedFileName = "A.vcl";
  unit.record.computedFileName = "Back.vcl";
  m_units = {&unit};
  call("undo");
  EXPECT_THAT(m_host.journal.lines(), Contains("rename A.vcl to Back.vcl"));
}

TEST_F(ReloadingTest, UndoOfArchiveItemsOnlyRunsTheCommand) {
  set(IPN::CMUnLockItem, "undo $archive $UnitArchivePath");
  set(IPN::CMArchive, "/main");
  addItem("sub/A.vcl");
  m_items.addTail(nullptr);
  answer("undo", {.output = "answer"});
  CMUnCheckout operation;
  EXPECT_EQ(operation(m_items, m_arguments, m_diagnostics), 1);
  EXPECT_THAT(m_host.journal.lines(), ElementsAre("run undo /main sub/A.vcl"));
  EXPECT_THAT(
      m_host.traceLog.texts(),
      ElementsAre("Executing the following command to uncheck out the file from the archive: "
                  "undo /main sub/A.vcl",
                  "Uncheck out from the archive command returned the following: answer"));
  EXPECT_THAT(m_arguments, IsEmpty());
}

}  // namespace
}  // namespace veldra::test
