// What real tools say about the failures that we know, and what the user is advised to do.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/live/Tool.h"

namespace veldra::live {
namespace {

using testing::HasSubstr;
using testing::Not;

class FailureAdviceTest : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    if (!isInstalled(makeTool(GetParam(), m_sandbox)->traits().program)) GTEST_SKIP() << GetParam() << " is not installed";
    m_sandbox.become("alice");
    m_sandbox.copySample("model");
    ASSERT_EQ(m_sandbox
                  .cm({"init", "model", "--name", "Machine", "--tool", GetParam(), "--archive",
                       "archive"})
                  .code,
              0);
    ASSERT_EQ(cm({"add", m_unit, m_other, "Machine.vdy"}).code, 0);
  }

  Ended cm(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"-p", m_project});
    return m_sandbox.cm(arguments);
  }

  /// The command fails with advice that has these words, and tells everything once.
  void expectAdvice(const std::vector<std::string>& arguments, const char* words) {
    const Ended ended = cm(arguments);
    EXPECT_NE(ended.code, 0) << ended.out;
    EXPECT_THAT(ended.err, HasSubstr("advice:  ")) << arguments.front();
    EXPECT_THAT(ended.err, HasSubstr(words)) << arguments.front();
    EXPECT_THAT(ended.err, HasSubstr("command: ")) << arguments.front();
    EXPECT_EQ(ended.err.find("advice:"), ended.err.rfind("advice:")) << ended.err;
  }

  const std::string m_unit = "Brewing/Grinder.vcmp";
  const std::string m_other = "Milk/Milk.vpkg";
  std::string m_project = "model";
  Sandbox m_sandbox;
  std::unique_ptr<Tool> m_tool = makeTool(GetParam(), m_sandbox);
};

TEST_P(FailureAdviceTest, FailuresOfTheDailyWork) {
  expectAdvice({"history", "Product/Product.vpkg"}, "veldra-cm add");
  expectAdvice({"fetch", m_unit, "-l", std::string(GetParam()) == "RCS" ? "9.9" : "99"},
               "veldra-cm history");
  m_tool->makeWorkingCopy(m_tool->archive(), "second");
  ASSERT_EQ(cm({"checkout", m_unit}).code, 0);
  m_sandbox.become("bob");
  m_project = "second";
  expectAdvice({"checkout", m_unit}, "held by alice");
}

TEST_P(FailureAdviceTest, FailuresOfTheSurroundings) {
  m_sandbox.set("PATH", m_sandbox.path("bin"));
  std::filesystem::create_directory(m_sandbox.path("bin"));
  for (const char* program : {"sh", "env", "tr", "cat"}) {
    std::filesystem::create_symlink(std::string("/usr/bin/") + program,
                                    m_sandbox.path(std::string("bin/") + program));
  }
  expectAdvice({"checkin", m_unit}, "veldra-cm doctor");
}

TEST_P(FailureAdviceTest, AnArchiveThatIsGoneOrAFolderThatIsNotConnected) {
  std::filesystem::rename(m_sandbox.path("archive"), m_sandbox.path("away"));
  expectAdvice({"ls"},
               std::string(GetParam()) == "RCS" ? "veldra-cm connect" : "archive's address");
  if (std::string(GetParam()) != "Subversion") return;
  std::filesystem::remove_all(m_sandbox.path("model/.svn"));
  expectAdvice({"lock", m_unit}, "veldra-cm connect");
}

TEST_P(FailureAdviceTest, ANewerRevisionInTheArchiveMeansFetchFirst) {
  if (std::string(GetParam()) != "Subversion") GTEST_SKIP() << "RCS locks before any change";
  m_tool->makeWorkingCopy(m_tool->archive(), "second");
  m_sandbox.shell("cd second && chmod u+w " + m_unit + " && echo >>" + m_unit +
                  " && svn commit -q -m other");
  m_sandbox.shell("cd model && chmod u+w " + m_unit + " && echo '//' >>" + m_unit);
  expectAdvice({"checkin", m_unit, "-m", "mine"}, "veldra-cm fetch");
}

INSTANTIATE_TEST_SUITE_P(Packs, FailureAdviceTest, testing::Values("Subversion", "RCS"),
                         [](const auto& param) { return std::string(param.param); });

}  // namespace
}  // namespace veldra::live
