#include <signal.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "tests/host/platform/ProcessesTest.h"
#include "tests/host/platform/TempDirectory.h"

// How children end, and how they are ended. A child that is not ended in these tests sleeps so long
// that the test program's own time-out would notice.

namespace veldra::host {
namespace {

using testing::HasSubstr;

/// True once the process is gone or has ended without having been waited for.
bool isGoneFromProc(const std::string& process) {
  for (int i = 0; i < 200; ++i) {
    std::ifstream stream("/proc/" + process + "/stat");
    std::string stat;
    std::getline(stream, stat);
    if (stat.empty() || stat.find(") Z ") != std::string::npos) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return false;
}

std::string firstLine(const std::string& text) {
  return text.substr(0, text.find('\n'));
}

TEST_F(ProcessesTest, aSignalThatEndsTheChildIsNamedOnALineOfItsOwn) {
  Outcome outcome = run(script("echo out; kill -9 $$"));
  EXPECT_EQ(outcome.end, ProcessEnd::Crashed);
  EXPECT_EQ(outcome.code, SIGKILL);
  EXPECT_EQ(outcome.output, "out\n");
  EXPECT_EQ(outcome.errors, "'sh' was ended by signal 9 (Killed).\n");
  outcome = run(script("printf half >&2; kill -TERM $$"));
  EXPECT_EQ(outcome.errors, "half\n'sh' was ended by signal 15 (Terminated).\n");
}

TEST_F(ProcessesTest, theWholeGroupEndsEvenWhenItIgnoresTheTerminateSignal) {
  const TempDirectory directory;
  const std::string stubborn = "trap '' TERM; ";
  // It holds no pipe, so that only the group tells that it is there.
  const std::string grandchild = "sh -c \"" + stubborn + "echo \\$\\$ >" + directory.file("pid") +
                                 "; while :; do sleep 1; done\" >/dev/null 2>&1 & ";
  const std::string child = "echo $$; while :; do sleep 1; done";
  for (const auto& command : {grandchild + child, stubborn + grandchild + child}) {
    const Outcome outcome = run(script(command), 300);
    EXPECT_EQ(outcome.end, ProcessEnd::TimedOut);
    EXPECT_TRUE(isGoneFromProc(firstLine(outcome.output))) << command;
    EXPECT_TRUE(isGoneFromProc(firstLine(directory.read("pid")))) << command;
  }
}

TEST_F(ProcessesTest, aChildThatClosesItsOutputsAndStaysMeetsTheTimeOut) {
  const Outcome outcome = run(script("echo $$; exec >&- 2>&-; exec sleep 1000"), 200);
  EXPECT_EQ(outcome.end, ProcessEnd::TimedOut);
  EXPECT_TRUE(isGoneFromProc(firstLine(outcome.output)));
}

TEST_F(ProcessesTest, whatAChildLeavesBehindDoesNotHoldUs) {
  const Outcome outcome = run(script("sleep 1000 & echo $!; exit 3"));
  EXPECT_EQ(outcome.end, ProcessEnd::Exited);
  EXPECT_EQ(outcome.code, 3);
  EXPECT_EQ(outcome.errors, "");
  EXPECT_TRUE(isGoneFromProc(firstLine(outcome.output)));
}

TEST_F(ProcessesTest, whatHasLeftTheGroupIsLeftAlone) {
  const Outcome outcome = run(script("setsid sleep 1000 & echo $!; exit 0"));
  EXPECT_EQ(outcome.end, ProcessEnd::Exited);
  const int process = std::stoi(firstLine(outcome.output));
  EXPECT_EQ(::kill(process, SIGKILL), 0);
}

TEST_F(ProcessesTest, nothingThatTheChildPrintedIsLostToSomethingLeftBehind) {
  // The megabyte is still on its way when the child ends.
  const Outcome outcome = run(script("sleep 1000 & head -c 1000000 /dev/zero; printf end"));
  EXPECT_EQ(outcome.output, std::string(1000000, '\0') + "end");
}

Processes* s_interrupted = nullptr;

TEST_F(ProcessesTest, aSignalHandlerMayCancelAndOtherSignalsDoNoHarm) {
  s_interrupted = &m_processes;
  struct sigaction cancel {};
  cancel.sa_handler = [](int) { s_interrupted->requestCancel(); };
  struct sigaction nothing {};
  nothing.sa_handler = [](int) {};
  sigaction(SIGUSR1, &cancel, nullptr);
  sigaction(SIGUSR2, &nothing, nullptr);
  const std::string us = std::to_string(::getpid());
  EXPECT_EQ(run(script("for i in 1 2 3 4 5; do kill -USR2 " + us + "; echo $i; done")).output,
            "1\n2\n3\n4\n5\n");
  const Outcome outcome = run(script("kill -USR1 " + us + "; exec sleep 1000"));
  EXPECT_EQ(outcome.end, ProcessEnd::Cancelled);
  ::signal(SIGUSR1, SIG_DFL);
  ::signal(SIGUSR2, SIG_DFL);
}

TEST_F(ProcessesTest, anEndThatTheSystemWithholdsIsNoSuccess) {
  const auto handler = ::signal(SIGCHLD, SIG_IGN);
  const Outcome outcome = run("true");
  ::signal(SIGCHLD, handler);
  EXPECT_EQ(outcome.end, ProcessEnd::Crashed);
  EXPECT_NE(outcome.errors, "");
}

TEST_F(ProcessesTest, noDescriptorIsLeftOpen) {
  const auto count = [] {
    namespace fs = std::filesystem;
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
  };
  const auto before = count();
  run("true");
  run("no-such-tool");
  run(script("sleep 1000"), 50);
  run(script("sleep 1000 &"));
  EXPECT_EQ(count(), before);
}

}  // namespace
}  // namespace veldra::host
