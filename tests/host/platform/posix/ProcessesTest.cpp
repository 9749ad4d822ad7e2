#include "tests/host/platform/ProcessesTest.h"

#include <fcntl.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/host/platform/TempDirectory.h"

namespace veldra::host {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST_F(ProcessesTest, keepsBothOutputsByteForByte) {
  struct Case {
    const char* script;
    std::string output;
    std::string errors;
    int code;
  };
  const Case rows[] = {{"exit 0", "", "", 0},
                       {"echo a; echo b >&2; exit 7", "a\n", "b\n", 7},
                       {"printf half; printf 'no end' >&2", "half", "no end", 0},
                       {R"(printf '\000\000x\377')", std::string("\0\0x\xff", 4), "", 0},
                       {"exec >&- 2>&-; exit 255", "", "", 255}};
  for (const Case& row : rows) {
    const Outcome outcome = run(script(row.script));
    EXPECT_EQ(outcome.wait, 0U) << row.script;
    EXPECT_EQ(outcome.end, ProcessEnd::Exited) << row.script;
    EXPECT_EQ(outcome.code, row.code) << row.script;
    EXPECT_EQ(outcome.output, row.output) << row.script;
    EXPECT_EQ(outcome.errors, row.errors) << row.script;
  }
}

TEST_F(ProcessesTest, noShellSeesTheArguments) {
  const Outcome outcome = run(R"(printf "%s\n" $HOME * "a  b;c" '>x' "" \"&)");
  EXPECT_EQ(outcome.output, "$HOME\n*\na  b;c\n'>x'\n\n\"&\n");
}

TEST_F(ProcessesTest, theChildHasNothingOfOurs) {
  const int leaked = ::dup(STDOUT_FILENO);  // Would be inherited.
  sigset_t blocked;
  sigset_t before;
  sigfillset(&blocked);
  sigprocmask(SIG_BLOCK, &blocked, &before);
  const auto handler = ::signal(SIGPIPE, SIG_IGN);
  const Outcome files = run(script("cd /proc/self/fd; echo *; readlink 0; cat"));
  const Outcome signals = run("grep -E Sig(Blk|Ign) /proc/self/status");
  ::signal(SIGPIPE, handler);
  sigprocmask(SIG_SETMASK, &before, nullptr);
  ::close(leaked);
  // The shell itself holds one more while it lists the directory.
  EXPECT_THAT(files.output, testing::MatchesRegex("0 1 2( 3)?\n/dev/null\n"));
  // The C library keeps the two signals ignored that it uses itself.
  EXPECT_THAT(signals.output, testing::MatchesRegex("SigBlk:\t0+\nSigIgn:\t0{7}[01][08]0{7}\n"));
}

/// Makes a new terminal that of this process and its children.
void getTerminal() {
  const int master = ::posix_openpt(O_RDWR | O_NOCTTY);
  ::grantpt(master);
  ::unlockpt(master);
  ::setsid();
  const int terminal = ::open(::ptsname(master), O_RDWR);
  if (::ioctl(terminal, TIOCSCTTY, 0) != 0) _exit(2);
}

TEST_F(ProcessesTest, aChildThatAsksOnTheTerminalFailsAndDoesNotHang) {
  EXPECT_EXIT(
      {
        getTerminal();
        const Outcome outcome = run(script("cat </dev/tty; echo went on"), 5000);
        _exit(outcome.output == "went on\n" ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

TEST_F(ProcessesTest, itsOutputsAreRightEvenWhenOursAreClosed) {
  const TempDirectory directory;
  EXPECT_EXIT(
      {
        for (const int number : {0, 1, 2}) ::close(number);
        const std::string command = script("echo out; echo err >&2; cat");
        const auto file = m_processes.createOutputFile(directory.file("out"));
        const Outcome kept = run(command);
        const Outcome sent = outcomeOf(*m_processes.createRunThreadRedirect(command, file.get()));
        const bool right = kept.output == "out\n" && kept.errors == "err\n" &&
                           sent.errors == "err\n" && directory.read("out") == "out\n";
        _exit(right ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

TEST_F(ProcessesTest, aPipeIsNoOutputFile) {
  const TempDirectory directory;
  ::mkfifo(directory.file("pipe").c_str(), 0600);
  EXPECT_EQ(m_processes.createOutputFile(directory.file("pipe")), nullptr);
}

class ProcessStart : public ProcessesTest {
 protected:
  void SetUp() override {
    m_former = std::filesystem::current_path();
    m_path = ::getenv("PATH");
    std::filesystem::current_path(m_directory.path());
  }
  void TearDown() override {
    ::setenv("PATH", m_path.c_str(), 1);
    std::filesystem::current_path(m_former);
  }

  std::string refused(const std::string& command) {
    const Outcome outcome = run(command);
    EXPECT_EQ(outcome.end, ProcessEnd::CouldNotStart) << command;
    EXPECT_EQ(outcome.wait, 0U);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.errors, testing::EndsWith(".\n"));
    return outcome.errors;
  }

  std::string program(const std::string& name, const std::string& text, mode_t mode) {
    const std::string file = m_directory.write(name, text);
    ::chmod(file.c_str(), mode);
    return file;
  }

  TempDirectory m_directory;
  std::filesystem::path m_former;
  std::string m_path;
};

TEST_F(ProcessStart, saysWhyNothingWasStarted) {
  program("data", "echo x", 0644);
  program("text", "echo x", 0755);
  program("orphan", "#!/no/such/interpreter\n", 0755);
  const std::pair<std::string, const char*> rows[] = {{"./data", "'./data' is not an executable"},
                                                      {"./text", "begins with #!"},
                                                      {"./orphan", "interpreter"}};
  for (const auto& [command, reason] : rows) EXPECT_THAT(refused(command), HasSubstr(reason));
}

TEST_F(ProcessStart, takesProgramsFromAbsoluteDirectoriesOfPathOnly) {
  program("tool", "#!/bin/sh\necho here\n", 0755);
  for (const char* path : {"", ":", ".", "./:.:", ":/usr/bin:"}) {
    ::setenv("PATH", path, 1);
    EXPECT_THAT(refused("tool"), HasSubstr("not found on PATH")) << path;
  }
  EXPECT_EQ(run("./tool").output, "here\n");
  ::setenv("PATH", ("/no/such:" + m_directory.path()).c_str(), 1);
  EXPECT_EQ(run("tool").output, "here\n");
  // One that may not be executed does not hide a later one, but is named when there is none.
  std::filesystem::create_directory("sub");
  program("sub/tool", "", 0644);
  ::setenv("PATH", (m_directory.file("sub") + ":" + m_directory.path()).c_str(), 1);
  EXPECT_EQ(run("tool").output, "here\n");
  ::setenv("PATH", m_directory.file("sub").c_str(), 1);
  EXPECT_THAT(refused("tool"), HasSubstr("sub/tool' is not an executable"));
}

TEST_F(ProcessStart, aWorkingDirectoryThatIsGoneIsTheReason) {
  std::filesystem::create_directory("sub");
  std::filesystem::current_path(m_directory.file("sub"));
  std::filesystem::remove(m_directory.file("sub"));
  EXPECT_THAT(refused("/bin/true"), HasSubstr("working directory does not exist"));
}

}  // namespace
}  // namespace veldra::host
