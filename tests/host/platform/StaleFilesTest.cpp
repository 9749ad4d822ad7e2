#include "host/platform/StaleFiles.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "host/platform/Program.h"
#include "tests/host/platform/FolderTime.h"
#include "tests/host/platform/TempDirectory.h"

namespace veldra::host {
namespace {

namespace fs = std::filesystem;

TEST(StaleFiles, ComparisonsOlderThanAWeekGoAndNothingElse) {
  const TempDirectory directory;
  const struct {
    const char* name;
    int days;
    bool goes;
  } rows[] = {
      {"_tmp2026_325_16_05_23_1", 8, true},   {"_tmp2026_325_16_05_23_2", 8, true},
      {"_tmp2026_331_16_05_23_1", 6, false},  {"_tmp2026_325_16_05_23_3", 8, false},
      {"_tmp2026_325_16_05_2x_1", 8, false},  {"x_tmp2026_325_16_05_23_1", 8, false},
      {"_tmp2026_325_16_05_23_1x", 8, false}, {"_tmp", 8, false},
  };
  for (const auto& row : rows) {
    fs::create_directory(directory.file(row.name));
    directory.write(std::string(row.name) + "/unit.vcmp", "x");
    setFolderAge(directory.file(row.name), row.days);
  }
  const std::string plain = directory.write("_tmp2026_300_16_05_23_1", "no folder");
  fs::last_write_time(plain, fs::file_time_type::clock::now() - std::chrono::hours(24 * 30));
  EXPECT_EQ(removeStaleTempFiles(directory.path()), 2U);
  EXPECT_TRUE(fs::exists(plain));
  for (const auto& row : rows)
    EXPECT_EQ(fs::exists(directory.file(row.name)), !row.goes) << row.name;
}

TEST(StaleFiles, WhatIsOlderThanAWeekBehindALinkStays) {
  const TempDirectory directory;
  const TempDirectory other;
  const std::string file = other.write("precious", "x");
  setFolderAge(other.path(), 30);
  std::error_code refused;
  fs::create_directory_symlink(other.path(), directory.file("_tmp2026_325_16_05_23_1"), refused);
  if (refused) GTEST_SKIP() << "no links here: " << refused.message();
  EXPECT_EQ(removeStaleTempFiles(directory.path()), 0U);
  EXPECT_TRUE(fs::exists(file));
}

TEST(StaleFiles, TheFilesOfTheLivingStay) {
  const TempDirectory directory;
  directory.write("veldra-cm-" + std::to_string(processNumber()) + "-AbCdEf", "");
  directory.write("veldra-cm-2147483646-AbCdEf", "");
  directory.write("veldra-cm-notes-AbCdEf", "");
  EXPECT_EQ(removeStaleTempFiles(directory.path()), 1U);
  EXPECT_EQ(directory.entries(), 2U);
}

}  // namespace
}  // namespace veldra::host
