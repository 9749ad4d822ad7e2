// Commands that are interrupted or killed in the middle of a hundred units: nothing is half done,
// the status tells where each unit stands, and the same command again finishes the job.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <regex>

#include "tests/live/Tool.h"

namespace veldra::live {
namespace {

using nlohmann::json;

/// A moment in the life of a command: the tool's program runs with this word among its arguments,
/// and the condition, a command of the shell, holds. In there %n is a number of
/// units, and %w the word that the blow stands for in their new text.
struct Moment {
  const char* program;
  const char* word;
  const char* condition;
};

struct InterruptedTool {
  const char* pack;
  bool isUnitByUnit = false;  ///< Its check-out.
  Moment checkOut;
  Moment checkIn;
  /// Something that the tool calls while it commits: a file, and what stands in there before the
  /// command.
  const char* hook = nullptr;
  const char* beforeHook = "";
  /// What the tool leaves when it is killed at a moment that a test does not hit.
  const char* leftover = nullptr;
};

std::ostream& operator<<(std::ostream& out, const InterruptedTool& tool) {
  return out << tool.pack;
}

/// Who is ended, by which signal, at how many units.
struct Blow {
  const char* name;
  const char* command;
  bool isFelt;  ///< By what runs then, which ends, too.
  int units;
};

constexpr char ToolKilled[] = "kill -KILL $(cat io/real)";
constexpr char ProgramKilled[] = "kill -KILL $(cat io/cm)";
/// The pack's helper, with everything that it has started.
constexpr char HelperKilled[] = "kill -KILL -- -$(cat io/group)";
constexpr char BothKilled[] = "kill -KILL $(cat io/cm) $(cat io/real)";

/// Stands in for the tool's program; goes on after what says when the blow falls, and what it is.
constexpr char TrapScript[] = R"sh(
PATH=${PATH#*:}
case " $* " in
  *" $word "*) [ -e "$root/armed" ] || exec "$program" "$@" ;;
  *) exec "$program" "$@" ;;
esac
cut -d ' ' -f 5 /proc/$$/stat >"$root/io/group"
if [ "$program" = chmod ]; then
  rm "$root/armed"
  blow
  exec "$program" "$@"
fi
exec 3<&0
rm -f "$root/io/ended"
{
  sh -c 'echo $$ >"$0"; exec "$@"' "$root/io/real" "$program" "$@" <&3
  echo $? >"$root/io/ended"
} &
until holds || [ -s "$root/io/ended" ]; do sleep 0.01; done
if holds && rm "$root/armed" 2>/dev/null; then
  blow
  : >"$root/struck"
fi
wait
exit "$(cat "$root/io/ended")"
)sh";

class InterruptionTest : public testing::TestWithParam<InterruptedTool> {
 protected:
  static constexpr int Count = 100;

  void SetUp() override {
    if (!isInstalled(m_tool->traits().program)) GTEST_SKIP() << GetParam() << " is not installed";
    for (int i = 0; i < Count; ++i) m_sandbox.write("model/" + unit(i), text(i, "as drawn"));
    m_sandbox.become("alice");
    ASSERT_EQ(
        m_sandbox
            .cm({"init", "model", "--name", "M", "--tool", GetParam().pack, "--archive", "archive"})
            .code,
        0);
    ASSERT_EQ(cm({"add", "--all", "-m", "all"}).code, 0);
    m_path = m_sandbox.environment().at("PATH");
  }

  static std::string unit(int i) { return "parts/part-" + std::to_string(i) + ".puml"; }
  static std::string text(int i, const std::string& words) {
    return "@startuml\n' " + words + " " + std::to_string(i) + "\n@enduml\n";
  }

