// What scripts rely on: exit codes, documents, and the fixed forms of the commands.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/live/Sandbox.h"

namespace veldra::live {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using Words = std::vector<std::string>;

class CommandLineTest : public testing::Test {
 protected:
  void makeProject() {
    m_sandbox.copySample("model");
    ASSERT_EQ(m_sandbox.cm({"init", "model", "--name", "Machine"}).code, 0);
  }
  Sandbox m_sandbox;
};

TEST_F(CommandLineTest, ExitCodesAndTheWayOut) {
  makeProject();
  struct Row {
    Words arguments;
    int code;
    const char* words;
  };
  const Row rows[] = {
      {{"--version"}, 0, ""},
      {{"status", "--help"}, 0, ""},
      {{"nonsense"}, 2, "--help"},
      {{"-p", "model", "add"}, 2, "--all"},
      {{"-p", "model", "checkin", "x", "-m", "a", "-F", "b"}, 2, "--file"},
      {{"-p", "model", "property", "get", "a..b"}, 2, "SUBJECT.METACLASS.NAME"},
      {{"-p", "model", "property", "get", "Nonsense"}, 3, "property list"},
      {{"init", "other", "--tool", "nonsense"}, 2, "RCS, Subversion"},
      {{"init", "other", "--archive", "a"}, 2, "--tool"},
      {{"init", "model"}, 3, "Machine.vdy"},
      {{"-p", "nowhere", "status"}, 3, "nowhere"},
      {{"status"}, 3, "init"},
      {{"expand", "--property", "CheckIn"}, 3, "init"},
      {{"init", "model", "--tool", "git", "--archive", "a"}, 3, "-p model connect --tool git"},
      {{"-p", "model", "ls"}, 3, "connect --tool"},
      {{"-p", "model", "add", "--all"}, 3, "connect --tool"},
      {{"-p", "model", "property", "set", "CMTool", "Git"}, 0, ""},
      {{"-p", "model", "lock", "No/Such.vcmp"}, 3, "status"},
      {{"-p", "model", "status", "Milk/Milk.vpkg", "Nope"}, 1, "Nope"},
      {{"-p", "model", "pack", "check", "none.toml"}, 2, "none.toml"},
      {{"-p", "model", "connect"}, 3, "--archive"},
  };
  for (const Row& row : rows) {
    const Ended ended = m_sandbox.cm(row.arguments);
    EXPECT_EQ(ended.code, row.code) << testing::PrintToString(row.arguments) << ended.err;
    EXPECT_THAT(ended.err, HasSubstr(row.words)) << testing::PrintToString(row.arguments);
    EXPECT_EQ(ended.err.empty(), row.code == 0) << testing::PrintToString(row.arguments);
  }
}

TEST_F(CommandLineTest, AProjectIsPutUnderTheControlOfATool) {
  if (!isInstalled("git")) GTEST_SKIP() << "git is not installed";
  makeProject();
  const std::string file = m_sandbox.read("model/Machine.vdy");
  const auto connect = [&](const std::string& archive, const Words& more = {}) {
    Words words = {"-p", "model", "connect", "--tool", "git", "--archive", archive};
    words.insert(words.end(), more.begin(), more.end());
    return m_sandbox.cm(words);
  };
  m_sandbox.write("no archive", "");
  EXPECT_THAT(connect("no archive").err, HasSubstr("advice:"));
  const Ended planned = connect("archive", {"--dry-run"});
  EXPECT_THAT(planned.out, AllOf(HasSubstr("make the archive"), HasSubstr("connect.sh")));
  EXPECT_EQ(m_sandbox.read("model/Machine.vdy"), file);
  EXPECT_FALSE(std::filesystem::exists(m_sandbox.path("archive")));
  EXPECT_EQ(connect("archive").code, 0);
  EXPECT_EQ(m_sandbox.cm({"-p", "model", "add", "--all", "-m", "first"}).code, 0);
}

TEST_F(CommandLineTest, EveryDocumentIsOneAndValid) {
  makeProject();
  const Words commands[] = {{"-p", "model", "status"},
                            {"-p", "model", "status", "-u"},
                            {"-p", "model", "ls"},
                            {"-p", "model", "lock", "Milk/Milk.vpkg", "Nope"},
                            {"-p", "nowhere", "status"},
                            {"-p", "model", "connect"},
                            {"-p", "model", "property", "list"},
                            {"-p", "model", "property", "get", "CMTool"},
                            {"pack", "list"},
                            {"pack", "show", "subversion"},
                            {"expand", "$nothing"},
                            {"init", "fresh"}};
  for (Words words : commands) {
    words.insert(words.begin(), "--json");
    const Ended ended = m_sandbox.cm(words);
    const nlohmann::json document = nlohmann::json::parse(ended.out, nullptr, false);
    ASSERT_FALSE(document.is_discarded()) << testing::PrintToString(words) << ended.out;
    EXPECT_TRUE(document.contains("command")) << testing::PrintToString(words);
  }
}

TEST_F(CommandLineTest, StatusOfWhatIsNamed) {
  makeProject();
  const auto pathsIn = [this](const Words& names) {
    Words words = {"-p", "model", "--json", "status"};
    words.insert(words.end(), names.begin(), names.end());
    Words paths;
    const nlohmann::json document = nlohmann::json::parse(m_sandbox.cm(words).out);
    for (const nlohmann::json& unit : document["units"]) paths.push_back(unit["path"]);
    return paths;
  };
  EXPECT_EQ(pathsIn({"Brewing::Grinder", "Milk"}),
            Words({"Brewing/Grinder.vcmp", "Milk/Milk.vpkg"}));
  const Words below = pathsIn({"-r", "Milk"});
  EXPECT_THAT(below, testing::Contains("Milk/Steam Wand.vcmp"));
  EXPECT_THAT(below, testing::Each(testing::StartsWith("Milk/")));
  EXPECT_EQ(pathsIn({"--all"}), pathsIn({}));
}

TEST_F(CommandLineTest, ProjectIsFoundFromBelowAndUnitsFromAnywhere) {
  makeProject();
  for (const char* line :
       {"cd model/Brewing && \"$CM\" --dry-run lock Grinder.vcmp",
        "cd model/Brewing && \"$CM\" --dry-run lock Brewing/Grinder.vcmp",
        "\"$CM\" -p model --dry-run lock Brewing/Grinder.vcmp",
        "\"$CM\" -p model --dry-run lock model/Brewing/../Brewing/Grinder.vcmp",
        "ln -sfn model link; \"$CM\" -p link --dry-run lock link/Brewing/Grinder.vcmp",
        "\"$CM\" -p model/Machine.vdy --dry-run lock Brewing::Grinder"}) {
    m_sandbox.write("user.toml",
                    "[ConfigurationManagement.General]\nCMTool = 'T'\n"
                    "[ConfigurationManagement.T]\nLock = 'tool $Unit'\n");
    m_sandbox.set("VELDRA_USER", m_sandbox.path("user.toml"));
    const Ended ended = m_sandbox.shell(line);
    EXPECT_EQ(ended.code, 0) << line << ended.err;
    EXPECT_THAT(ended.out, HasSubstr("tool Grinder.vcmp")) << line;
  }
}

TEST_F(CommandLineTest, ExpandPrintsTheExpansionAlone) {
  makeProject();
  struct Row {
    Words arguments;
    int code;
    std::string out;
  };
  const Row rows[] = {
      {{"($label ? -r$label : none)", "--arg", "label=1.3"}, 0, "-r1.3"},
      {{"($label ? -r$label : none)", "--arg", "label="}, 0, "none"},
      {{"a $nix b"}, 1, "a $nix b"},
      {{"$LOG|$targetDir|${workspace}", "--arg", "log=two words", "--arg", "targetdir=/t", "--arg",
        "workspace=w"},
       0,
       "\"two words\"|/t|w"},
      {{"$archive", "--arg", "archive=/a/b"}, 0, "/a/b"},
      {{""}, 0, ""},
      {{"plain\n"}, 0, "plain\n"},
  };
  for (Words project : {Words{"expand"}, Words{"-p", "model", "expand"}}) {
    for (const Row& row : rows) {
      Words words = project;
      words.insert(words.end(), row.arguments.begin(), row.arguments.end());
      const Ended ended = m_sandbox.cm(words);
      EXPECT_EQ(ended.code, row.code) << testing::PrintToString(words) << ended.err;
      EXPECT_EQ(ended.out, row.out) << testing::PrintToString(words);
      EXPECT_EQ(ended.err.empty(), row.code == 0) << testing::PrintToString(words);
    }
  }
  const Ended explained = m_sandbox.cm(
      {"-p", "model", "expand", "$Unit", "--unit", "Brewing/Grinder.vcmp", "--explain"});
  EXPECT_EQ(explained.out, "Grinder.vcmp");
  EXPECT_THAT(explained.err, HasSubstr("+++ Expanding '$Unit'"));
  EXPECT_THAT(m_sandbox.cm({"-p", "model", "expand", "--property", "Nonsense"}).err,
              HasSubstr("no property \"Nonsense\""));
}

TEST_F(CommandLineTest, PropertiesAreSetWhereTheyBelong) {
  makeProject();
  const auto value = [&](const std::string& name) {
    return m_sandbox.cm({"-p", "model", "property", "get", name}).out;
  };
  EXPECT_EQ(m_sandbox.cm({"-p", "model", "property", "set", "CMTool", "RCS"}).code, 0);
  EXPECT_EQ(value("ConfigurationManagement.General.CMTool"), "RCS\n");
  EXPECT_EQ(m_sandbox.cm({"-p", "model", "property", "set", "--user", "RCS.Archive", "/a"}).code,
            0);
  EXPECT_EQ(value("Archive"), "/a\n");
  const Ended listed = m_sandbox.cm({"-p", "model", "property", "list"});
  EXPECT_THAT(listed.out, HasSubstr("ConfigurationManagement.General.CMTool = RCS  (project)\n"));
  EXPECT_THAT(listed.out, HasSubstr("ConfigurationManagement.RCS.Archive = /a  (user)\n"));
  EXPECT_EQ(m_sandbox.cm({"-p", "model", "property", "list", "RCS.Archive"}).out,
            "ConfigurationManagement.RCS.Archive = /a  (user)\n");
  EXPECT_THAT(m_sandbox.read("model/Machine.vdy"), Not(HasSubstr("\"Archive\"")));

  const std::string before = m_sandbox.read("model/Machine.vdy");
  m_sandbox.shell("chmod a-w model/Machine.vdy");
  const Ended refused = m_sandbox.cm({"-p", "model", "property", "set", "CMTool", "None"});
  EXPECT_EQ(refused.code, 3);
  EXPECT_THAT(refused.err, HasSubstr("read-only"));
  EXPECT_EQ(m_sandbox.read("model/Machine.vdy"), before);
}

}  // namespace
}  // namespace veldra::live
