#include "host/kept/KeptCopies.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "tests/host/platform/TempDirectory.h"

namespace veldra::host {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

class Kept : public testing::Test {
 protected:
  KeptCopies copies(KeptLimits limits = {}) {
    return KeptCopies([this] { return directory.path(); }, limits);
  }
  void keep(KeptCopies& kept, const std::string& name, const std::string& bytes) {
    const std::string file = directory.write(name, bytes);
    std::string reason;
    EXPECT_TRUE(kept.keep(file, "Fetch", reason)) << reason;
    directory.write(name, "other");
    kept.settle(file);
  }
  std::vector<std::string> names() {
    std::vector<std::string> result;
    for (const KeptCopy& copy : copies().list()) result.push_back(copy.path);
    return result;
  }
  TempDirectory directory;
};

TEST_F(Kept, OldestGoUntilTheRestFitsButNoneOfTheSameRun) {
  const KeptLimits limits{.bytes = 25, .days = 30};
  KeptCopies first = copies(limits);
  for (const char* name : {"a", "b", "c"}) keep(first, name, "ten bytes!");
  EXPECT_THAT(names(), ElementsAre("c", "b", "a")) << "one run keeps all that it overwrites";
  KeptCopies next = copies(limits);
  keep(next, "d", "ten bytes!");
  EXPECT_THAT(names(), ElementsAre("d", "c", "b"));
  KeptCopies old = copies({.bytes = 1000, .days = 0});
  keep(old, "e", "x");
  EXPECT_THAT(names(), ElementsAre("e"));
}

TEST_F(Kept, WhatADeadProcessLeftHalfDoneIsCleanedUp) {
  directory.write("a", "1");
  fs::create_directories(directory.file(".veldra/kept/.part-20260101-000000-999999999-1.x"));
  const std::string living =
      ".veldra/kept/.part-20260101-000000-" + std::to_string(getpid()) + "-1.x";
  fs::create_directories(directory.file(living));
  KeptCopies kept = copies();
  keep(kept, "a", "2");
  EXPECT_THAT(names(), ElementsAre("a"));
  EXPECT_FALSE(fs::exists(directory.file(".veldra/kept/.part-20260101-000000-999999999-1.x")));
  EXPECT_TRUE(fs::exists(directory.file(living)));
}

TEST_F(Kept, FilesThatAreNotThereAndFilesElsewhere) {
  KeptCopies kept = copies();
  std::string reason;
  EXPECT_TRUE(kept.keep(directory.file("missing"), "Fetch", reason));
  const TempDirectory elsewhere;
  const std::string file = elsewhere.write("x y", "there");
  EXPECT_TRUE(kept.keep(file, "Fetch", reason));
  ASSERT_EQ(kept.list().size(), 1U);
  EXPECT_EQ(kept.list()[0].path, file);
  elsewhere.write("x y", "changed");
  EXPECT_EQ(kept.restore(kept.list()[0], false), std::nullopt);
  EXPECT_EQ(elsewhere.read("x y"), "there");
}

}  // namespace
}  // namespace veldra::host
