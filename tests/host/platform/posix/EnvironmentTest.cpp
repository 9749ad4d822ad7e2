#include "host/platform/Environment.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>

#include "tests/host/platform/TempDirectory.h"
#include "tests/host/platform/Variable.h"

namespace veldra::host {
namespace {

using testing::HasSubstr;

TEST(EnvironmentPosix, theTemporaryDirectoryMayBeTheRoot) {
  const std::pair<std::string, std::string> rows[] = {
      {"relative", "/tmp"}, {"/", "/"}, {"", "/tmp"}};
  for (const auto& [wanted, expected] : rows) {
    const Variable variable("TMPDIR", wanted);
    EXPECT_EQ(Environment("").omGetTempDir(), expected) << wanted;
  }
}

TEST(EnvironmentPosix, aTemporaryFileIsPrivate) {
  Environment environment("");
  const std::string name = environment.createTempFile("x");
  struct stat status {};
  ASSERT_EQ(::stat(name.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
  environment.removeFile(name);
}

TEST(EnvironmentPosix, writePermissionIsTheOwnersBitEvenForRoot) {
  const TempDirectory directory;
  const std::string file = directory.write("f", "");
  Environment environment("");
  ::chmod(file.c_str(), 0466);
  EXPECT_FALSE(environment.omFileHasWritePermission(file));
  ::chmod(file.c_str(), 0200);
  EXPECT_TRUE(environment.omFileHasWritePermission(file));
}

TEST(EnvironmentPosix, linksAreKeptExceptWhereTheyAreSteppedBackOver) {
  const TempDirectory directory;
  const std::string before = std::filesystem::current_path();
  std::filesystem::create_directories(directory.file("real/deep"));
  std::filesystem::create_directory_symlink(directory.file("real/deep"), directory.file("link"));
  Environment environment("");
  ASSERT_TRUE(environment.setCurrentDirectory(directory.path()));
  std::string error;
  EXPECT_EQ(environment.omGetFullPathOfDirectory("./link/", error), directory.file("link"));
  EXPECT_EQ(environment.omGetFullPathOfDirectory("link/..", error), directory.file("real"));
  EXPECT_EQ(error, "");
  ASSERT_TRUE(environment.setCurrentDirectory(before));
}

TEST(EnvironmentPosix, aCurrentDirectoryThatIsGoneIsNamedAsTheReason) {
  const std::string before = std::filesystem::current_path();
  Environment environment("");
  std::string error;
  {
    const TempDirectory directory;
    ASSERT_TRUE(environment.setCurrentDirectory(directory.path()));
  }
  EXPECT_EQ(environment.omGetFullPathOfDirectory("", error), "");
  EXPECT_THAT(error, HasSubstr("current directory"));
  ASSERT_TRUE(environment.setCurrentDirectory(before));
}

}  // namespace
}  // namespace veldra::host
