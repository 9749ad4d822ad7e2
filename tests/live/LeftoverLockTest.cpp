// The lock that a killed tool has left in the archive goes with the next command, also while the
// same tool is at work for somebody else.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/live/Sandbox.h"

namespace veldra::live {
namespace {

struct LockingTool {
  const char* pack;
  /// Makes an archive of its own and a file in "other" that has been changed.
  const char* elsewhere;
  /// A command there that does not end by itself, as its comment never comes.
  const char* waiting;
  /// What a killed process leaves beside the archive file of Part.puml.
  const char* leave;

  friend std::ostream& operator<<(std::ostream& out, const LockingTool& tool) {
    return out << tool.pack;
  }
};

constexpr LockingTool LockingTools[] = {
    {"RCS", "ci -q -u -t-text -mfirst Part.puml </dev/null; co -q -l Part.puml; echo b >Part.puml",
     "sleep 60 | ci -q -u Part.puml", ": >archive/RCS/,Part.puml,"},
    {"CVS",
     "cvs -Q -d \"$PWD/root\" init; mkdir root/m; cvs -Q -d \"$PWD/root\" checkout -d . m; "
     "cvs -Q add Part.puml; cvs -Q commit -m first; echo b >Part.puml",
     "sleep 60 | cvs -Q commit -F /dev/stdin",
     "mkdir \"$(dirname \"$(find archive -name 'Part.puml,v')\")/#cvs.lock\""}};

class LeftoverLockTest : public testing::TestWithParam<LockingTool> {};

TEST_P(LeftoverLockTest, GoesThoughTheToolIsAtWorkElsewhere) {
  const LockingTool& tool = GetParam();
  Sandbox sandbox;
  sandbox.write("model/Part.puml", "@startuml\n@enduml\n");
  sandbox.write("other/Part.puml", "a\n");
  const auto cm = [&sandbox](std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"-p", "model"});
    return sandbox.cm(arguments);
  };
  ASSERT_EQ(sandbox.cm({"init", "model", "--tool", tool.pack, "--archive", "archive"}).code, 0);
  ASSERT_EQ(cm({"add", "--all", "-m", "all"}).code, 0);
  ASSERT_EQ(cm({"checkout", "Part.puml"}).code, 0);
  ASSERT_EQ(sandbox.shell("cd other; " + std::string(tool.elsewhere)).code, 0);
  sandbox.shell("cd other; setsid sh -c '" + std::string(tool.waiting) +
                "' >/dev/null 2>&1 & echo $! >busy; sleep 0.5");
  ASSERT_EQ(sandbox.shell(tool.leave).code, 0);

  sandbox.write("model/Part.puml", "@startuml\n' changed\n@enduml\n");
  const Ended ended = cm({"-v", "checkin", "-m", "changed", "Part.puml"});
  EXPECT_EQ(ended.code, 0) << ended.err;
  EXPECT_THAT(ended.out + ended.err, testing::HasSubstr("A former command was killed"));
  EXPECT_EQ(sandbox.shell("kill -TERM -$(cat other/busy)").code, 0)
      << "it was to be at work all the time";
}

INSTANTIATE_TEST_SUITE_P(Tools, LeftoverLockTest, testing::ValuesIn(LockingTools),
                         [](const auto& info) { return std::string(info.param.pack); });

}  // namespace
}  // namespace veldra::live
