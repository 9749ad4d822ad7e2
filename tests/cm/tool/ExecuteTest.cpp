#include <cstdint>
#include <stdexcept>

#include "cm/host/IPN.h"
#include "cm/tool/CMToolShellInterface.h"
#include "tests/support/ToolTest.h"

namespace veldra::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Shown = MemoryMessages::Shown;

class ExecuteTest : public ToolTest {
 protected:
  int execute(const std::string& command) {
    m_output.clear();
    m_errors.clear();
    return theCMToolShellInterface().Execute(command, m_output, m_errors, "/ignored");
  }
  const CommandRun& lastRun() const { return m_host.scriptedProcesses.runs.back(); }

  std::string m_output;
  std::string m_errors;
};

TEST_F(ExecuteTest, RunsInTheWorkingDirectoryAndComesBack) {
  m_project.unitDirectory = "/plan/units";
  m_host.files.makeDirectory("/plan/units");
  EXPECT_EQ(execute("tool x"), 1);
  EXPECT_EQ(lastRun().directory, "/plan/units");
  EXPECT_EQ(m_host.memoryEnvironment.currentDirectory, "/start");
  m_project.unitDirectory = "";
  EXPECT_EQ(execute("tool x"), 1);
  EXPECT_EQ(lastRun().directory, "/plan");
  answer("tool", {.effect = [] { throw std::runtime_error("the host is out of memory"); }});
  EXPECT_THROW(execute("tool x"), std::runtime_error);
  EXPECT_EQ(m_host.memoryEnvironment.currentDirectory, "/start");
}

TEST_F(ExecuteTest, WhereTextGoes) {
  struct Row {
    const char* name;
    Reply reply;
    const char* output;
    const char* errors;
    const char* window;
  };
  for (const Row& row : std::vector<Row>{
           {"silent", {}, "", "", "tool\n"},
           {"output", {.output = "a\nb\n"}, "a\nb\n", "", "tool\na\nb\n"},
           // Error lines come twice: as they arrive and as the result.
           {"errors win", {.output = "a\n", .errors = "e\n"}, "", "e\n", "tool\ne\ne\n"},
           {"time-out with output", {.output = "a\n", .timesOut = true}, "", "a\n", "tool\na\n"},
           {"time-out with errors", {.errors = "e\n", .timesOut = true}, "", "e\n", "tool\ne\ne\n"},
           {"silent time-out", {.timesOut = true}, "", "", "tool\n962"}}) {
    SCOPED_TRACE(row.name);
    m_host.manager.window.str("");
    answer("tool", row.reply);
    EXPECT_EQ(execute("tool"), 1);
    EXPECT_EQ(m_output, row.output);
    EXPECT_EQ(m_errors, row.errors);
    EXPECT_EQ(window(), row.window);
    EXPECT_EQ(m_host.scriptedProcesses.liveRunners, 0);
  }
}

TEST_F(ExecuteTest, OutputIsAppendedToWhatTheCallerHas) {
  answer("tool", {.output = "new"});
  m_output = "old ";
  theCMToolShellInterface().Execute("tool", m_output, m_errors, "");
  EXPECT_EQ(m_output, "old new");
}

TEST_F(ExecuteTest, RedirectionCutsAtTheFirstSign) {
  struct Row {
    const char* command;
    const char* run;
    const char* file;
  };
  for (const Row& row : std::vector<Row>{{"tool x > out.txt", "tool x ", " out.txt"},
                                         {"tool>a>b", "tool", "a>b"},
                                         {"tool \"x > y\"", "tool \"x ", " y\""},
                                         {"tool >", "tool ", ""}}) {
    SCOPED_TRACE(row.command);
    answer("tool", {.output = "printed"});
    EXPECT_EQ(execute(row.command), 1);
    EXPECT_EQ(lastRun().command, row.run);
    EXPECT_TRUE(lastRun().redirected);
    EXPECT_EQ(m_host.scriptedProcesses.outputFiles.back(), row.file);
    EXPECT_EQ(m_output, "");
    const auto* const file = m_host.files.find(std::string("/plan/") + row.file);
    ASSERT_NE(file, nullptr) << "the file is closed when the call returns";
    EXPECT_EQ(file->content, "printed");
  }
}

