#include "host/platform/FileNames.h"

#include <gmock/gmock.h>

namespace veldra::host {
namespace {

TEST(FileNames, whatWindowsCannotKeepIsRefusedByName) {
  for (const char* path :
       {"con", "C:\\a\\NUL", "dir/aux.txt", "Com1", "lpt9.vcmp", "nul .x", "conin$", "a.", "dir./b",
        "a ", "C:\\dir \\b", "a?b", "a|b", "ab:c", "C:\\x:stream", "a\nb"}) {
    const auto problem = windowsNameProblem(path);
    ASSERT_TRUE(problem) << path;
    EXPECT_THAT(*problem, testing::HasSubstr(std::string("'") + path + "'"));
  }
  for (const char* path :
       {"", ".", "..\\x", "C:\\dir/file.txt", "C:x", "\\\\server\\share\\f", "\\\\?\\C:\\f",
        "console", "com", "com0", "com12", "nulls.txt", ".con", "a b.c", "\xC3\xA4.vpkg"}) {
    EXPECT_EQ(windowsNameProblem(path), std::nullopt) << path;
  }
}

TEST(FileNames, onlyADriveOrAShareMakesAPathComplete) {
  for (const char* path : {"C:\\x", "z:/", "\\\\server\\share", "//server/share", "\\\\?\\C:\\x"})
    EXPECT_TRUE(isAbsoluteOnWindows(path)) << path;
  for (const char* path : {"", "x", "C:", "C:x", "\\x", "/x", "..\\x", "1:\\x", "\\\\"})
    EXPECT_FALSE(isAbsoluteOnWindows(path)) << path;
}

}  // namespace
}  // namespace veldra::host
