// "run", and what the program says of itself to shells and readers.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <regex>

#include "tests/live/Sandbox.h"

namespace veldra::live {
namespace {

using testing::HasSubstr;

TEST(Run, RunsTheCommandOfAProperty) {
  Sandbox sandbox;
  sandbox.copySample("model");
  ASSERT_EQ(sandbox.cm({"init", "model", "--name", "M", "--tool", "RCS"}).code, 0);
  sandbox.write("show.sh", "echo \"$1|$2\"; [ \"$2\" != fail ] || exit 1\n");
  const std::string command = "sh \"" + sandbox.path("show.sh") + "\" \"$Unit\" ($label ? $label)";
  ASSERT_EQ(sandbox.cm({"-p", "model", "property", "set", "Show", command}).code, 0);
  const auto run = [&sandbox](std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"-p", "model"});
    return sandbox.cm(arguments);
  };
  EXPECT_EQ(run({"run", "Show", "Brewing/Grinder.vcmp", "Milk::Milk", "-l", "x"}).out,
            "Grinder.vcmp|x\n");
  EXPECT_EQ(run({"run", "Show", "Brewing/Grinder.vcmp", "Milk/Milk.vpkg"}).out,
            "Grinder.vcmp|\nMilk.vpkg|\n");
  const Ended failed = run({"run", "Show", "Brewing/Grinder.vcmp", "-l", "fail"});
  EXPECT_EQ(failed.code, 3);
  EXPECT_THAT(failed.err, HasSubstr("show.sh"));
  const Ended planned = run({"--json", "--dry-run", "run", "Show", "Brewing/Grinder.vcmp"});
  EXPECT_EQ(planned.code, 0) << planned.err;
  const auto unit = nlohmann::json::parse(planned.out)["units"][0];
  EXPECT_EQ(unit["result"], "planned");
  EXPECT_EQ(unit["plan"]["commands"][0][2], "Grinder.vcmp");
  EXPECT_EQ(run({"run", "Nonsense"}).code, 3);
  EXPECT_EQ(run({"run", "Show"}).code, 3) << "nothing answers to $Unit";
}

/// The commands that the help lists, each at the beginning of a line.
std::vector<std::string> commandsOf(const std::string& help) {
  std::vector<std::string> names;
  const std::regex line("\n  ([a-z]+) +[A-Z]");
  for (std::sregex_iterator at(help.begin(), help.end(), line), end; at != end; ++at) {
    names.push_back((*at)[1]);
  }
  return names;
}

TEST(Manual, NamesEveryCommand) {
  const Sandbox sandbox;
  const std::string page = sandbox.cm({"manual", "man"}).out;
  const std::string help = sandbox.cm({"--help"}).out;
  const std::string scripts[] = {sandbox.cm({"manual", "bash"}).out,
                                 sandbox.cm({"manual", "zsh"}).out};
  for (const std::string& command : commandsOf(help)) {
    EXPECT_THAT(page, HasSubstr(std::string(".SS \"") + command));
    // "--option", with or without a short name before it.
    const std::string options = sandbox.cm({command, "--help"}).out;
    const std::regex option("--[a-z-]+");
    for (std::sregex_iterator at(options.begin(), options.end(), option), end; at != end; ++at) {
      for (const std::string& script : scripts) EXPECT_THAT(script, HasSubstr(at->str()));
      const std::string inPage = std::regex_replace(at->str(), std::regex("-"), "\\-");
      EXPECT_THAT(page, HasSubstr(inPage)) << command;
    }
    for (const std::string& script : scripts) EXPECT_THAT(script, HasSubstr(command));
  }
  EXPECT_THAT(page, HasSubstr("\\fB\\-\\-dry\\-run\\fR"));
  if (isInstalled("man")) {
    EXPECT_THAT(sandbox.shell("\"$CM\" manual man | man --warnings -l - >io/none").err, "");
  }
  EXPECT_EQ(sandbox.cm({"manual", "zsh"}).out.rfind("#compdef veldra-cm", 0), 0U);
  if (isInstalled("zsh")) {
    EXPECT_EQ(sandbox.shell("\"$CM\" manual zsh >z && zsh -n z").code, 0);
  }
  EXPECT_EQ(sandbox.cm({"manual", "fish"}).code, 2);
}

/// Words are completed as bash parts them, at colons, too.
class BashCompletion : public testing::Test {
 protected:
  void SetUp() override {
    m_sandbox.copySample("model");
    ASSERT_EQ(m_sandbox.cm({"init", "model", "--name", "M"}).code, 0);
  }
  std::string complete(const std::string& tries) {
    m_sandbox.write("complete.bash",
                    m_sandbox.cm({"manual", "bash"}).out +
                        "try() { COMP_WORDS=(veldra-cm \"$@\"); COMP_CWORD=$#; "
                        "COMP_LINE=${line-${COMP_WORDS[*]}}; COMP_POINT=${#COMP_LINE}; "
                        "_veldra_cm; (IFS='|'; echo \"${COMPREPLY[*]}\"); }\n" +
                        tries);
    const Ended completed = m_sandbox.shell("PATH=\"${CM%/*}:$PATH\"; exec bash complete.bash");
    EXPECT_EQ(completed.err, "");
    return completed.out;
  }
  Sandbox m_sandbox;
};

TEST_F(BashCompletion, KnowsCommandsOptionsFilesAndNames) {
  EXPECT_EQ(complete("try che; try checkin --mes; try -p x pack sh\n"
                     "try -p model lock 'Brewing/D'; cd model/Milk; try undo Brewing/Gr\n"
                     "line='veldra-cm undo Brewing::D' try undo Brewing :: D\n"
                     "line='veldra-cm undo Brewing::Water\\ Circuit::' "
                     "try undo Brewing :: 'Water\\ Circuit' ::\n"
                     "try undo '\"Brewing::Gr'\n"),
            "checkin|checkout\n--message\nshow\n"
            "Brewing/Drip Tray.vcmp\nBrewing/Grinder.vcmp\n"
            "Drip Tray\n"
            "Boiler|Descaling|Flow Meter|Piping|Pump|Tank|Valve\n"
            "Brewing::Grinder\n");
  EXPECT_THAT(complete("try ''\n"), HasSubstr("doctor"));
}

TEST_F(BashCompletion, RunsNothingThatStandsInANameOfAFile) {
  m_sandbox.write("model/$(touch ran).puml", "@startuml\n@enduml\n");
  m_sandbox.write("model/`touch ran`.puml", "@startuml\n@enduml\n");
  m_sandbox.write("model/it's; \\.puml", "@startuml\n@enduml\n");
  const std::string offered = complete("cd model; try lock ''; try lock '\\$'\n");
  EXPECT_THAT(offered, HasSubstr("|it's; \\.puml\n"));
  EXPECT_THAT(offered, testing::EndsWith("\n\n"));
  EXPECT_FALSE(std::filesystem::exists(m_sandbox.path("model/ran")));
}

}  // namespace
}  // namespace veldra::live
