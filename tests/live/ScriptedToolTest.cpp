// Tools that misbehave, as a scripted tool does it, and what the exit codes make of it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/live/Sandbox.h"

namespace veldra::live {
namespace {

using testing::HasSubstr;
using testing::Not;

class ScriptedToolTest : public testing::Test {
 protected:
  ScriptedToolTest() {
    m_sandbox.copySample("model");
    EXPECT_EQ(m_sandbox.cm({"init", "model", "--name", "Machine"}).code, 0);
    m_sandbox.set("VELDRA_USER", m_sandbox.path("user.toml"));
  }

  /// The tool gets the file as its argument; `settings` are further lines of its properties.
  void useTool(const std::string& script, const std::string& settings = {}) {
    m_sandbox.write("tool.sh", script);
    useCommand("sh \"" + m_sandbox.path("tool.sh") + "\" \"$UnitPath\"", settings);
  }

  void useCommand(const std::string& command, const std::string& settings = {}) {
    std::string text =
        "[ConfigurationManagement.General]\nCMTool = 'Scripted'\n"
        "[ConfigurationManagement.Scripted]\n";
    for (const char* operation : {"AddMember", "CheckOut", "CheckIn", "Lock", "UnLock", "Fetch",
                                  "History", "ListArchive"}) {
      text += std::string(operation) + " = '" + command + "'\n";
    }
    m_sandbox.write("user.toml", text + settings);
  }

  Ended cm(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"-p", "model"});
    return m_sandbox.cm(arguments);
  }

  const std::string m_one = "Brewing/Grinder.vcmp";
  const std::string m_two = "Milk/Milk.vpkg";
  Sandbox m_sandbox;
};

TEST_F(ScriptedToolTest, EveryWayToFailIsToldOnceWithTheToolsWords) {
  struct Row {
    const char* what;
    const char* script;
    const char* settings;
    const char* words;
  };
  const Row rows[] = {
      {"error output", "echo 'no luck' >&2; exit 1", "", "no luck"},
      {"code alone", "echo 'said on output'; exit 7", "", "said on output"},
      {"a pattern", "echo 'FATAL: broken pipe'", "OperationErrorPattern = '^FATAL'\n",
       "FATAL: broken pipe"},
      {"a signal", "kill -SEGV $$", "", "signal"},
      {"silence", "exit 7", "", "exit code 7"},
      {"no end", "echo begun; sleep 60", "ChildThreadTimeOut = 300\n", "did not answer in time"},
      {"no end, deaf", "trap '' TERM; sleep 60 & sleep 60", "ChildThreadTimeOut = 300\n",
       "did not answer in time"},
  };
  for (const Row& row : rows) {
    useTool(row.script, row.settings);
    for (const std::string command : {"lock", "history"}) {
      SCOPED_TRACE(command + ", " + row.what);
      const Ended ended = cm({command, m_one});
      EXPECT_EQ(ended.code, 3);
      EXPECT_EQ(ended.out, "");
      EXPECT_THAT(ended.err, HasSubstr("failed  " + m_one));
      EXPECT_THAT(ended.err, HasSubstr(row.words));
      EXPECT_THAT(ended.err, HasSubstr("tool.sh"));
      const std::size_t first = ended.err.find(row.words);
      EXPECT_EQ(ended.err.find(row.words, first + 1), std::string::npos) << ended.err;
    }
  }
}

TEST_F(ScriptedToolTest, AMissingToolIsNamed) {
  useCommand("no-such-tool-here \"$UnitPath\"");
  const Ended ended = cm({"checkout", "--force", m_one});
  EXPECT_EQ(ended.code, 3);
  EXPECT_THAT(ended.err, HasSubstr("no-such-tool-here"));
}

