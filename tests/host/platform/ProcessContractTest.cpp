#include <chrono>
#include <filesystem>
#include <random>
#include <thread>

#include "host/platform/Program.h"
#include "tests/host/platform/ProcessesTest.h"
#include "tests/host/platform/TempDirectory.h"
#include "tests/host/platform/Variable.h"

// What child processes promise on every system. What only one of them has is tested in its room.

namespace veldra::host {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

using ProcessContract = ProcessesTest;

constexpr std::size_t Megabytes8 = 8388608;
// A child that is not ended sleeps so long that the test program's own time-out would notice.
constexpr char Long[] = "1000000";

/// True once the process has ended, which may take the system a moment.
bool isGone(const std::string& process) {
  for (int i = 0; i < 200; ++i) {
    if (!isProcessAlive(std::stol(process))) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return false;
}

TEST_F(ProcessContract, keepsBothOutputsAndTheExitCode) {
  struct Case {
    std::vector<std::string> steps;
    std::string output;
    std::string errors;
    int code;
  };
  const Case rows[] = {{{"exit", "0"}, "", "", 0},
                       {{"out", "a", "err", "b", "exit", "7"}, "a\n", "b\n", 7},
                       {{"half-err", "no end"}, "", "no end", 0},
                       {{"flood", "3"}, std::string(3, '\0'), "", 0},
                       {{"out", "\xC3\xA4\xE2\x82\xAC"}, "\xC3\xA4\xE2\x82\xAC\n", "", 0},
                       {{"exit", "255"}, "", "", 255}};
  for (const Case& row : rows) {
    const Outcome outcome = run(child(row.steps));
    EXPECT_EQ(outcome.wait, 0U);
    EXPECT_EQ(outcome.end, ProcessEnd::Exited) << row.steps.front();
    EXPECT_EQ(outcome.code, row.code);
    EXPECT_EQ(outcome.output, row.output);
    EXPECT_EQ(outcome.errors, row.errors);
  }
}

TEST_F(ProcessContract, aFollowerSeesWhatWillBeTheOutput) {
  const auto runner = m_processes.createRunThread(child({"flood", "300000"}));
  std::string followed;
  runner->setOutputFollower([&](std::string_view soFar) {
    EXPECT_GT(soFar.size(), followed.size());
    EXPECT_TRUE(soFar.starts_with(followed));
    followed = soFar;
  });
  const std::string output = outcomeOf(*runner).output;
  // A system's own way of waiting may do without.
  EXPECT_TRUE(output.starts_with(followed));
  EXPECT_EQ(output.size(), 300000U);
}

TEST_F(ProcessContract, tenThousandArgumentListsArriveAsTheyWere) {
  constexpr int Lists = 10000;
  constexpr int ListsPerChild = 200;
  const std::string alphabet = "\\\\\\\\\"\"\"   \tab\n$%^&|<>*?'!~{}()[]";
  std::mt19937 random(11);
  for (int done = 0; done < Lists; done += ListsPerChild) {
    std::vector<std::string> steps{"arguments"};
    std::string expected;
    for (int list = 0; list < ListsPerChild; ++list) {
      steps.push_back("list");
      const auto count = random() % 5;
      for (std::size_t i = 0; i < count; ++i) {
        std::string& argument = steps.emplace_back(random() % 9, ' ');
        for (char& c : argument) c = alphabet[random() % alphabet.size()];
        if (random() % 8 == 0) argument += "\xC3\xBC";
      }
    }
    for (std::size_t i = 1; i < steps.size(); ++i)
      expected += std::to_string(steps[i].size()) + ':' + steps[i] + '\n';
    const Outcome outcome = run(child(steps));
    ASSERT_EQ(outcome.errors, "");
    ASSERT_EQ(outcome.output, expected);
  }
}

TEST_F(ProcessContract, bothOutputsFullAtOnceDoNotBlock) {
  const std::string size = std::to_string(Megabytes8);
  const Outcome outcome =
      run(child({"flood-err", size, "flood", size, "flood-err", size, "half-err", "END"}));
  EXPECT_EQ(outcome.end, ProcessEnd::Exited);
  EXPECT_TRUE(outcome.errors == std::string(2 * Megabytes8, '\0') + "END") << outcome.errors.size();
  // Beside error lines, only the beginning of the other output is kept.
  EXPECT_LE(outcome.output.size(), Megabytes8);
}

TEST_F(ProcessContract, theChildHasAnEmptyInputAndNoFileOfOurs) {
  const TempDirectory directory;
  const std::string before = run(child({"input", "files"})).output;
  EXPECT_THAT(before, StartsWith("input \nfiles "));
  const auto one = m_processes.createOutputFile(directory.file("one"));
  const auto two = m_processes.createOutputFile(directory.file("two"));
  EXPECT_EQ(run(child({"input", "files"})).output, before);
}

TEST_F(ProcessContract, variablesAreAddedToTheEnvironment) {
  const Variable present("VELDRA_TEST_OLD", "old");
  const Variable kept("VELDRA_TEST_KEPT", "kept");
  m_processes.setChildEnvironment({{"VELDRA_TEST_NEW", "a b"}, {"VELDRA_TEST_OLD", "new"}});
  const Outcome outcome =
      run(child({"env", "VELDRA_TEST_NEW", "env", "VELDRA_TEST_OLD", "env", "VELDRA_TEST_KEPT"}));
  EXPECT_EQ(outcome.output, "VELDRA_TEST_NEW=a b\nVELDRA_TEST_OLD=new\nVELDRA_TEST_KEPT=kept\n");
}

TEST_F(ProcessContract, standardOutputGoesToAFileOrNowhere) {
  const TempDirectory directory;
  directory.write("out", "longer than what comes");
  auto file = m_processes.createOutputFile(directory.file("out"));
  ASSERT_NE(file, nullptr);
  const auto command = child({"out", "out", "err", "err"});
  Outcome outcome = outcomeOf(*m_processes.createRunThreadRedirect(command, file.get()));
  file.reset();
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(outcome.errors, "err\n");
  EXPECT_EQ(directory.read("out"), "out\n");
  outcome = outcomeOf(*m_processes.createRunThreadRedirect(command, nullptr));
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(outcome.errors, "err\n");
}

TEST_F(ProcessContract, anOutputFileThatCannotBeMadeIsNull) {
  const TempDirectory directory;
  EXPECT_EQ(m_processes.createOutputFile(directory.path()), nullptr);
  EXPECT_EQ(m_processes.createOutputFile(directory.file("no/f")), nullptr);
  EXPECT_EQ(m_processes.createOutputFile(directory.file(std::string("f\0", 2))), nullptr);
}

TEST_F(ProcessContract, theChildStartsInTheWorkingDirectory) {
  const TempDirectory directory;
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(directory.path());
  const Outcome outcome = run(child({"where"}));
  std::filesystem::current_path(before);
  EXPECT_TRUE(std::filesystem::equivalent(outcome.output.substr(0, outcome.output.size() - 1),
                                          directory.path()))
      << outcome.output;
}

TEST_F(ProcessContract, askingAgainDoesNotRunAgain) {
  const auto runner = m_processes.createRunThread(child({"out", "x"}));
  runner->getStatus(RunThread::WaitForever);
  EXPECT_EQ(outcomeOf(*runner).output, "x\n");
}

TEST_F(ProcessContract, saysWhyNothingWasStarted) {
  const TempDirectory directory;
  const std::string data = directory.write("data", "x");
  const std::pair<std::string, const char*> rows[] = {
      {"no-such-tool ci", "'no-such-tool' was not found on PATH. Install it or name its full path"},
      {"./no-such-tool", "'./no-such-tool' does not exist"},
      {joinCommandLine({data}), "is not an executable"},
      {joinCommandLine({directory.path()}), "is not an executable"},
      {child({"\"x"}) + " \"", "never closed"},
      {std::string("tool \0", 6), "NUL"},
      {"  ", "empty"},
      {"\"\" x", "names no program"},
      {child({std::string(1 << 22, 'x')}), "too long"}};
  for (const auto& [command, reason] : rows) {
    const Outcome outcome = run(command);
    EXPECT_EQ(outcome.end, ProcessEnd::CouldNotStart) << reason;
    EXPECT_EQ(outcome.wait, 0U);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.errors, EndsWith(".\n"));
    EXPECT_THAT(outcome.errors, HasSubstr(reason));
  }
}

TEST_F(ProcessContract, aCrashIsNamedOnALineOfItsOwn) {
  const Outcome outcome = run(child({"out", "out", "half-err", "half", "crash"}));
  EXPECT_EQ(outcome.end, ProcessEnd::Crashed);
  EXPECT_NE(outcome.code, 0);
  EXPECT_EQ(outcome.output, "out\n");
  EXPECT_THAT(outcome.errors, StartsWith("half\n'"));
  EXPECT_THAT(outcome.errors, HasSubstr("' was ended by "));
}

TEST_F(ProcessContract, aTimeOutEndsTheChildAndKeepsWhatItPrinted) {
  const Outcome outcome = run(child({"pid", "err", "err", "sleep", Long}), 1000);
  EXPECT_EQ(outcome.wait, 258U);
  EXPECT_EQ(outcome.end, ProcessEnd::TimedOut);
  EXPECT_EQ(outcome.errors, "err\n");
  EXPECT_TRUE(isGone(outcome.output));
  EXPECT_EQ(run(child({"sleep", Long}), 0).end, ProcessEnd::TimedOut);
}

TEST_F(ProcessContract, aTimeOutEndsWhatTheChildHasStartedToo) {
  const Outcome outcome = run(child({"spawn-and-stay", "pid", "sleep", Long}), 3000);
  EXPECT_EQ(outcome.end, ProcessEnd::TimedOut);
  ASSERT_NE(outcome.output, "");
  EXPECT_TRUE(isGone(outcome.output)) << outcome.output;
}

TEST_F(ProcessContract, whatAChildLeavesBehindDoesNotHoldUs) {
  const auto begin = std::chrono::steady_clock::now();
  const Outcome outcome = run(child({"out", "done", "spawn", "sleep", Long}));
  EXPECT_EQ(outcome.end, ProcessEnd::Exited);
  EXPECT_EQ(outcome.output, "done\n");
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(30));
}