TEST_F(ExecuteTest, RedirectionIntoAFileThatCannotBeMadeStillRuns) {
  m_host.scriptedProcesses.outputFilesFail = true;
  EXPECT_EQ(execute("tool > /nowhere/out"), 1);
  EXPECT_EQ(lastRun().command, "tool ");
}

TEST_F(ExecuteTest, TimeOutSetting) {
  constexpr std::uint32_t Forever = RunThread::WaitForever;
  EXPECT_EQ(execute("tool"), 1);
  EXPECT_EQ(lastRun().timeout, Forever);
  for (const auto& [value, timeout] :
       std::vector<std::pair<const char*, std::uint32_t>>{{"5000", 5000},
                                                          {"  70 ms", 70},
                                                          {"12x", 12},
                                                          {"0", Forever},
                                                          {"", Forever},
                                                          {"soon", Forever},
                                                          {"-5", Forever},
                                                          {"99999999999999999999", Forever}}) {
    set(IPN::CMChildThreadTimeOut, value);
    execute("tool");
    EXPECT_EQ(lastRun().timeout, timeout) << value;
  }
}

TEST_F(ExecuteTest, NoticeOfASilentTimeOut) {
  answer("", {.timesOut = true});
  struct Row {
    const char* command;
    const char* setting;
    bool noticed;
    bool popup;
  };
  for (const Row& row : std::vector<Row>{{"tool", "true", true, true},
                                         {"tool", "no", true, false},
                                         {"tool", "", true, false},
                                         {"tool lsvtree -graph x", "TRUE", false, false},
                                         {"tool > lsvtree -graph", "TRUE", true, true}}) {
    SCOPED_TRACE(row.command);
    m_host.memoryEnvironment.settings[{"General", "ShowMessageOnCMCommandTimeout"}] = row.setting;
    m_host.memoryMessages.notified.clear();
    m_host.manager.window.str("");
    execute(row.command);
    EXPECT_EQ(window().find("962") != std::string::npos, row.noticed);
    EXPECT_THAT(m_host.memoryMessages.notified, SizeIs(row.popup ? 1 : 0));
  }
}

TEST_F(ExecuteTest, PatternsAreLookedForInTheResult) {
  const Shown error{"958", MessageBox::IconError, ""};
  const Shown warning{"959", MessageBox::IconWarning, ""};
  struct Row {
    const char* errorPattern;
    const char* warningPattern;
    Reply reply;
    std::vector<Shown> shown;
  };
  for (const Row& row :
       std::vector<Row>{{"^FATAL", "note", {.output = "fatal: note\n"}, {error}},
                        {"^FATAL", "NOTE", {.output = "a note\n"}, {warning}},
                        {"fatal", "", {.errors = "Fatal\n"}, {error}},
                        {"fatal", "", {.output = "fatal", .errors = "other\n"}, {}},
                        {"late", "", {.output = "late\n", .timesOut = true}, {error}},
                        {"", "", {.output = "anything"}, {}},
                        {"^$", "^$", {}, {}},
                        {"(unclosed", "note", {.output = "note"}, {warning}}}) {
    SCOPED_TRACE(row.errorPattern);
    set("OperationErrorPattern", row.errorPattern);
    set("OperationWarningPattern", row.warningPattern);
    m_host.memoryMessages.asked.clear();
    answer("tool", row.reply);
    EXPECT_EQ(execute("tool"), 1) << "a match does not alter the result";
    EXPECT_EQ(m_host.memoryMessages.asked, row.shown);
  }
}

