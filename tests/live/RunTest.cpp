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

}  // namespace
}  // namespace veldra::live
