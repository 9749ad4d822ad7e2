#include "host/platform/Environment.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/host/platform/TempDirectory.h"

namespace veldra::host {
namespace {

using testing::HasSubstr;
using testing::MatchesRegex;

/// Sets a variable for one test and puts it back.
class Variable {
 public:
  Variable(const char* name, const std::string& value) : m_name(name) {
    if (const char* old = ::getenv(name)) m_old = old;
    ::setenv(name, value.c_str(), 1);
  }
  ~Variable() { m_old ? ::setenv(m_name, m_old->c_str(), 1) : ::unsetenv(m_name); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const char* m_name;
  std::optional<std::string> m_old;
};

TEST(Environment, aVariableWinsOverTheSettingInTheGeneralSectionOnly) {
  Environment environment("", [](const std::string& section, const std::string& name) {
    return name == "Known" ? std::optional(section + "/" + name) : std::nullopt;
  });
  std::string value;
  EXPECT_EQ(environment.omGetEnvVar("General", "Known", value, "d"), 1);
  EXPECT_EQ(value, "General/Known");
  EXPECT_EQ(environment.omGetEnvVar("General", "Unknown", value, "d"), 0);
  EXPECT_EQ(value, "d");
  const Variable variable("VELDRA_KNOWN", "");
  EXPECT_EQ(environment.omGetEnvVar("General", "Known", value, "d"), 1);
  EXPECT_EQ(value, "");
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
  EXPECT_THAT(findInstallationRoot(), testing::EndsWith("/share/veldra-cm"));
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
  const std::pair<std::string, std::string> rows[] = {{directory.path() + "//", directory.path()},
                                                      {"relative", "/tmp"},
                                                      {directory.file("absent"), "/tmp"},
                                                      {"/", "/"},
                                                      {"", "/tmp"}};
  for (const auto& [wanted, expected] : rows) {
    const Variable variable("TMPDIR", wanted);
    EXPECT_EQ(environment.omGetTempDir(), expected) << wanted;
  }
}

TEST(Environment, aTemporaryFileHoldsTheseBytesAndIsPrivate) {
  const TempDirectory directory;
  const Variable variable("TMPDIR", directory.path());
  Environment environment("");
  const std::string content("a\0\r\n\xff", 5);
  const std::string name = environment.createTempFile(content);
  EXPECT_NE(environment.createTempFile(content), name);
  const std::string base = name.substr(directory.path().size() + 1);
  EXPECT_THAT(base, MatchesRegex("veldra-cm-" + std::to_string(getpid()) + "-......"));
  EXPECT_EQ(directory.read(base), content);
  struct stat status {};
  ASSERT_EQ(::stat(name.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
  environment.removeFile(name);
  EXPECT_FALSE(environment.omFileExist(name));
}

TEST(Environment, writePermissionIsTheOwnersBitEvenForRoot) {
  const TempDirectory directory;
  const std::string file = directory.write("f", "");
  Environment environment("");
  ::chmod(file.c_str(), 0466);
  EXPECT_FALSE(environment.omFileHasWritePermission(file));
  ::chmod(file.c_str(), 0200);
  EXPECT_TRUE(environment.omFileHasWritePermission(file));
  EXPECT_FALSE(environment.omFileHasWritePermission(directory.file("absent")));
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
  const std::string before = std::filesystem::current_path();
  std::filesystem::create_directories(directory.file("real/deep"));
  std::filesystem::create_directory_symlink(directory.file("real/deep"), directory.file("link"));
  Environment environment("");
  ASSERT_TRUE(environment.setCurrentDirectory(directory.path()));
  std::string error;
  EXPECT_EQ(environment.omGetFullPathOfDirectory("", error), directory.path());
  EXPECT_EQ(environment.omGetFullPathOfDirectory("./link/", error), directory.file("link"));
  EXPECT_EQ(environment.omGetFullPathOfDirectory("link/..", error), directory.file("real"));
  EXPECT_EQ(error, "");
  EXPECT_EQ(environment.omGetFullPathOfDirectory("absent", error), "");
  EXPECT_THAT(error, HasSubstr("'absent'"));
  EXPECT_FALSE(environment.omGetErrorCodeString().empty());
  ASSERT_TRUE(environment.setCurrentDirectory(before));
}

TEST(Environment, aCurrentDirectoryThatIsGoneIsNamedAsTheReason) {
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

TEST(Environment, timeDateAndUserAreForPeople) {
  Environment environment("");
  EXPECT_THAT(environment.omGetCurrentTime(), MatchesRegex("[0-2][0-9]:[0-5][0-9]:[0-6][0-9]"));
  EXPECT_THAT(environment.omGetCurrentDate(), MatchesRegex("[0-9]{4}-[01][0-9]-[0-3][0-9]"));
  EXPECT_NE(environment.omGetCurrentUser(), "");
}

}  // namespace
}  // namespace veldra::host
