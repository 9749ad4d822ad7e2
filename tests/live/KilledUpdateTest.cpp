// Git brings a whole folder up to date at once. When that is killed, the user's changes and the
// modes of the files are as before, and the same command finishes the job.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/live/Tool.h"

namespace veldra::live {
namespace {

struct Kill {
  const char* name;
  const char* hook;       ///< Runs inside of the merge.
  const char* condition;  ///< Of the hook.
  const char* victim;
};

// The folder is new by then, and what it stands for is still the old commit.
constexpr char BeforeTheEnd[] = "[ \"$1\" = prepared ] && grep -q ' HEAD$'";

constexpr Kill Kills[] = {
    {"ToolBeforeTheEnd", "reference-transaction", BeforeTheEnd, "$PPID"},
    {"AllBeforeTheEnd", "reference-transaction", BeforeTheEnd, "0"},
    {"ToolBeforeChangesAreBack", "post-merge", "true", "$PPID"},
    {"AllBeforeChangesAreBack", "post-merge", "true", "0"},
};

class KilledUpdateTest : public testing::TestWithParam<Kill> {
 protected:
  void SetUp() override {
    if (!isInstalled("git")) GTEST_SKIP() << "git is not installed";
    m_sandbox.write("model/Shared.puml", text("top", "bottom"));
    m_sandbox.write("model/Theirs.puml", text("top", "bottom"));
    m_sandbox.write("model/Idle.puml", text("top", "bottom"));
    m_sandbox.become("alice");
    EXPECT_EQ(
        m_sandbox.cm({"init", "model", "--name", "M", "--tool", "Git", "--archive", "archive"})
            .code,
        0);
    EXPECT_EQ(cm({"add", "--all", "-m", "all"}).code, 0);
  }

  static std::string text(const std::string& first, const std::string& last) {
    return "@startuml\n' " + first + "\n' a\n' b\n' c\n' d\n' " + last + "\n@enduml\n";
  }
  Ended cm(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"-p", "model"});
    return m_sandbox.cm(arguments);
  }
  /// Somebody else changes two files and adds one.
  void moveTheArchiveOn() {
    m_sandbox.shell("git clone -q archive other");
    for (const char* file : {"Shared", "Theirs", "New"}) {
      m_sandbox.write("other/" + std::string(file) + ".puml", text("top", "theirs"));
    }
    const Ended ended = m_sandbox.shell(
        "cd other && git add . && git -c user.name=bob -c user.email=b@b commit -q -m b && "
        "git push -q origin HEAD");
    EXPECT_EQ(ended.code, 0) << ended.err;
  }
  void arm(const Kill& kill) {
    const std::string hook = std::string("model/.git/hooks/") + kill.hook;
    m_sandbox.write(hook, "#!/bin/sh\n{ " + std::string(kill.condition) +
                              "; } || exit 0\nrm \"$0\"\nkill -KILL " + kill.victim + "\n");
    m_sandbox.shell("chmod +x " + hook);
  }
  std::string writableFiles() {
    return m_sandbox.shell("cd model && ls -l *.puml | sed -n 's/^-rw.* //p' | tr '\\n' ' '").out;
  }

  Sandbox m_sandbox;
};

TEST_P(KilledUpdateTest, LosesNoChangeAndIsFinishedByTheNext) {
  ASSERT_EQ(cm({"checkout", "Shared.puml", "Idle.puml"}).code, 0);
  m_sandbox.write("model/Shared.puml", text("mine", "bottom"));
  moveTheArchiveOn();
  arm(GetParam());
  EXPECT_EQ(cm({"fetch", "Shared.puml"}).code, 3);
  EXPECT_EQ(m_sandbox.shell("[ -e model/.git/hooks/" + std::string(GetParam().hook) + " ]").code, 1)
      << "the moment never came";

  const Ended again = cm({"fetch", "Shared.puml"});
  EXPECT_EQ(again.code, 0) << again.err;
  EXPECT_EQ(m_sandbox.read("model/Shared.puml"), text("mine", "theirs"));
  EXPECT_EQ(m_sandbox.read("model/Theirs.puml"), text("top", "theirs"));
  EXPECT_EQ(m_sandbox.read("model/New.puml"), text("top", "theirs"));
  EXPECT_EQ(writableFiles(), "Idle.puml Shared.puml ");
  EXPECT_EQ(cm({"checkin", "Shared.puml", "Idle.puml", "-m", "both"}).code, 0);
  EXPECT_EQ(m_sandbox.shell("git -C archive show HEAD:Shared.puml").out, text("mine", "theirs"));
}

/// Nobody was left to tidy up.
class LeftHalfUpdatedTest : public KilledUpdateTest {};

TEST_P(LeftHalfUpdatedTest, WhatTheUserDidSinceIsNotOverwritten) {
  ASSERT_EQ(cm({"checkout", "Shared.puml"}).code, 0);
  m_sandbox.write("model/Shared.puml", text("mine", "bottom"));
  moveTheArchiveOn();
  arm(GetParam());
  cm({"fetch", "Shared.puml"});
  m_sandbox.write("model/Shared.puml", text("since", "theirs"));
  const Ended again = cm({"fetch", "Shared.puml"});
  EXPECT_EQ(again.code, 3);
  EXPECT_THAT(again.err, testing::HasSubstr("git stash pop"));
  EXPECT_EQ(m_sandbox.read("model/Shared.puml"), text("since", "theirs"));
  EXPECT_EQ(m_sandbox.shell("git -C model show stash@{0}:Shared.puml").out, text("mine", "bottom"));
}

INSTANTIATE_TEST_SUITE_P(Git, KilledUpdateTest, testing::ValuesIn(Kills),
                         [](const auto& param) { return std::string(param.param.name); });
INSTANTIATE_TEST_SUITE_P(Git, LeftHalfUpdatedTest, testing::Values(Kills[1], Kills[3]),
                         [](const auto& param) { return std::string(param.param.name); });

}  // namespace
}  // namespace veldra::live
