#include "host/platform/AtomicFile.h"

#include <gmock/gmock.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/host/platform/TempDirectory.h"

namespace veldra::host {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

constexpr std::size_t NoLimit = std::size_t{1} << 30;

mode_t modeOf(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(::stat(path.c_str(), &status), 0);
  return status.st_mode & 07777;
}

std::string writtenHere(const std::string& path, std::string_view bytes) {
  return writeFileAtomically(path, bytes).value_or("");
}

TEST(AtomicFilePosix, writesNewFilesAndReplacesOldOnesWithTheirMode) {
  const TempDirectory directory;
  const std::string bytes("a\0\r\n\xff", 5);
  const mode_t mask = ::umask(027);
  EXPECT_EQ(writtenHere(directory.file("new"), "first"), "");
  ::umask(mask);
  EXPECT_EQ(modeOf(directory.file("new")), 0640U);
  ::chmod(directory.file("new").c_str(), 0604);
  EXPECT_EQ(writtenHere(directory.file("new"), bytes), "");
  EXPECT_EQ(directory.read("new"), bytes);
  EXPECT_EQ(modeOf(directory.file("new")), 0604U);
  EXPECT_EQ(directory.entries(), 1U);
}

TEST(AtomicFilePosix, linksStayAndTheirTargetsAreWritten) {
  const TempDirectory directory;
  fs::create_directory(directory.file("sub"));
  directory.write("sub/real", "old");
  fs::create_symlink("sub/real", directory.file("link"));
  fs::create_symlink("link", directory.file("twice"));
  fs::create_symlink("sub/fresh", directory.file("dangling"));
  fs::create_symlink("round", directory.file("round"));
  EXPECT_EQ(writtenHere(directory.file("twice"), "new"), "");
  EXPECT_EQ(writtenHere(directory.file("dangling"), "made"), "");
  EXPECT_EQ(directory.read("sub/real"), "new");
  EXPECT_EQ(directory.read("sub/fresh"), "made");
  EXPECT_TRUE(fs::is_symlink(directory.file("twice")));
  EXPECT_THAT(writtenHere(directory.file("round"), "x"), HasSubstr("links go round"));
}

TEST(AtomicFilePosix, refusesAPipe) {
  const TempDirectory directory;
  ::mkfifo(directory.file("pipe").c_str(), 0600);
  EXPECT_THAT(writtenHere(directory.file("pipe"), "x"), HasSubstr("not a regular file"));
  EXPECT_THAT(readFile(directory.file("pipe"), 9).error(), HasSubstr("not a regular file"));
}

TEST(AtomicFilePosix, aFullDiskLeavesTheOldFileWhole) {
  const TempDirectory directory;
  const std::string file = directory.write("f", "old");
  const pid_t child = ::fork();
  if (child == 0) {
    // A file that may grow no further fails in the middle of its bytes, just as on a full disk.
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit tight{4096, 4096};
    ::setrlimit(RLIMIT_FSIZE, &tight);
    const std::string error = writtenHere(file, std::string(100000, 'x'));
    _exit(error.find("'" + file + "'") != std::string::npos ? 0 : 1);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(directory.read("f"), "old");
  EXPECT_EQ(directory.entries(), 1U);
}

TEST(AtomicFilePosix, removesOnlyTheTemporariesOfDeadProcesses) {
  const TempDirectory directory;
  const pid_t dead = ::fork();
  if (dead == 0) _exit(0);
  ::waitpid(dead, nullptr, 0);
  const std::string ofDead = ".veldra-cm-" + std::to_string(dead) + "-0.tmp";
  const std::string names[] = {ofDead,
                               ".veldra-cm-" + std::to_string(::getppid()) + "-0.tmp",
                               ".veldra-cm-" + std::to_string(::getpid()) + "-7.tmp",
                               ".veldra-cm-99x-0.tmp",
                               ".veldra-cm-.tmp",
                               ".veldra-cm-99999999999999999999-0.tmp",
                               "veldra-cm-" + std::to_string(dead) + "-0.tmp"};
  for (const std::string& name : names) directory.write(name, "");
  EXPECT_EQ(removeStaleTemporaries(directory.path()), 1U);
  EXPECT_FALSE(fs::exists(directory.file(ofDead)));
  EXPECT_EQ(directory.entries(), std::size(names) - 1);
  EXPECT_EQ(removeStaleTemporaries(directory.file("absent")), 0U);
}

TEST(ReadFilePosix, readsFilesOfWhichTheSystemTellsNoSize) {
  EXPECT_THAT(*readFile("/proc/self/status", NoLimit), HasSubstr("Pid:"));
  EXPECT_THAT(readFile("/proc/self/status", 10).error(), HasSubstr("longer than"));
}

TEST(ReadFilePosix, namesAMissingPermission) {
  const TempDirectory directory;
  ::chmod(directory.write("secret", "x").c_str(), 0);
  // Root may read every file, so it becomes somebody else for a moment.
  const uid_t us = ::geteuid();
  if (us == 0) {
    ASSERT_EQ(::seteuid(65534), 0);
  }
  const auto secret = readFile(directory.file("secret"), 9);
  ASSERT_EQ(::seteuid(us), 0);
  EXPECT_THAT(secret.error(), HasSubstr("permission"));
}

}  // namespace
}  // namespace veldra::host