TEST_F(ScriptedToolTest, ALackOfTheToolIsToldOnceForAllUnits) {
  for (const auto& [tool, words] :
       {std::pair("", "No CM tool is selected"), std::pair("None", "No CM tool is selected"),
        std::pair("Scipted", "The tool \"Scipted\" has no property")}) {
    const bool isSet = *tool != '\0';
    ASSERT_TRUE(!isSet || cm({"property", "set", "CMTool", tool}).code == 0);
    for (const char* command : {"ls", "refresh", "sync", "lock", "unlock"}) {
      SCOPED_TRACE(std::string(command) + " with " + tool);
      std::vector<std::string> arguments = {command};
      if (std::string(command).ends_with("lock")) arguments.push_back(m_one);
      if (std::string(tool) == "None" && arguments.size() > 1) arguments.push_back(m_two);
      const Ended ended = cm(arguments);
      EXPECT_EQ(ended.code, 3);
      const std::size_t first = ended.err.find(words);
      EXPECT_NE(first, std::string::npos) << ended.err;
      EXPECT_EQ(ended.err.rfind(words), first) << ended.err;
    }
  }
}

TEST_F(ScriptedToolTest, AListingThatCannotBeReadIsNoEmptyArchive) {
  const std::string patterns =
      "MultiRecordDelimiter = '\\n'\nListArchiveItsWorkingFile = '^(.+)'\n"
      "ListArchiveItsVersion = ";
  useCommand("echo a.txt", patterns + "''\n");
  EXPECT_THAT(cm({"ls"}).out, HasSubstr("a.txt"));
  useCommand("echo a.txt", patterns + "'('\n");
  const Ended ended = cm({"ls", "--json"});
  EXPECT_EQ(ended.code, 1);
  EXPECT_THAT(nlohmann::json::parse(ended.out)["message"].get<std::string>(),
              HasSubstr("ListArchiveItsVersion"));
}

TEST_F(ScriptedToolTest, APackageWithoutAFileIsToldFromWhatIsNotThere) {
  useTool("exit 0");
  m_sandbox.write("model/Bare/Whisk.vcmp", m_sandbox.read("model/Brewing/Grinder.vcmp"));
  EXPECT_THAT(cm({"add", "Bare"}).err, HasSubstr("-r"));
  EXPECT_THAT(cm({"add", "Bear"}).err, HasSubstr("no such unit"));
  EXPECT_EQ(cm({"add", "-r", "Bare"}).out, "added  Bare/Whisk.vcmp\n");
}

TEST_F(ScriptedToolTest, SomeFailTheOthersAreDone) {
  useTool("case $1 in *Grinder*) echo no >&2; exit 1;; esac");
  const Ended ended = cm({"lock", m_one, m_two});
  EXPECT_EQ(ended.code, 1);
  EXPECT_EQ(ended.out, "locked  " + m_two + "\n");
  EXPECT_THAT(ended.err, HasSubstr(m_one));
}

TEST_F(ScriptedToolTest, WritableFilesAreOverwrittenOnlyByForce) {
  useTool("echo x >>'" + m_sandbox.path("ran") + "'");
  const Ended declined = cm({"checkout", m_one});
  EXPECT_EQ(declined.code, 3);
  EXPECT_THAT(declined.err, HasSubstr("--force"));
  EXPECT_EQ(m_sandbox.read("ran"), "");
  EXPECT_EQ(cm({"checkout", "--force", m_one, m_two}).code, 0);
  EXPECT_EQ(m_sandbox.read("ran"), "x\nx\n");
}

TEST_F(ScriptedToolTest, APatternThatIsGivenUpLeavesNoListingForWhole) {
  m_sandbox.write("tool.sh", "echo a.txt\nprintf '%060d!b.txt\\n' 0\n");
  useCommand(
      "sh \"" + m_sandbox.path("tool.sh") + "\"",
      "MultiRecordDelimiter = '\\n'\nListArchiveItsWorkingFile = '^((?:(?:0+)+x|[^0!])+)'\n");
  const Ended ended = cm({"ls"});
  EXPECT_EQ(ended.code, 1);
  EXPECT_THAT(ended.out, HasSubstr("a.txt"));
  EXPECT_THAT(ended.err, HasSubstr("0+"));
}