  Ended cm(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"-p", "model"});
    return m_sandbox.cm(arguments);
  }

  void makeExecutable(const std::string& file) {
    std::filesystem::permissions(m_sandbox.path(file), std::filesystem::perms::owner_all);
  }

  /// Puts a program before the tool's own that lets the blow fall at the moment, once.
  void setTrap(const Moment& moment, const Blow& blow) {
    std::string condition = moment.condition;
    condition = std::regex_replace(condition, std::regex("%n"), std::to_string(blow.units));
    condition = std::regex_replace(condition, std::regex("%w"), blow.name);
    const std::string program = std::string("trap/") + moment.program;
    m_sandbox.write(program, "#!/bin/sh\nroot='" + m_sandbox.path() +
                                 "' program=" + moment.program + " word=" + moment.word +
                                 "\nholds() { (cd \"$root\" && " + condition +
                                 "); }\nblow() { (cd \"$root\" && " + blow.command + "); " +
                                 (blow.isFelt ? "sleep 20" : ":") + "; }\n" + TrapScript);
    makeExecutable(program);
    m_sandbox.shell("rm -f inside struck; : >armed");
  }

  /// Where the tool calls somebody in the middle of its work, it is held up there.
  void holdUpInHook() {
    if (GetParam().hook == nullptr) return;
    const std::string former = m_sandbox.read(GetParam().hook);
    m_sandbox.write(GetParam().hook,
                    former + GetParam().beforeHook + "sh '" + m_sandbox.path("wait.sh") + "'\n");
    makeExecutable(GetParam().hook);
    m_sandbox.write("wait.sh", "cd '" + m_sandbox.path() +
                                   "'\n: >inside\nfor patience in $(seq 1000); do\n"
                                   "[ ! -e struck ] || exit 0\nsleep 0.02\ndone\n");
  }

  /// Runs the command into the blow, and waits for whatever it leaves running.
  void runInto(const Moment& moment, const Blow& blow, const std::string& command) {
    setTrap(moment, blow);
    m_sandbox.set("PATH", m_sandbox.path("trap") + ":" + m_path);
    const Ended ended = m_sandbox.shell(
        "\"$CM\" -p model " + command +
        " >io/progress 2>&1 & echo $! >io/cm; wait $!; code=$?\n"
        "until [ -z \"$(cat /proc/[0-9]*/stat 2>/dev/null | awk -v group=\"$(cat io/group)\" '"
        "$5 == group && $3 != \"Z\"')\" ]; do sleep 0.02; done\n: >struck\nexit $code\n");
    m_sandbox.set("PATH", m_path);
    if (GetParam().leftover != nullptr) m_sandbox.write(GetParam().leftover, "");
    EXPECT_FALSE(std::filesystem::exists(m_sandbox.path("armed"))) << "the moment never came";
    EXPECT_EQ(ended.code, blow.isFelt ? 130 : ended.code) << m_sandbox.read("io/progress");
  }

  /// How many units stand where, and that none is empty or half written.
  std::map<std::string, int> states() {
    std::map<std::string, int> counts;
    const Ended ended = cm({"--json", "status", "-u"});
    EXPECT_EQ(ended.code, 0) << ended.err;
    const json document = json::parse(ended.out);
    for (const json& one : document["units"]) {
      if (one["path"] != "M.vdy") ++counts[one["state"].get<std::string>()];
    }
    EXPECT_EQ(counts["checked out"] + counts["checked in"] + counts["left over"], Count);
    for (int i = 0; i < Count; ++i) {
      const std::string bytes = m_sandbox.read("model/" + unit(i));
      const bool isWhole = std::ranges::any_of(
          m_words, [&](const std::string& words) { return bytes == text(i, words); });
      EXPECT_TRUE(isWhole) << unit(i) << bytes;
    }
    return counts;
  }

  /// What killed programs have left there and the next run has not cleaned up. Files of the tools'
  /// own are their business.
  std::string leftInTemp() {
    cm({"status"});
    std::string names;
    for (const auto& entry : std::filesystem::directory_iterator(m_sandbox.path("tmp"))) {
      const std::string name = entry.path().filename().string();
      if (!name.starts_with("svn-") && !name.starts_with("cvs")) names += name + ' ';
    }
    return names;
  }

  Sandbox m_sandbox;
  std::unique_ptr<Tool> m_tool = makeTool(GetParam().pack, m_sandbox);
  std::string m_path;
  std::vector<std::string> m_words = {"as drawn"};  ///< What units may hold.
};

TEST_P(InterruptionTest, ACheckOutIsFinishedByTheNext) {
  // Unit by unit where the tool's own command cannot be met in its middle.
  ASSERT_EQ(cm({"property", "set", "--user", "Subversion.CheckOutBatch", ""}).code, 0);
  constexpr Blow Blows[] = {{"INT", "kill -INT $(cat io/cm)", true, 10},
                            {"TERM", "kill -TERM $(cat io/cm)", true, 20},
                            {"program", ProgramKilled, false, 30},
                            {"tool", ToolKilled, false, 40}};
  for (const Blow& blow : Blows) {
    // A batch that fails is done again unit by unit, which takes long.
    if (blow.command == ToolKilled && !GetParam().isUnitByUnit) continue;
    SCOPED_TRACE(blow.name);
    runInto(GetParam().checkOut, blow, "checkout --all");
    // What has lost only its caller may have come to its end.
    if (states()["checked out"] == Count) cm({"undo", "--all"});
  }
  const Ended again = cm({"checkout", "--all"});
  EXPECT_EQ(again.code, 0) << again.err.substr(0, 2000);
  EXPECT_EQ(states()["checked out"], Count);
  EXPECT_EQ(leftInTemp(), "");
}

TEST_P(InterruptionTest, ACheckInIsFinishedByTheNext) {
  holdUpInHook();
  constexpr Blow Blows[] = {{"INT", "kill -INT $(cat io/cm)", true, 10},
                            {"program", ProgramKilled, false, 20},
                            {"both", BothKilled, false, 30}};
  for (const Blow& blow : Blows) {
    SCOPED_TRACE(blow.name);
    ASSERT_EQ(cm({"checkout", "--all"}).code, 0);
    m_words.push_back(blow.name);
    for (int i = 0; i < Count; ++i) m_sandbox.write("model/" + unit(i), text(i, blow.name));
    runInto(GetParam().checkIn, blow, "checkin --all -m changed");
    states();
    const Ended again = cm({"checkin", "--all", "-m", "changed"});
    EXPECT_EQ(again.code, 0) << again.err.substr(0, 2000);
    EXPECT_EQ(states()["checked in"], Count);
    for (int i = 0; i < Count; i += 7) EXPECT_EQ(m_tool->newestText(unit(i)), text(i, blow.name));
    EXPECT_EQ(m_tool->holder(unit(3)), "");
  }
  EXPECT_EQ(leftInTemp(), "");
}

