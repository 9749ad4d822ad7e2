#include "host/platform/AtomicFile.h"

#include <gmock/gmock.h>

#include "host/platform/Program.h"
#include "tests/host/platform/TempDirectory.h"

namespace veldra::host {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

std::string written(const std::string& path, std::string_view bytes) {
  return writeFileAtomically(path, bytes).value_or("");
}

void makeReadOnly(const std::string& file) {
  fs::permissions(file, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
}

TEST(AtomicFile, writesNewFilesAndReplacesOldOnes) {
  const TempDirectory directory;
  const std::string bytes("a\0\r\n\xff", 5);
  EXPECT_EQ(written(directory.file("\xC3\xA4 new"), "first"), "");
  EXPECT_EQ(written(directory.file("\xC3\xA4 new"), bytes), "");
  EXPECT_EQ(*readFile(directory.file("\xC3\xA4 new"), 99), bytes);
  EXPECT_EQ(directory.entries(), 1U);
}

TEST(AtomicFile, aReadOnlyFileIsReplacedOnlyWhenAllowed) {
  const TempDirectory directory;
  const std::string file = directory.write("f", "old");
  makeReadOnly(file);
  EXPECT_THAT(written(file, "new"), HasSubstr("read-only"));
  EXPECT_EQ(directory.read("f"), "old");
  EXPECT_EQ(writeFileAtomically(file, "new", ReadOnlyFile::Replace), std::nullopt);
  EXPECT_EQ(directory.read("f"), "new");
  EXPECT_EQ(fs::status(file).permissions() & fs::perms::owner_write, fs::perms::none);
  EXPECT_EQ(directory.entries(), 1U);
  fs::permissions(file, fs::perms::all);
}

TEST(AtomicFile, refusesWhatIsNoFileAndNamesIt) {
  const TempDirectory directory;
  EXPECT_THAT(written(directory.path(), "x"), HasSubstr("directory"));
  EXPECT_THAT(written(directory.file("no/such/f"), "x"), HasSubstr(directory.file("no/such/f")));
  EXPECT_THAT(written(directory.file(std::string("a\0b", 3)), "x"), HasSubstr("NUL"));
  EXPECT_NE(written("", "x"), "");
  EXPECT_EQ(directory.entries(), 0U);
}

TEST(AtomicFile, theTemporariesOfTheLivingStay) {
  const TempDirectory directory;
  const std::string names[] = {
      ".veldra-cm-" + std::to_string(processNumber()) + "-7.tmp", ".veldra-cm-99x-0.tmp",
      ".veldra-cm-.tmp", ".veldra-cm-99999999999999999999-0.tmp", "veldra-cm-2147483646-0.tmp"};
  for (const std::string& name : names) directory.write(name, "");
  directory.write(".veldra-cm-2147483646-0.tmp", "");
  EXPECT_EQ(removeStaleTemporaries(directory.path()), 1U);
  EXPECT_EQ(directory.entries(), std::size(names));
  EXPECT_EQ(removeStaleTemporaries(directory.file("absent")), 0U);
}

TEST(AtomicFile, whatAKilledComparisonSetAsideComesBackWhereNothingIsInItsWay) {
  const TempDirectory directory;
  for (const char* name : {"lost_temp", "both_temp", "both", "other_temp"}) {
    directory.write(name, name);
  }
  fs::create_directory(directory.file("folder_temp"));
  const std::vector<std::string> names{"lost", "both", "folder", "none"};
  EXPECT_EQ(restoreSetAside(directory.path(), names), 0U) << "somebody may be comparing now";
  EXPECT_EQ(restoreSetAside(directory.path(), names, std::chrono::seconds(-2)), 1U);
  EXPECT_EQ(directory.read("lost"), "lost_temp");
  EXPECT_FALSE(fs::exists(directory.file("lost_temp")));
  EXPECT_EQ(directory.read("both"), "both") << "never replaced";
  EXPECT_EQ(directory.read("both_temp"), "both_temp");
  EXPECT_TRUE(fs::exists(directory.file("other_temp")));
}

TEST(ReadFile, readsEveryByteUpToTheLimit) {
  const TempDirectory directory;
  const std::string bytes = std::string("a\0b\r\n", 5) + std::string(70000, '\xfe');
  const std::string file = directory.write("f", bytes);
  EXPECT_EQ(*readFile(file, bytes.size()), bytes);
  EXPECT_THAT(readFile(file, bytes.size() - 1).error(), HasSubstr("longer than"));
  EXPECT_EQ(*readFile(directory.write("empty", ""), 0), "");
}

TEST(ReadFile, namesWhyAFileCannotBeRead) {
  const TempDirectory directory;
  EXPECT_THAT(readFile(directory.path(), 9).error(), HasSubstr("directory"));
  EXPECT_THAT(readFile(directory.file("absent"), 9).error(), HasSubstr("does not exist"));
  EXPECT_FALSE(readFile(directory.file(std::string("f\0", 2)), 9));
}

}  // namespace
}  // namespace veldra::host
