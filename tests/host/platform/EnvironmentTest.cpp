#include "host/platform/Environment.h"

#include <gmock/gmock.h>

#include "host/platform/Program.h"
#include "tests/host/platform/TempDirectory.h"
#include "tests/host/platform/Variable.h"

namespace veldra::host {
namespace {

using testing::HasSubstr;
using testing::MatchesRegex;

TEST(Environment, aVariableWinsOverTheSettingInTheGeneralSectionOnly) {
  Environment environment("", [](const std::string& section, const std::string& name) {
    return name == "Known" ? std::optional(section + "/" + name) : std::nullopt;
  });
  std::string value;
  EXPECT_EQ(environment.omGetEnvVar("General", "Known", value, "d"), 1);
  EXPECT_EQ(value, "General/Known");
  EXPECT_EQ(environment.omGetEnvVar("General", "Unknown", value, "d"), 0);
  EXPECT_EQ(value, "d");
  const Variable variable("VELDRA_KNOWN", "v");
  EXPECT_EQ(environment.omGetEnvVar("General", "Known", value, "d"), 1);
  EXPECT_EQ(value, "v");
  EXPECT_EQ(environment.omGetEnvVar("Other", "Known", value, "d"), 1);
  EXPECT_EQ(value, "Other/Known");
}

TEST(Environment, aSettingsLookUpThatThrowsLeavesTheDefault) {
  Environment environment("", [](auto&, auto&) -> std::optional<std::string> { throw 1; });
  std::string value;
  EXPECT_EQ(environment.omGetEnvVar("General", "Any", value, "d"), 0);
  EXPECT_EQ(value, "d");
}

TEST(Environment, theRootComesFromTheVariableOrFromBesideTheProgram) {
  EXPECT_THAT(findInstallationRoot(), testing::EndsWith("veldra-cm"));
  const Variable variable("VELDRA_ROOT", "/opt/v");
  std::string root = "kept";
  EXPECT_EQ(Environment("").omGetRoot(root), 0);
  EXPECT_EQ(root, "kept");
  EXPECT_EQ(Environment(findInstallationRoot()).omGetRoot(root), 1);
  EXPECT_EQ(root, "/opt/v");
}

TEST(Environment, theTemporaryDirectoryMustExist) {
  const TempDirectory directory;
  Environment environment("");
  {
    const Variable variable("TMPDIR", directory.path() + "//");
    EXPECT_EQ(environment.omGetTempDir(), directory.path());
  }
  for (const std::string& wanted : {std::string("relative"), directory.file("absent")}) {
    const Variable variable("TMPDIR", wanted);
    const std::string found = environment.omGetTempDir();
    bool exists = false;
    EXPECT_NE(found, wanted);
    EXPECT_TRUE(environment.isDirectory(found, exists) && environment.omIsAbsolutePath(found));
  }
}

TEST(Environment, aTemporaryFileHoldsTheseBytes) {
  const TempDirectory directory;
  const Variable variable("TMPDIR", directory.path());
  Environment environment("");
  const std::string content("a\0\r\n\xff", 5);
  const std::string name = environment.createTempFile(content);
  EXPECT_NE(environment.createTempFile(content), name);
  const std::string base = name.substr(directory.path().size() + 1);
  EXPECT_THAT(base, MatchesRegex("veldra-cm-" + std::to_string(processNumber()) + "-......"));
  EXPECT_EQ(directory.read(base), content);
  environment.removeFile(name);
  EXPECT_FALSE(environment.omFileExist(name));
}

TEST(Environment, writePermissionIsTheFilesOwn) {
  const TempDirectory directory;
  const std::string file = directory.write("f", "");
  Environment environment("");
  namespace fs = std::filesystem;
  EXPECT_TRUE(environment.omFileHasWritePermission(file));
  fs::permissions(file, fs::perms::all & ~fs::perms::owner_write & ~fs::perms::group_write &
                            ~fs::perms::others_write);
  EXPECT_FALSE(environment.omFileHasWritePermission(file));
  EXPECT_FALSE(environment.omFileHasWritePermission(directory.file("absent")));
  environment.removeFile(file);
  EXPECT_FALSE(environment.omFileExist(file));
}

TEST(Environment, aFileIsMovedOnlyToAFreeName) {
  const TempDirectory directory;
  const std::string from = directory.write("from", "bytes");
  const std::string taken = directory.write("taken", "other");
  Environment environment("");
  EXPECT_FALSE(environment.moveFile(from, taken));
  EXPECT_NE(environment.omGetErrorCodeString(), "");
  EXPECT_TRUE(environment.moveFile(from, directory.file("new/deep/to")));
  EXPECT_EQ(directory.read("new/deep/to"), "bytes");
  EXPECT_EQ(directory.read("taken"), "other");
  EXPECT_FALSE(environment.moveFile(from, directory.file("again")));
}

TEST(Environment, aDirectoryOfOnesOwnMayBeThereAlready) {
  const TempDirectory directory;
  Environment environment("");
  const std::string folder = directory.file("new");
  EXPECT_TRUE(environment.createDirectory(folder));
  EXPECT_TRUE(environment.createDirectory(folder));
  EXPECT_TRUE(belongsToUser(folder));
  directory.write("new/inside", "x");
  EXPECT_TRUE(environment.omFileExistsAndNonEmpty(directory.file("new/inside")));
  EXPECT_FALSE(environment.omFileExistsAndNonEmpty(folder));
  for (const std::string& wrong :
       {directory.write("f", ""), directory.file("absent/deep"), folder + std::string("\0x", 2)}) {
    EXPECT_FALSE(environment.createDirectory(wrong)) << wrong;
    EXPECT_FALSE(environment.omFileExistsAndNonEmpty(wrong)) << wrong;
    EXPECT_NE(environment.omGetErrorCodeString(), "") << wrong;
  }
}

TEST(Environment, aNameWithANulByteNamesNothing) {
  const TempDirectory directory;
  const std::string file = directory.write("f", "");
  const std::string cut = file + std::string("\0x", 2);
  Environment environment("");
  bool exists = true;
  EXPECT_FALSE(environment.omFileExist(cut));
  EXPECT_FALSE(environment.isDirectory(cut, exists));
  EXPECT_FALSE(exists);
  EXPECT_FALSE(environment.setCurrentDirectory(std::string("/\0", 2)));
  environment.removeFile(cut);
  EXPECT_TRUE(environment.omFileExist(file));
}

TEST(Environment, directoriesGetTheirAbsoluteNames) {
  const TempDirectory directory;
  const std::string before = std::filesystem::current_path().string();
  std::filesystem::create_directories(directory.file("real/deep"));
  Environment environment("");
  ASSERT_TRUE(environment.setCurrentDirectory(directory.path()));
  std::string error;
  EXPECT_EQ(environment.omGetFullPathOfDirectory("", error), directory.path());
  EXPECT_EQ(environment.omGetFullPathOfDirectory("./real/", error), directory.file("real"));
  EXPECT_EQ(environment.omGetFullPathOfDirectory("real/deep/..", error), directory.file("real"));
  EXPECT_EQ(error, "");
  EXPECT_EQ(environment.omGetFullPathOfDirectory("absent", error), "");
  EXPECT_THAT(error, HasSubstr("'absent'"));
  EXPECT_FALSE(environment.omGetErrorCodeString().empty());
  EXPECT_FALSE(environment.setCurrentDirectory(directory.file("absent")));
  ASSERT_TRUE(environment.setCurrentDirectory(before));
}

TEST(Environment, timeDateAndUserAreForPeople) {
  Environment environment("");
  EXPECT_THAT(environment.omGetCurrentTime(), MatchesRegex("..:..:.."));
  EXPECT_THAT(environment.omGetCurrentDate(), MatchesRegex("....-..-.."));
  EXPECT_NE(environment.omGetCurrentUser(), "");
}

}  // namespace
}  // namespace veldra::host
