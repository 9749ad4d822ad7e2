// Nothing is lost: what commands overwrite is kept, and so is the comment of a failed check-in.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/live/PackTest.h"
#include "tests/live/Tool.h"

namespace veldra::live {
namespace {

using testing::HasSubstr;

class KeptTest : public PackTest {
 protected:
  void SetUp() override {
    PackTest::SetUp();
    if (!isReady()) return;
    ASSERT_EQ(cm({"add", m_unit, m_other, "-m", "first"}).code, 0);
    m_archived = m_sandbox.read("model/" + m_unit);
  }

  Ended cm(std::vector<std::string> arguments, const std::string& input = {}) {
    arguments.insert(arguments.begin(), {"-p", "model"});
    return m_sandbox.cm(arguments, input);
  }
  nlohmann::json copies() {
    return nlohmann::json::parse(cm({"kept", "list", "--json"}).out)["copies"];
  }

  const std::string m_unit = "Brewing/Grinder.vcmp";
  const std::string m_other = "Milk/Milk.vpkg";
  std::string m_archived;
};

TEST_P(KeptTest, GivenUpChangesComeBack) {
  ASSERT_EQ(cm({"checkout", m_unit}).code, 0);
  const std::string mine = m_archived + "\n// mine, \x01\xff\n";
  m_sandbox.write("model/" + m_unit, mine);
  ASSERT_EQ(cm({"undo", m_unit}).code, 0);
  ASSERT_EQ(m_sandbox.read("model/" + m_unit), m_archived);

  ASSERT_EQ(copies().size(), 1U);
  EXPECT_EQ(copies()[0]["path"], m_unit);
  EXPECT_EQ(copies()[0]["operation"], "undo check out");
  EXPECT_EQ(copies()[0]["size"], mine.size());
  EXPECT_THAT(cm({"kept", "list", "Brewing::Grinder"}).out, HasSubstr(m_unit));
  EXPECT_TRUE(cm({"kept", "show", m_unit}).out == mine);

  EXPECT_EQ(cm({"kept", "restore", m_unit}).code, 3) << "it is not checked out";
  EXPECT_EQ(cm({"--dry-run", "kept", "restore", m_unit}).code, 3) << "the plan knows that";
  EXPECT_EQ(m_sandbox.read("model/" + m_unit), m_archived);
  ASSERT_EQ(cm({"checkout", m_unit}).code, 0);
  ASSERT_EQ(cm({"kept", "restore", m_unit}).code, 0);
  EXPECT_TRUE(m_sandbox.read("model/" + m_unit) == mine);
  EXPECT_EQ(copies().size(), 2U) << "what was there before is kept as well";
  ASSERT_EQ(cm({"checkin", m_unit, "-m", "again"}).code, 0) << "it is a file like any other";
  EXPECT_EQ(cm({"kept", "restore", "no such copy"}).code, 3);
}

TEST_P(KeptTest, WhatWasChangedInAReadOnlyFileIsNowhereLost) {
  const std::string mine = m_archived + "\n// mine\n";
  for (const char* operation : {"checkout", "lock", "fetch", "undo", "unlock", "sync"}) {
    m_sandbox.shell("chmod u+w 'model/" + m_unit + "'");
    m_sandbox.write("model/" + m_unit, mine);
    m_sandbox.shell("chmod a-w 'model/" + m_unit + "'");
    if (operation == std::string("sync")) {
      cm({"sync", "--take", m_unit});
    } else {
      cm({operation, m_unit});
    }
    const bool isHere = m_sandbox.read("model/" + m_unit) == mine;
    EXPECT_TRUE(isHere || cm({"kept", "show", m_unit}).out == mine) << operation;
    EXPECT_EQ(cm({"undo", m_unit}).code, 0) << operation;
    m_sandbox.shell("rm -rf model/.veldra/kept");
  }
}

TEST_P(KeptTest, NothingIsKeptWhereNothingChanges) {
  ASSERT_EQ(cm({"fetch", m_unit, m_other}).code, 0);
  ASSERT_EQ(cm({"checkout", m_unit}).code, 0);
  ASSERT_EQ(cm({"--dry-run", "undo", m_unit}).code, 0);
  // RCS writes the holder of the lock into the file, so its undo changes something.
  if (GetParam() != std::string("RCS")) {
    ASSERT_EQ(cm({"undo", m_unit}).code, 0);
  }
  EXPECT_EQ(copies().size(), 0U);
  EXPECT_THAT(cm({"kept", "list"}).out, HasSubstr("No copies"));
  for (const auto& [name, state] : m_sandbox.files("model/.veldra")) {
    EXPECT_EQ(name, ".gitignore");
  }
}

TEST_P(KeptTest, WhatAToolLeavesOfADeletedPackageIsKept) {
  ASSERT_EQ(
      cm({"property", "set", "--user", std::string(GetParam()) + ".DeleteDirectory", "true"}).code,
      0);
  m_sandbox.write("model/Milk/never-added.puml", "mine");
  ASSERT_EQ(cm({"delete", "-r", "Milk", "-m", "no milk"}).code, 0);
  EXPECT_FALSE(std::filesystem::exists(m_sandbox.path("model/Milk/never-added.puml")));
  EXPECT_EQ(cm({"kept", "show", "Milk/never-added.puml"}).out, "mine");
}

TEST_P(KeptTest, AFileThatCannotBeKeptIsLeftAlone) {
  ASSERT_EQ(cm({"checkout", m_unit}).code, 0);
  m_sandbox.write("model/" + m_unit, m_archived + "mine");
  m_sandbox.write("model/.veldra", "in the way");
  const Ended refused = cm({"undo", m_unit});
  EXPECT_EQ(refused.code, 3);
  EXPECT_THAT(refused.err, HasSubstr("no copy of it could be kept"));
  EXPECT_EQ(m_sandbox.read("model/" + m_unit), m_archived + "mine");
}

TEST_P(KeptTest, TheCommentOfAFailedCheckInIsOfferedAgain) {
  ASSERT_EQ(cm({"checkout", m_unit}).code, 0);
  m_sandbox.write("model/" + m_unit, m_archived + "\n");
  const std::string comment = "A long story\nin two lines";
  m_sandbox.shell("mv archive away");
  const Ended failed = cm({"checkin", m_unit, "-F", "-"}, comment);
  EXPECT_EQ(failed.code, 3);
  EXPECT_THAT(failed.err, HasSubstr("--last-comment"));
  m_sandbox.shell("mv away archive");

  const Ended offered = cm({"--dry-run", "checkin", m_unit, "--last-comment"});
  EXPECT_EQ(offered.code, 0) << offered.err;
  EXPECT_EQ(cm({"checkin", m_unit, "-m", "x", "--last-comment"}).code, 2);
  EXPECT_EQ(cm({"checkin", m_unit, "--last-comment"}).code, 0);
  EXPECT_THAT(makeTool(GetParam(), m_sandbox)->newestComment(m_unit), HasSubstr(comment));
  EXPECT_EQ(cm({"checkin", m_unit, "--last-comment"}).code, 2) << "it has done its duty";
}

INSTANTIATE_TEST_SUITE_P(Packs, KeptTest,
                         testing::Values("Subversion", "RCS", "CVS", "Git", "Mercurial"),
                         [](const auto& param) { return std::string(param.param); });

}  // namespace
}  // namespace veldra::live
