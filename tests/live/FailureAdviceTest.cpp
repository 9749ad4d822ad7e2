// What real tools say about the failures that we know, and what the user is advised to do.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <utility>

#include "tests/live/PackTest.h"
#include "tests/live/Tool.h"

namespace veldra::live {
namespace {

using testing::HasSubstr;

class FailureAdviceTest : public PackTest {
 protected:
  void SetUp() override {
    PackTest::SetUp();
    if (!isReady()) return;
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
  std::unique_ptr<Tool> m_tool = makeTool(GetParam(), m_sandbox);
};

TEST_P(FailureAdviceTest, FailuresOfTheDailyWork) {
  const std::string strangers[] = {"Product/Product.vpkg", "Brewing/Drip Tray.vcmp"};
  for (const std::string& stranger : strangers) {
    for (const char* command : {"history", "fetch", "checkout", "checkin"}) {
      expectAdvice({command, stranger}, "veldra-cm add");
    }
    EXPECT_EQ(cm({"add", stranger}).code, 0) << stranger << ", nothing of all that is in its way";
  }
  expectAdvice({"fetch", m_unit, "-l", std::string(GetParam()) == "RCS" ? "9.9" : "99"},
               "veldra-cm history");
  if (m_tool->traits().noLocks != nullptr) return;
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

TEST_P(FailureAdviceTest, AnArchiveThatIsGone) {
  ASSERT_EQ(cm({"checkout", m_unit, m_other}).code, 0);
  const std::string mine = m_sandbox.read("model/" + m_unit) + "\n";
  m_sandbox.write("model/" + m_unit, mine);
  m_sandbox.write("model/" + m_other, m_sandbox.read("model/" + m_other) + "\n");
  std::filesystem::rename(m_sandbox.path("archive"), m_sandbox.path("away"));
  expectAdvice({"ls"}, "archive's address");
  for (const std::vector<std::string>& command :
       {std::vector<std::string>{"checkin", m_unit, m_other, "-m", "lost"},
        {"add", "Product/Product.vpkg", "Control/Control.vpkg"},
        {"fetch", m_unit, m_other}}) {
    const Ended ended = cm(command);
    EXPECT_EQ(ended.code, 3) << command.front();
    EXPECT_EQ(ended.out, "") << command.front();
    EXPECT_EQ(m_sandbox.read("model/" + m_unit), mine) << command.front();
    EXPECT_TRUE(m_sandbox.isWritable("model/" + m_unit)) << command.front();
  }
  std::filesystem::rename(m_sandbox.path("away"), m_sandbox.path("archive"));
  EXPECT_EQ(cm({"checkin", m_unit, m_other, "-m", "found"}).code, 0);
  EXPECT_EQ(m_tool->newestText(m_unit), m_sandbox.read("model/" + m_unit));
}

TEST_P(FailureAdviceTest, AFolderThatIsNotConnected) {
  if (std::string(GetParam()) == "RCS") GTEST_SKIP() << "RCS needs no connection";
  m_sandbox.shell(
      "find model -type d \\( -name .svn -o -name .git -o -name .hg -o -name CVS \\) "
      "-prune -exec rm -rf {} +");
  for (const char* command : {"lock", "checkin", "history"}) {
    expectAdvice({command, m_unit}, "veldra-cm connect");
  }
}

TEST_P(FailureAdviceTest, AnotherArchiveIsRefusedAndTheFormerStays) {
  const auto archive = [this] { return cm({"property", "get", "Archive"}).out; };
  const std::string former = archive();
  const std::vector<std::string> connect = {"connect", "--archive", m_sandbox.path("other")};
  const Ended readOnly = cm(connect);
  EXPECT_EQ(readOnly.code, 3);
  EXPECT_THAT(readOnly.err, HasSubstr("Machine.vdy is read-only"));
  ASSERT_EQ(cm({"checkout", "Machine.vdy"}).code, 0);
  const Ended refused = cm(connect);
  EXPECT_EQ(refused.code, 3);
  EXPECT_THAT(refused.err, HasSubstr("other"));
  EXPECT_EQ(archive(), former);
  EXPECT_EQ(cm({"ls"}).code, 0);
}

TEST_P(FailureAdviceTest, WhatTheArchiveSaysAgainstACheckInIsRead) {
  const std::string hook = m_sandbox.path("hook");
  const std::map<std::string, std::pair<std::string, std::string>> hooks = {
      {"Subversion", {"hooks/pre-commit", "#!/bin/sh\nexec sh '" + hook + "'\n"}},
      {"Git", {"hooks/pre-receive", "#!/bin/sh\nexec sh '" + hook + "'\n"}},
      {"Mercurial", {".hg/hgrc", "[hooks]\npretxnchangegroup.x = sh '" + hook + "'\n"}},
      {"CVS", {"CVSROOT/commitinfo", "ALL sh " + hook + " %r/%p %s\n"}}};
  const auto at = hooks.find(GetParam());
  if (at == hooks.end()) GTEST_SKIP() << GetParam() << " has no such thing";
  m_sandbox.write("hook", "echo 'not on Fridays' >&2\nexit 1\n");
  ASSERT_EQ(cm({"checkout", m_unit, m_other}).code, 0);
  for (const std::string& unit : {m_unit, m_other}) {
    m_sandbox.write("model/" + unit, m_sandbox.read("model/" + unit) + "\n");
  }
  m_sandbox.shell("chmod -f u+w archive/" + at->second.first);
  m_sandbox.write("archive/" + at->second.first, at->second.second);
  m_sandbox.shell("chmod +x archive/" + at->second.first);
  const Ended refused = cm({"checkin", m_unit, m_other, "-m", "today"});
  EXPECT_EQ(refused.code, 3);
  EXPECT_EQ(refused.out, "");
  EXPECT_THAT(refused.err, HasSubstr("not on Fridays"));
  EXPECT_THAT(refused.err, HasSubstr("Ask the administrator of the archive"));
  EXPECT_TRUE(m_sandbox.isWritable("model/" + m_unit));
}

TEST_P(FailureAdviceTest, ANewerRevisionInTheArchiveMeansFetchFirst) {
  if (std::string(GetParam()) == "RCS") GTEST_SKIP() << "RCS locks before any change";
  m_tool->makeWorkingCopy(m_tool->archive(), "second");
  m_sandbox.become("bob");
  m_project = "second";
  ASSERT_EQ(cm({"connect"}).code, 0);
  ASSERT_EQ(cm({"checkout", m_unit}).code, 0);
  m_sandbox.write("second/" + m_unit, m_sandbox.read("second/" + m_unit) + "\n");
  ASSERT_EQ(cm({"checkin", m_unit, "-m", "other"}).code, 0);
  m_sandbox.become("alice");
  m_project = "model";
  m_sandbox.shell("chmod u+w model/" + m_unit + " && echo '//' >>model/" + m_unit);
  expectAdvice({"checkin", m_unit, "-m", "mine"}, "veldra-cm fetch");
}

INSTANTIATE_TEST_SUITE_P(Packs, FailureAdviceTest,
                         testing::Values("Subversion", "RCS", "CVS", "Git", "Mercurial"),
                         [](const auto& param) { return std::string(param.param); });

}  // namespace
}  // namespace veldra::live