TEST_P(InterruptionTest, WhatAKilledToolLeavesIsFinishedByTheNext) {
  ASSERT_EQ(cm({"property", "set", "--user", "Subversion.CheckOutBatch", ""}).code, 0);
  constexpr int Few = 6;
  std::string units;
  for (int i = 0; i < Few; ++i) units += ' ' + unit(i);
  constexpr Blow Blows[] = {{"tool", ToolKilled, false, 2}, {"helper", HelperKilled, false, 2}};
  holdUpInHook();
  for (const Blow& blow : Blows) {
    SCOPED_TRACE(blow.name);
    const bool isMet = GetParam().checkOut.program != std::string("chmod");
    if (isMet || blow.command == HelperKilled) {
      runInto(GetParam().checkOut, blow, "checkout" + units);
      states();
    }
    const Ended out = cm({"checkout", "-r", "parts"});
    EXPECT_EQ(out.code, 0) << out.err.substr(0, 2000);
    m_words.push_back(blow.name);
    for (int i = 0; i < Few; ++i) m_sandbox.write("model/" + unit(i), text(i, blow.name));
    runInto(GetParam().checkIn, blow, "checkin -m changed" + units);
    states();
    const Ended in = cm({"checkin", "--all", "-m", "changed"});
    EXPECT_EQ(in.code, 0) << in.err.substr(0, 2000);
    EXPECT_EQ(states()["checked in"], Count);
    for (int i = 0; i < Few; ++i) EXPECT_EQ(m_tool->newestText(unit(i)), text(i, blow.name));
    EXPECT_EQ(m_tool->holder(unit(3)), "");
  }
  EXPECT_EQ(leftInTemp(), "");
}

constexpr char Writable[] = "[ $(find model/parts -type f -perm -u+w | wc -l) -ge %n ]";
constexpr char Inside[] = "[ -e inside ]";
constexpr char ShellHook[] = "#!/bin/sh\n";

const InterruptedTool InterruptedTools[] = {
    {.pack = "Subversion",
     .isUnitByUnit = true,
     .checkOut = {"svn", "lock", Writable},
     .checkIn = {"svn", "commit", Inside},
     .hook = "archive/hooks/pre-commit",
     .beforeHook = ShellHook},
    {.pack = "RCS",
     .isUnitByUnit = true,
     .checkOut = {"co", "-l", Writable},
     .checkIn = {"ci", "-u", "[ $(grep -l \"' %w \" archive/parts/RCS/*,v | wc -l) -ge %n ]"},
     .leftover = "archive/parts/RCS/,part-99.puml,"},
    {.pack = "CVS",
     .checkOut = {"cvs", "edit", Writable},
     .checkIn = {"cvs", "commit",
                 "[ $(grep -l \"' %w \" archive/model/parts/*,v | wc -l) -ge %n ]"}},
    {.pack = "Git",
     .checkOut = {"chmod", "u+w", "true"},
     .checkIn = {"git", "commit", Inside},
     .hook = "model/.git/hooks/pre-commit",
     .beforeHook = ShellHook},
    {.pack = "Mercurial",
     .checkOut = {"chmod", "u+w", "true"},
     .checkIn = {"hg", "commit", Inside},
     .hook = "model/.hg/hgrc",
     .beforeHook = "[hooks]\npretxncommit.wait = "},
};

INSTANTIATE_TEST_SUITE_P(Packs, InterruptionTest, testing::ValuesIn(InterruptedTools),
                         [](const auto& param) { return std::string(param.param.pack); });

TEST(Leftovers, HalfWrittenFilesOfADeadProgramGo) {
  const Sandbox sandbox;
  const std::string dead = "model/parts/.veldra-cm-999999999-0.tmp";
  sandbox.write("model/parts/part.puml", "@startuml\n@enduml\n");
  ASSERT_EQ(sandbox.cm({"init", "model", "--name", "M"}).code, 0);
  sandbox.write(dead, "half");
  sandbox.write("model/.veldra-cm-999999999-abcdef.tmp/it/part.puml", "of a clone");
  sandbox.write("tmp/veldra-cm-999999999-abcdef", "comment");
  sandbox.write("tmp/veldra-cm-1-abcdef", "of a process that lives");
  sandbox.write("tmp/veldra-cm-notes", "the user's own");
  ASSERT_EQ(sandbox.cm({"-p", "model", "status"}).code, 0);
  EXPECT_FALSE(std::filesystem::exists(sandbox.path(dead)));
  EXPECT_EQ(sandbox.files("model").size(), 2U);
  EXPECT_EQ(sandbox.files("tmp").size(), 2U);
}

}  // namespace
}  // namespace veldra::live
