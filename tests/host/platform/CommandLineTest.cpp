#include "host/platform/CommandLine.h"

#include <gmock/gmock.h>

#include <random>

namespace veldra::host {
namespace {

using Arguments = std::vector<std::string>;
using testing::HasSubstr;

struct SplitCase {
  std::string line;
  Arguments arguments;
};

class CommandLineSplit : public testing::TestWithParam<SplitCase> {};

TEST_P(CommandLineSplit, followsTheQuotingRules) {
  const auto arguments = splitCommandLine(GetParam().line);
  ASSERT_TRUE(arguments) << arguments.error();
  EXPECT_EQ(*arguments, GetParam().arguments);
  EXPECT_EQ(*splitCommandLine(joinCommandLine(*arguments)), *arguments);
}

INSTANTIATE_TEST_SUITE_P(Rules, CommandLineSplit,
                         testing::Values(SplitCase{"", {}}, SplitCase{" \t ", {}},
                                         SplitCase{"\tsvn  ci \t-m x ", {"svn", "ci", "-m", "x"}},
                                         SplitCase{R"("a b" "" c"d e"f)", {"a b", "", "cd ef"}},
                                         SplitCase{R"(a""b """")", {"ab", ""}},
                                         SplitCase{R"(C:\dir\file \\host\share\)",
                                                   {R"(C:\dir\file)", R"(\\host\share\)"}},
                                         SplitCase{R"(\" \\\" "\"")", {"\"", "\\\"", "\""}},
                                         SplitCase{R"(\\"a b" "a\\")", {R"(\a b)", R"(a\)"}},
                                         SplitCase{R"(\\\\"x y")", {R"(\\x y)"}},
                                         SplitCase{R"("a\b" '$x;*')", {R"(a\b)", "'$x;*'"}},
                                         SplitCase{"a\nb \"c\nd\"", {"a\nb", "c\nd"}},
                                         SplitCase{"\xff\xfe \"\xc3 \"", {"\xff\xfe", "\xc3 "}}));

TEST(CommandLine, refusesWhatNoArgumentListStandsFor) {
  EXPECT_THAT(splitCommandLine(R"(svn "a b)").error(), HasSubstr("position 5"));
  EXPECT_THAT(splitCommandLine(R"("a" "b\")").error(), HasSubstr("never closed"));
  EXPECT_THAT(splitCommandLine(std::string_view("ab\0c", 4)).error(), HasSubstr("NUL"));
}

TEST(CommandLine, joinIsTheInverseOfSplit) {
  std::mt19937 random(7);
  const std::string alphabet = "\\\\\\\"\"\" \tab\n$>'";
  for (int round = 0; round < 20000; ++round) {
    Arguments arguments(random() % 5);
    for (std::string& argument : arguments) {
      argument.resize(random() % 9);
      for (char& c : argument) c = alphabet[random() % alphabet.size()];
    }
    const std::string line = joinCommandLine(arguments);
    const auto back = splitCommandLine(line);
    ASSERT_TRUE(back) << line;
    ASSERT_EQ(*back, arguments) << line;
  }
}

TEST(CommandLine, megabytesOfBackslashesAndQuotesAreSplit) {
  const std::string backslashes(1 << 22, '\\');
  EXPECT_EQ(splitCommandLine(backslashes)->front().size(), backslashes.size());
  EXPECT_EQ(splitCommandLine("\"" + backslashes + "\"")->front().size(), backslashes.size() / 2);
  const std::string quotes(1 << 22, '"');
  EXPECT_EQ(*splitCommandLine(quotes), Arguments{""});
}

}  // namespace
}  // namespace veldra::host
