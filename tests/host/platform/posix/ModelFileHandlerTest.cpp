#include "host/model/ModelFileHandler.h"

#include <gmock/gmock.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/host/platform/TempDirectory.h"

namespace veldra::host {
namespace {

namespace fs = std::filesystem;

TEST(ModelFileHandlerPosix, AFullDiskLeavesNoHalfACopy) {
  const TempDirectory directory;
  const std::string file = directory.write("M.vdy", std::string(100000, 'x'));
  const pid_t child = ::fork();
  if (child == 0) {
    // A file that may grow no further fails in the middle of its bytes, just as on a full disk.
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit tight{4096, 4096};
    ::setrlimit(RLIMIT_FSIZE, &tight);
    ModelFileHandler(file).prepare(CMVDYHandler::CheckOut);
    _exit(directory.entries() == 1 ? 0 : 1);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(directory.read("M.vdy").size(), 100000U);
}

TEST(ModelFileHandlerPosix, ALinkInTheCopysPlaceIsNotFollowed) {
  const TempDirectory project;
  const TempDirectory elsewhere;
  const std::string file = project.write("M.vdy", "model");
  std::string copy;
  {
    ModelFileHandler handler(file);
    handler.prepare(CMVDYHandler::CheckOut);
    for (const auto& entry : fs::directory_iterator(project.path())) {
      if (entry.path() != fs::path(file)) copy = entry.path().string();
    }
    handler.complete();
  }
  fs::create_symlink(elsewhere.file("new"), copy);
  ModelFileHandler(file).prepare(CMVDYHandler::CheckOut);
  EXPECT_EQ(elsewhere.entries(), 0U);
  EXPECT_EQ(project.read("M.vdy"), "model");
}

}  // namespace
}  // namespace veldra::host
