// The values that a command takes from its options: comment, property name, expansion arguments.

#include <gtest/gtest.h>

#include <sstream>

#include "host/cli/Comment.h"
#include "host/cli/ExitCode.h"
#include "host/cli/ExpansionArgument.h"
#include "host/cli/PropertyName.h"

namespace veldra::host::cli {
namespace {

/// The exit code and the sentence of what ends the command; nothing when it does not end.
template <class Body>
std::pair<ExitCode, std::string> endOf(Body body) {
  try {
    body();
  } catch (const CommandError& error) {
    return {error.code(), error.what()};
  }
  return {ExitCode::AllDone, ""};
}

TEST(CommentTest, ComesFromTextOrStandardInputByteForByte) {
  std::istringstream in(std::string("two\r\nlines \0\xFF\n\n", 15));
  EXPECT_EQ(readComment({}, in), "");
  Options fromText;
  fromText.message = "text";
  EXPECT_EQ(readComment(fromText, in), "text");
  Options fromInput;
  fromInput.messageFile = "-";
  EXPECT_EQ(readComment(fromInput, in), std::string("two\r\nlines \0\xFF\n\n", 15));
}

TEST(CommentTest, TwoCommentsOrNoFileIsWrongUsage) {
  std::istringstream in;
  Options both;
  both.message = "a";
  both.messageFile = "-";
  EXPECT_EQ(endOf([&] { (void)readComment(both, in); }).first, ExitCode::WrongUsage);
  Options missing;
  missing.messageFile = "/no/such/file";
  const auto [code, sentence] = endOf([&] { (void)readComment(missing, in); });
  EXPECT_EQ(code, ExitCode::WrongUsage);
  EXPECT_NE(sentence.find("/no/such/file"), std::string::npos);
}

TEST(PropertyNameTest, PartsAreToldApart) {
  struct Row {
    std::string text;
    PropertyKey key;
  };
  const Row rows[] = {
      {"CheckIn", {"ConfigurationManagement", "Tool", "CheckIn"}},
      {"General.CMTool", {"ConfigurationManagement", "General", "CMTool"}},
      {"Subject.Meta.Name", {"Subject", "Meta", "Name"}},
      {"Subject.My.Tool 2.0.Name", {"Subject", "My.Tool 2.0", "Name"}},
  };
  for (const Row& row : rows) {
    const std::optional<PropertyName> name = parsePropertyName(row.text);
    ASSERT_TRUE(name) << row.text;
    EXPECT_TRUE(keyIn(*name, "Tool") == row.key) << row.text;
  }
  for (const char* text : {"", ".", "a.", ".a", "..a", "a..b", ".a.b"}) {
    EXPECT_FALSE(parsePropertyName(text)) << text;
  }
}

TEST(ExpansionArgumentTest, KindsAnswerToTheirKeywords) {
  struct Row {
    const char* text;
    const char* keyword;
    const char* value;
  };
  const Row rows[] = {
      {"archive=/a=b", "archive", "/a=b"}, {"label=", "label", ""},
      {"LABEL=1 2", "label", "\"1 2\""},   {"log=x y", "log", "\"x y\""},
      {"targetDir=/t", "targetDir", "/t"}, {"workspace=w", "workspace", "w"},
  };
  for (const Row& row : rows) {
    CallArguments arguments;
    addExpansionArgument(row.text, arguments);
    ASSERT_EQ(arguments.list().size(), 1U);
    EXPECT_NE(arguments.list()[0]->isNamed(row.keyword), 0) << row.text;
    EXPECT_EQ(arguments.list()[0]->substitute(row.keyword), row.value);
  }
}

TEST(ExpansionArgumentTest, OthersAreWrongUsage) {
  for (const char* text : {"label", "nonsense=1", "=1", "mode=2", "mode=", ""}) {
    CallArguments arguments;
    EXPECT_EQ(endOf([&] { addExpansionArgument(text, arguments); }).first, ExitCode::WrongUsage)
        << text;
  }
}

}  // namespace
}  // namespace veldra::host::cli
