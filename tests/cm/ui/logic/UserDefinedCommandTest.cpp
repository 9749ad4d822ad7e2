#include "cm/ui/logic/UserDefinedCommand.h"

#include "tests/support/HostTest.h"

namespace veldra::test {
namespace {

class UserDefinedCommandTest : public HostTest {
 protected:
  MemoryUnit& m_boiler = m_model.addUnit("Boiler.vcl");
  MemoryUnit& m_pump = m_model.addUnit("Pump.vcl");
};

TEST_F(UserDefinedCommandTest, BlocksAreFilledOncePerUnit) {
  m_boiler.record.sccProject = "prj";
  const UnitList both{&m_boiler, &m_pump};
  const struct {
    const char* command;
    UnitList units;
    const char* expanded;
  } rows[] = {
      {"tool \"ARG= -f $Path \" end", both, "tool -f /plan/Boiler.vcl -f /plan/Pump.vcl end"},
      {"tool \"ARG=$Directory:$Archive\"", {&m_boiler}, "tool /plan:prj"},
      {"tool \"ARG=[$Ver]\"", both, "tool [] []"},
      {"tool \"ARG=$Path\"", {}, "tool "},
      {"tool \"ARG=  \" x", both, "tool  x"},
      {"tool ARG=$Path", both, "tool ARG=$Path"},
      {"tool \"ARG=$Path", both, "tool \"ARG=$Path"},
      {"$OMROOT/x $Path $OMROOT", both, "/opt/veldra/x $Path /opt/veldra"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(UserDefinedCommand::ExpandUserDefCommand(row.command, row.units), row.expanded)
        << row.command;
  }
}

TEST_F(UserDefinedCommandTest, AKeywordInADirectorysNameIsNone) {
  m_boiler.record.directory = "/plan/$Ver$Archive";
  EXPECT_EQ(UserDefinedCommand::ExpandUserDefCommand("x \"ARG=$Directory\"", {&m_boiler}),
            "x /plan/$Ver$Archive");
}

TEST_F(UserDefinedCommandTest, AnUnknownRootLeavesTheKeyword) {
  m_host.memoryEnvironment.rootKnown = false;
  EXPECT_EQ(UserDefinedCommand::ExpandUserDefCommand("$OMROOT/x", {}), "$OMROOT/x");
}

TEST_F(UserDefinedCommandTest, ButtonsRunTheirPropertyInsideANamedTransaction) {
  set("CMOperationStartSeparator", "== $Operation\n", "General");
  set("UserDefCommand_3", "third", "General");
  set("RunCMToolCommand", "gui", "General");
  EXPECT_TRUE(UserDefinedCommand::run(DialogCommand::UserCommand3, {}));
  EXPECT_TRUE(UserDefinedCommand::run(DialogCommand::RunTool, {}));
  EXPECT_TRUE(UserDefinedCommand::run(DialogCommand::UserCommand1, {}));
  EXPECT_EQ(m_host.scriptedProcesses.commands(), (std::vector<std::string>{"third", "gui"}));
  EXPECT_EQ(windowLines("=="),
            (Lines{"== User Defined Command", "== Invoke Configuration Management Tool"}));
}

}  // namespace
}  // namespace veldra::test