TEST_F(ExecuteTest, DirectoriesThatCannotBeHadOrEntered) {
  m_host.memoryEnvironment.currentDirectory = "";
  EXPECT_EQ(execute("tool"), 0);
  EXPECT_EQ(m_errors, "the current directory is gone");
  EXPECT_EQ(window(), m_errors);

  m_host.manager.window.str("");
  m_host.memoryEnvironment.currentDirectory = "/start";
  m_project.unitDirectory = "/gone";
  EXPECT_EQ(execute("tool"), 0);
  EXPECT_EQ(m_errors, "48352: /gone no such directory");
  EXPECT_EQ(window(), m_errors);
  EXPECT_EQ(m_host.memoryEnvironment.currentDirectory, "/start");
  EXPECT_THAT(commands(), IsEmpty());

  m_project.unitDirectory = "/plan";
  answer("tool", {.output = "done",
                  .effect = [this] { m_host.memoryEnvironment.unenterableDirectory = "/start"; }});
  EXPECT_EQ(execute("tool"), 0);
  EXPECT_EQ(m_output, "done");
  EXPECT_EQ(m_errors, "48352: /start no such directory");
  EXPECT_THAT(window(), HasSubstr(m_errors));
}

TEST_F(ExecuteTest, EmptyCommandRunsNothing) {
  EXPECT_EQ(execute(""), 1);
  EXPECT_THAT(commands(), IsEmpty());
  EXPECT_EQ(window(), "");
  debugTraces();
  EXPECT_EQ(execute(""), 1);
  EXPECT_EQ(window().substr(window().rfind("+++")), "+++ no command to execute\n");
}

TEST_F(ExecuteTest, DebugLinesRepeatTheOutput) {
  debugTraces();
  answer("tool", {.output = "words"});
  execute("tool");
  EXPECT_THAT(window(), HasSubstr("tool\n"));
  EXPECT_THAT(window(), HasSubstr("words+++ command output: words\n"));
  m_host.manager.window.str("");
  answer("tool", {.timesOut = true});
  execute("tool");
  EXPECT_THAT(window(), HasSubstr("962+++ 962"));
}

TEST_F(ExecuteTest, WithoutAWindowTheTextsComeBackAllTheSame) {
  m_host.manager.hasStream = false;
  installHost(&m_host);
  answer("tool", {.output = "words"});
  EXPECT_EQ(execute("tool"), 1);
  EXPECT_EQ(m_output, "words");
}

TEST_F(ExecuteTest, HowTheCommandEndedIsKeptBesideTheResult) {
  struct Row {
    const char* name;
    Reply reply;
    bool failed;
    const char* words;
  };
  set("OperationErrorPattern", "fatal");
  for (const Row& row : std::vector<Row>{
           {"fine", {.output = "ok"}, false, ""},
           {"failure code", {.output = "why", .code = 1}, true, "why"},
           {"failure code with errors", {.output = "x", .errors = "e", .code = 1}, true, "e"},
           {"crash",
            {.errors = "ended by signal 11", .end = ProcessEnd::Crashed, .code = 11},
            true,
            "ended by signal 11"},
           {"could not start",
            {.errors = "no program", .end = ProcessEnd::CouldNotStart},
            true,
            "no program"},
           {"failure code alone", {.code = 7}, true, "60810: 7"},
           // What was printed before is not the reason.
           {"time-out", {.output = "half", .timesOut = true}, true, "962\nhalf"},
           {"silent time-out", {.timesOut = true}, true, "962"},
           {"error pattern", {.output = "fatal"}, true, "fatal"},
           // Tools chatter on their error output; that alone is no failure.
           {"errors and code 0", {.errors = "warning"}, false, ""}}) {
    SCOPED_TRACE(row.name);
    answer("tool", row.reply);
    execute("tool");
    EXPECT_EQ(theCMToolShellInterface().lastCommandEnd().failed, row.failed);
    EXPECT_EQ(theCMToolShellInterface().lastCommandEnd().words, row.words);
  }
}

TEST_F(ExecuteTest, AHostWithoutARunnerIsNoSuccess) {
  class NoRunnerHost : public MemoryHost {
   public:
    IProcesses* processes() override { return nullptr; }
  } host;
  host.files.makeDirectory("/start");
  host.memoryModel.openProject("/plan", "Plant.vdy");
  installHost(&host);
  const int result = execute("tool");
  EXPECT_TRUE(result == 0 || theCMToolShellInterface().lastCommandEnd().failed);
  EXPECT_EQ(m_errors, "60010: tool");
  installHost(&m_host);
}

}  // namespace
}  // namespace veldra::test
