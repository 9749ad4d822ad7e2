#include "host/cli/UnitOutcome.h"

#include "host/cli/CallArguments.h"
#include "tests/support/HostTest.h"

namespace veldra::host::cli {
namespace {

/// What ends mean is among the host's texts.
using UnitOutcomeTest = test::HostTest;

UnitRecord after(const UnitTrace& trace, const DiagnosticList& diagnostics = {}) {
  UnitRecord record;
  applyTrace(trace, "CheckIn", diagnostics, record);
  return record;
}

TEST_F(UnitOutcomeTest, EveryBadEndHasWords) {
  for (const UnitEnd end : {UnitEnd::Refused, UnitEnd::Declined, UnitEnd::NotExpanded,
                            UnitEnd::NotRun, UnitEnd::ToolFailed, UnitEnd::NotReloaded}) {
    const UnitRecord record = after({.file = "/m/u", .end = end});
    EXPECT_NE(record.result, UnitResult::Done);
    EXPECT_FALSE(record.message.empty());
  }
  EXPECT_NE(after({.file = "/m/u", .end = UnitEnd::Declined}).message.find("--force"),
            std::string::npos);
  EXPECT_NE(after({.file = "/m/u", .end = UnitEnd::NotExpanded}).message.find("CheckIn"),
            std::string::npos);
  EXPECT_EQ(after({.file = "/m/u"}).message, "");
}

TEST_F(UnitOutcomeTest, FailureShowsTheToolsFirstWordsAndItsCommand) {
  const UnitRecord record = after({.file = "/m/u",
                                   .end = UnitEnd::ToolFailed,
                                   .words = "\nsvn: E1: locked\n 1\n 2\n 3\n 4\n",
                                   .commands = {"svn commit /m/u"}});
  EXPECT_EQ(record.message, "svn: E1: locked\n1\n2\n3\ncommand: svn commit /m/u");
}

TEST_F(UnitOutcomeTest, DiagnosticsGoToTheirUnitOnce) {
  const DiagnosticList diagnostics = {
      CMDiagnostic(CMDiagnostic::Failed, "\"/m/a>b\" holds a sign.", nullptr),
      CMDiagnostic(CMDiagnostic::Failed, "No tool.", nullptr),
      CMDiagnostic(CMDiagnostic::Succeeded, "Fine.", nullptr)};
  const UnitTrace trace{.file = "/m/a>b", .end = UnitEnd::Refused};
  EXPECT_EQ(after(trace, diagnostics).message, "\"/m/a>b\" holds a sign.");
  EXPECT_EQ(generalMessage(diagnostics, {trace}), "No tool.");
  // One that the operation has told with the unit needs no search.
  const UnitTrace told{.file = "b", .end = UnitEnd::Refused, .words = "No tool."};
  EXPECT_EQ(after(told, diagnostics).message, "No tool.");
  EXPECT_EQ(generalMessage(diagnostics, {trace, told}), "");
}

TEST_F(UnitOutcomeTest, PlanSplitsTheCommandAndNamesTheCommentFile) {
  UnitRecord record;
  makePlan({.file = "/m/a b",
            .commands = {std::string("ci -t \"/m/a b\" ") + PlannedCommentFile,
                         std::string("ci @") + PlannedUnitList, "open \"quote"}},
           "given back", record);
  EXPECT_EQ(record.result, UnitResult::Planned);
  EXPECT_EQ(record.plan.file, "/m/a b");
  const std::vector<std::vector<std::string>> expected = {
      {"ci", "-t", "/m/a b", "<comment>"}, {"ci", "@<units>"}, {"open \"quote"}};
  EXPECT_EQ(record.plan.commands, expected);

  UnitRecord refused;
  refused.result = UnitResult::Refused;
  makePlan({.file = "/m/x"}, "taken", refused);
  EXPECT_EQ(refused.result, UnitResult::Refused);
}

}  // namespace
}  // namespace veldra::host::cli
