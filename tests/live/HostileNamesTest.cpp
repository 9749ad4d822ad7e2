// Files whose names a command line can hardly carry, and some that it cannot.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/live/Tool.h"

namespace veldra::live {
namespace {

using testing::HasSubstr;

const std::vector<std::string> Carried = {"two blanks  in it.txt",
                                          "it's.txt",
                                          "a&b;c|d.txt",
                                          "at@sign@12.txt",
                                          "100%25.txt",
                                          "~home#1.txt",
                                          "-m.txt",
                                          "--force.txt",
                                          ":(glob)*.txt",
                                          "set:all().txt",
                                          "(paren) [x].txt",
                                          "$5 {a}.txt",
                                          "back`tick`.txt",
                                          "Crème €.txt",
                                          std::string(230, 'l') + ".txt"};

const std::vector<std::string> NotCarried = {"dou\"ble.txt",  "out>put.txt", "$log.txt",
                                             "line\nend.txt", "(a?b).txt",   "back\\slash.txt"};

class HostileNamesTest : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    m_sandbox.become("alice");
    if (!isInstalled(m_tool->traits().program)) GTEST_SKIP() << GetParam() << " is not installed";
  }
  Sandbox m_sandbox;
  std::unique_ptr<Tool> m_tool = makeTool(GetParam(), m_sandbox);
};

TEST_P(HostileNamesTest, AreCarriedOrRefusedAndNothingElseSuffers) {
  for (const std::string& name : Carried) m_sandbox.write("model/sub dir/" + name, name);
  for (const std::string& name : NotCarried) m_sandbox.write("model/" + name, name);
  ASSERT_EQ(m_sandbox.cm({"init", "model", "--tool", GetParam(), "--archive", "archive"}).code, 0);

  const Ended added = m_sandbox.cm({"-p", "model", "--json", "add", "--all", "-m", "all"});
  EXPECT_EQ(added.code, 1);
  std::set<std::string> expected = {"model.vdy"};
  for (const std::string& name : Carried) expected.insert("sub dir/" + name);
  EXPECT_EQ(m_tool->files(), expected);

  const auto document = nlohmann::json::parse(added.out);
  std::set<std::string> refused;
  for (const auto& unit : document["units"]) {
    const bool isRefused = unit["result"] == "refused";
    if (isRefused) refused.insert(unit["path"].get<std::string>());
    EXPECT_TRUE(isRefused || unit["result"] == "done") << unit;
    EXPECT_EQ(unit["message"].get<std::string>().empty(), !isRefused) << unit;
  }
  EXPECT_EQ(refused, std::set<std::string>(NotCarried.begin(), NotCarried.end()));

  const Ended changed = m_sandbox.cm({"-p", "model", "checkout", "--", "sub dir/--force.txt",
                                      "model/sub dir/at@sign@12.txt", "(a?b).txt"});
  EXPECT_EQ(changed.code, 1);
  EXPECT_THAT(changed.err, HasSubstr("(a?b).txt"));
  EXPECT_TRUE(m_sandbox.isWritable("model/sub dir/--force.txt"));
  EXPECT_TRUE(m_sandbox.isWritable("model/sub dir/at@sign@12.txt"));
  const Ended listed = m_sandbox.cm({"-p", "model", "ls"});
  for (const std::string& name : Carried) EXPECT_THAT(listed.out, HasSubstr("sub dir/" + name));
}

INSTANTIATE_TEST_SUITE_P(Packs, HostileNamesTest,
                         testing::Values("Subversion", "RCS", "CVS", "Git", "Mercurial"),
                         [](const auto& param) { return std::string(param.param); });

TEST(HostileBytesTest, NamesThatAreNoUtf8) {
  if (!isInstalled("rlog")) GTEST_SKIP() << "RCS is not installed";
  Sandbox sandbox;
  sandbox.write("model/caf\xE9.txt", "latin");
  ASSERT_EQ(sandbox.cm({"init", "model", "--tool", "rcs", "--archive", "archive"}).code, 0);
  const Ended added = sandbox.cm({"-p", "model", "--json", "add", "caf\xE9.txt"});
  EXPECT_EQ(added.code, 0) << added.err;
  EXPECT_EQ(nlohmann::json::parse(added.out)["units"][0]["path"], "caf\\xe9.txt");
  EXPECT_TRUE(makeTool("RCS", sandbox)->files().contains("caf\xE9.txt"));
}

}  // namespace
}  // namespace veldra::live