TEST_F(ProcessContract, aFloodIsEndedAtTheLimit) {
  m_processes.setOutputLimit(3 << 20);
  const Outcome outcome = run(child({"forever"}));
  EXPECT_EQ(outcome.end, ProcessEnd::Cancelled);
  EXPECT_EQ(outcome.wait, 0U);
  EXPECT_THAT(outcome.errors, HasSubstr("' printed more than the 3145728 bytes"));
  EXPECT_GE(outcome.output.size(), std::size_t{3 << 20});
  EXPECT_LE(outcome.output.size(), std::size_t{5 << 20});
}

TEST_F(ProcessContract, aCancelEndsTheRunningChildAndStartsNoOther) {
  const TempDirectory directory;
  std::thread canceller([&] {
    while (!std::filesystem::exists(directory.file("ready"))) std::this_thread::yield();
    m_processes.requestCancel();
  });
  const Outcome outcome = run(child({"pid", "touch", directory.file("ready"), "sleep", Long}));
  canceller.join();
  EXPECT_EQ(outcome.end, ProcessEnd::Cancelled);
  EXPECT_EQ(outcome.wait, 0U);
  EXPECT_THAT(outcome.errors, EndsWith("' was cancelled.\n"));
  EXPECT_TRUE(isGone(outcome.output));
  EXPECT_TRUE(m_processes.cancelRequested());
  EXPECT_EQ(run(child({})).end, ProcessEnd::Cancelled);
  m_processes.resetCancel();
  EXPECT_EQ(run(child({})).end, ProcessEnd::Exited);
}

}  // namespace
}  // namespace veldra::host