TEST_F(ScriptedToolTest, CommentsAndLabelsAreCheckedBeforeAnythingRuns) {
  useTool("echo x >>'" + m_sandbox.path("ran") + "'",
          "InValidCharactersInRevisionDescription = '%;'\n");
  const Ended comment = cm({"checkin", m_one, "-m", "100%; sure"});
  EXPECT_EQ(comment.code, 2);
  EXPECT_THAT(comment.err, HasSubstr("%;"));
  for (const char* label : {"a\"b", "a>b", "$log", "(a?b)", "a\nb"}) {
    EXPECT_EQ(cm({"lock", m_one, "-l", label}).code, 2) << label;
  }
  EXPECT_EQ(m_sandbox.read("ran"), "");
}

TEST_F(ScriptedToolTest, ADryRunShowsThePlanAndChangesNothing) {
  useTool("echo x >>'" + m_sandbox.path("ran") + "'");
  const auto before = m_sandbox.files("model");
  for (const char* command : {"add", "checkin", "lock", "unlock", "undo", "fetch", "history"}) {
    std::vector<std::string> arguments = {"--json", "--dry-run", command, m_one};
    const Ended ended = cm(arguments);
    EXPECT_EQ(ended.code, 0) << command << ended.err;
    const auto unit = nlohmann::json::parse(ended.out)["units"][0];
    EXPECT_EQ(unit["result"], "planned") << command;
    const nlohmann::json expected = {"sh", m_sandbox.path("tool.sh"),
                                     m_sandbox.path("model/" + m_one)};
    EXPECT_EQ(unit["plan"]["commands"][0], expected) << command;
    EXPECT_EQ(unit["plan"]["file"], m_sandbox.path("model/" + m_one));
    arguments.erase(arguments.begin());
    EXPECT_THAT(cm(arguments).out, HasSubstr("tool.sh")) << command;
  }
  useCommand("tool $logFile");
  EXPECT_EQ(nlohmann::json::parse(cm({"--json", "--dry-run", "checkin", m_one, "-m", "c"})
                                      .out)["units"][0]["plan"]["commands"][0],
            nlohmann::json({"tool", "<comment>"}));
  EXPECT_EQ(cm({"--dry-run", "ls"}).code, 0);
  EXPECT_EQ(m_sandbox.cm({"--dry-run", "init", "fresh"}).code, 0);
  EXPECT_FALSE(std::filesystem::exists(m_sandbox.path("fresh")));
  EXPECT_EQ(m_sandbox.read("ran"), "");
  EXPECT_EQ(m_sandbox.files("model"), before);
  EXPECT_TRUE(m_sandbox.files("tmp").empty());
}

TEST_F(ScriptedToolTest, AnInterruptEndsTheToolAndTheBatch) {
  for (const char* signal : {"INT", "TERM"}) {
    useTool("echo \"$1\" >>'" + m_sandbox.path(signal) + "'; case $1 in *Milk*) sleep 60;; esac");
    const Ended ended = m_sandbox.shell("\"$CM\" -p model lock " + m_one + " " + m_two +
                                        " Product/Product.vpkg & "
                                        "until grep -q Milk " +
                                        signal +
                                        " 2>io/none; do sleep 0.05; done\n"
                                        "kill -" +
                                        signal + " $!; wait $!");
    EXPECT_EQ(ended.code, 130) << ended.err;
    EXPECT_EQ(ended.out, "locked  " + m_one + "\n");
    EXPECT_THAT(ended.err, HasSubstr("cancelled  Product/Product.vpkg"));
    EXPECT_THAT(m_sandbox.read(signal), Not(HasSubstr("Product")));
  }
}

}  // namespace
}  // namespace veldra::live
