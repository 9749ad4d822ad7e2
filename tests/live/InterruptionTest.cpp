// Commands that are interrupted or killed in the middle of a hundred units: nothing is half done,
// the status tells where each unit stands, and the same command again finishes the job.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/live/Tool.h"

namespace veldra::live {
namespace {

using nlohmann::json;
using testing::HasSubstr;

class InterruptionTest : public testing::Test {
 protected:
  static constexpr int Count = 100;

  void SetUp() override {
    if (!isInstalled("svn")) GTEST_SKIP() << "Subversion is not installed";
    for (int i = 0; i < Count; ++i) m_sandbox.write("model/" + unit(i), text(i, "as drawn"));
    ASSERT_EQ(
        m_sandbox
            .cm({"init", "model", "--name", "M", "--tool", "Subversion", "--archive", "archive"})
            .code,
        0);
    ASSERT_EQ(cm({"add", "--all", "-m", "all"}).code, 0);
  }

  static std::string unit(int i) { return "parts/part-" + std::to_string(i) + ".puml"; }
  static std::string text(int i, const std::string& words) {
    return "@startuml\n' " + words + " " + std::to_string(i) + "\n@enduml\n";
  }

  Ended cm(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"-p", "model"});
    return m_sandbox.cm(arguments);
  }

  /// Runs the command, and ends it by the signal as soon as `enough` units are done.
  void endInTheMiddle(const std::string& command, const std::string& signal, int enough) {
    m_sandbox.shell(": >io/progress; \"$CM\" -p model " + command + " >io/progress 2>&1 & cm=$!\n" +
                    "until [ $(wc -l <io/progress) -ge " + std::to_string(enough) +
                    " ] || ! kill -0 $cm 2>io/none; do sleep 0.02; done\n" + "kill -" + signal +
                    " $cm 2>io/none; wait $cm\n");
  }

  /// How many units stand where, and that none is empty or half written.
  std::map<std::string, int> states(const std::string& words) {
    std::map<std::string, int> counts;
    const json document = json::parse(cm({"--json", "status", "-u"}).out);
    for (const json& one : document["units"]) {
      if (one["path"] != "M.vdy") ++counts[one["state"].get<std::string>()];
    }
    for (int i = 0; i < Count; ++i) {
      const std::string bytes = m_sandbox.read("model/" + unit(i));
      EXPECT_TRUE(bytes == text(i, "as drawn") || bytes == text(i, words)) << unit(i) << bytes;
    }
    return counts;
  }

  /// What killed programs have left there and the next run has not cleaned up. Files of svn's own
  /// are its business.
  std::string leftInTemp() {
    cm({"status"});
    std::string names;
    for (const auto& entry : std::filesystem::directory_iterator(m_sandbox.path("tmp"))) {
      const std::string name = entry.path().filename().string();
      if (!name.starts_with("svn-")) names += name + ' ';
    }
    return names;
  }

  void change(const std::string& words) {
    for (int i = 0; i < Count; ++i) m_sandbox.write("model/" + unit(i), text(i, words));
  }

  Sandbox m_sandbox;
  std::unique_ptr<Tool> m_tool = makeTool("Subversion", m_sandbox);
};

TEST_F(InterruptionTest, ACheckOutThatIsEndedInTheMiddleIsFinishedByTheNext) {
  // Unit by unit, so that there is a middle.
  ASSERT_EQ(cm({"property", "set", "--user", "Subversion.CheckOutBatch", ""}).code, 0);
  int former = 0;
  for (const std::string signal : {"INT", "TERM", "KILL"}) {
    endInTheMiddle("checkout --all", signal, 10);
    std::map<std::string, int> counts = states("");
    EXPECT_GE(counts["checked out"], former + 9) << signal << ", the project is not counted";
    EXPECT_GT(counts["checked in"] + counts["left over"], 0) << signal << " came too late";
    EXPECT_EQ(counts["checked out"] + counts["checked in"] + counts["left over"], Count) << signal;
    former = counts["checked out"];
  }
  const Ended again = cm({"checkout", "--all"});
  EXPECT_EQ(again.code, 0) << again.err;
  EXPECT_EQ(states("")["checked out"], Count);
  EXPECT_EQ(leftInTemp(), "");
}

TEST_F(InterruptionTest, ACheckInWhoseToolOrProgramIsKilledIsFinishedByTheNext) {
  const std::string hook = m_tool->archive() + "/hooks/pre-commit";
  const struct {
    const char* who;
    std::string victims;
  } rows[] = {{"tool", "kill -9 $PPID"},
              {"program", "kill -9 $(cat '" + m_sandbox.path("io/cm") + "') $PPID"}};
  for (const auto& row : rows) {
    ASSERT_EQ(cm({"checkout", "--all"}).code, 0);
    change(row.who);
    m_sandbox.write("archive/hooks/pre-commit",
                    "#!/bin/sh\nif mkdir '" + m_sandbox.path(std::string("once-") + row.who) +
                        "' 2>/dev/null; then\n" + row.victims + "\nfi\n");
    std::filesystem::permissions(hook, std::filesystem::perms::owner_all);
    m_sandbox.shell("\"$CM\" -p model checkin --all -m changed & echo $! >io/cm; wait $!");

    std::map<std::string, int> counts = states(row.who);
    EXPECT_EQ(counts["checked out"] + counts["checked in"] + counts["left over"], Count);
    const Ended again = cm({"checkin", "--all", "-m", "changed"});
    EXPECT_EQ(again.code, 0) << row.who << again.err;
    EXPECT_EQ(states(row.who)["checked in"], Count) << row.who;
    for (int i = 0; i < Count; i += 7) EXPECT_EQ(m_tool->newestText(unit(i)), text(i, row.who));
    EXPECT_EQ(m_tool->holder(unit(3)), "");
  }
  EXPECT_EQ(leftInTemp(), "");
}

TEST_F(InterruptionTest, HalfWrittenFilesOfADeadProgramGo) {
  const std::string dead = "model/parts/.veldra-cm-999999999-0.tmp";
  m_sandbox.write(dead, "half");
  m_sandbox.write("tmp/veldra-cm-999999999-abcdef", "comment");
  m_sandbox.write("tmp/veldra-cm-1-abcdef", "of a process that lives");
  m_sandbox.write("tmp/veldra-cm-notes", "the user's own");
  ASSERT_EQ(cm({"status"}).code, 0);
  EXPECT_FALSE(std::filesystem::exists(m_sandbox.path(dead)));
  EXPECT_EQ(m_sandbox.files("tmp").size(), 2U);
}

}  // namespace
}  // namespace veldra::live
