#include "host/cli/ArgumentParser.h"

#include <gtest/gtest.h>

#include <sstream>

namespace veldra::host::cli {
namespace {

class ArgumentParserTest : public testing::Test {
 protected:
  ParsedArguments parse(const std::vector<std::string>& arguments) {
    Console console{.in = m_in, .out = m_out, .err = m_err};
    return parseArguments(arguments, console);
  }

  std::istringstream m_in;
  std::ostringstream m_out;
  std::ostringstream m_err;
};

using Words = std::vector<std::string>;

TEST_F(ArgumentParserTest, UnitsArriveAsTheyAre) {
  struct Row {
    Words arguments;
    Words units;
  };
  const Row rows[] = {
      {{"add", "a b", "é\xFF"}, {"a b", "é\xFF"}},
      {{"add", "[a,b]"}, {"[a,b]"}},
      {{"add", "++", ""}, {"++", ""}},
      {{"add", "status", "add"}, {"status", "add"}},
      {{"add", "--", "-m", "--all", "--"}, {"-m", "--all", "--"}},
      {{"add", "a", "--", "-b", "[c]"}, {"a", "-b", "[c]"}},
      {{"add", "a", "-m", "x", "b"}, {"a", "b"}},
  };
  for (const Row& row : rows) {
    const ParsedArguments parsed = parse(row.arguments);
    ASSERT_NE(parsed.command, nullptr) << m_err.str();
    EXPECT_STREQ(parsed.command->name, "add");
    EXPECT_EQ(parsed.options.units, row.units);
  }
}

TEST_F(ArgumentParserTest, AnUnknownCommandIsNamedWithTheOneThatWasMeant) {
  struct Row {
    Words arguments;
    const char* told;
  };
  const Row rows[] = {
      {{"statsu"}, "no command \"statsu\". Did you mean \"status\"?"},
      {{"-p", "x", "blurb"}, "no command \"blurb\".\n"},
      {{"st\x1B[31matus"}, "no command \"st\\x1b[31matus\""},
      {{"status", "--blurb"}, "not expected: --blurb"},
      {{}, "subcommand is required"},
  };
  for (const Row& row : rows) {
    m_err.str({});
    const ParsedArguments parsed = parse(row.arguments);
    EXPECT_EQ(parsed.command, nullptr);
    EXPECT_EQ(parsed.end, ExitCode::WrongUsage);
    EXPECT_NE(m_err.str().find(row.told), std::string::npos) << m_err.str();
  }
}

TEST_F(ArgumentParserTest, CommentsArriveAsTheyAre) {
  struct Row {
    Words arguments;
    std::string message;
  };
  const Row rows[] = {
      {{"checkin", "u", "-m", "-leading dash"}, "-leading dash"},
      {{"checkin", "u", "-m", "--"}, "--"},
      {{"checkin", "u", "--message", "--all"}, "--all"},
      {{"checkin", "u", "-m", "[1,2]"}, "[1,2]"},
      {{"checkin", "u", "-m", ""}, ""},
      {{"checkin", "--message=", "u"}, ""},
      {{"checkin", "--message=a=b", "u"}, "a=b"},
      {{"checkin", "u", "-m", "two\nlines \xFF"}, "two\nlines \xFF"},
  };
  for (const Row& row : rows) {
    const ParsedArguments parsed = parse(row.arguments);
    ASSERT_NE(parsed.command, nullptr) << m_err.str();
    EXPECT_EQ(parsed.options.message, row.message);
    EXPECT_EQ(parsed.options.units, Words{"u"}) << row.message;
    EXPECT_FALSE(parsed.options.all) << row.message;
  }
}

TEST_F(ArgumentParserTest, OptionsOfTheProgramStandOnBothSidesOfTheCommand) {
  for (const Words& words : {Words{"-p", "dir", "--json", "status", "-u"},
                             Words{"status", "-u", "--json", "-p", "dir"}}) {
    const ParsedArguments parsed = parse(words);
    ASSERT_NE(parsed.command, nullptr) << m_err.str();
    EXPECT_EQ(parsed.options.project, "dir");
    EXPECT_TRUE(parsed.options.json);
    EXPECT_TRUE(parsed.options.update);
  }
}

TEST_F(ArgumentParserTest, ValuesMayBeEmptyOrBracketed) {
  const ParsedArguments set = parse({"property", "set", "Some.Tool.Name", "[a-z]"});
  EXPECT_EQ(set.options.action, "set");
  EXPECT_EQ(set.options.value, "[a-z]");
  EXPECT_EQ(parse({"property", "set", "Name", ""}).options.value, "");
  EXPECT_EQ(parse({"property", "get", "Name"}).options.value, std::nullopt);
  const ParsedArguments expand =
      parse({"expand", "--arg", "log=[x]", "--arg", "label=", "[$label]"});
  EXPECT_EQ(expand.options.arguments, (Words{"log=[x]", "label="}));
  EXPECT_EQ(expand.options.commandTemplate, "[$label]");
}

TEST_F(ArgumentParserTest, HelpAndVersionEndWell) {
  for (const Words& words : {Words{"--help"}, Words{"--version"}, Words{"checkin", "--help"}}) {
    m_out.str("");
    const ParsedArguments parsed = parse(words);
    EXPECT_EQ(parsed.command, nullptr);
    EXPECT_EQ(parsed.end, ExitCode::AllDone);
    EXPECT_FALSE(m_out.str().empty());
    EXPECT_TRUE(m_err.str().empty());
  }
}

TEST_F(ArgumentParserTest, WrongUsageIsToldOnTheErrorOutput) {
  for (const Words& words : {Words{}, Words{"nonsense"}, Words{"add", "--nonsense"}, Words{"init"},
                             Words{"ls", "extra"}, Words{"checkin", "u", "-m"}}) {
    m_err.str("");
    const ParsedArguments parsed = parse(words);
    EXPECT_EQ(parsed.command, nullptr);
    EXPECT_EQ(parsed.end, ExitCode::WrongUsage);
    EXPECT_FALSE(m_err.str().empty());
    EXPECT_TRUE(m_out.str().empty());
  }
}

}  // namespace
}  // namespace veldra::host::cli
