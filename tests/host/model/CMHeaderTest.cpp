#include "host/model/CMHeader.h"

#include <gmock/gmock.h>

namespace veldra::host {
namespace {

// Written in two pieces, so that no CM tool expands them here.
#define ID \
  "$"      \
  "Id"
#define REVISION \
  "$"            \
  "Revision"

TEST(CMHeader, isTheCommentLinesAtTheVeryTop) {
  const struct {
    std::string text;
    std::size_t length;
  } rows[] = {
      {"", 0},          {"{}", 0},
      {"// a\n{}", 5},  {"// a\r\n//b\n{}", 10},
      {"// a", 4},      {"\n// a\n{}", 0},
      {" // a\n{}", 0}, {"// a\n\n// b\n{}", 5},
      {"/ a\n{}", 0},   {"\xEF\xBB\xBF// a\n{}", 8},
  };
  for (const auto& row : rows) EXPECT_EQ(commentHeaderLength(row.text), row.length) << row.text;
}

TEST(CMHeader, ofOtherToolsIsTheLinesWithAKeyword) {
  const struct {
    std::string text;
    std::string lines;
  } rows[] = {
      {"", ""},
      {"model A\n  // " ID "$\nend A;\n", "  // " ID "$\n"},
      {"' " REVISION ": 1.4 $ and " ID ": a.puml 3 $\r\n@startuml",
       "' " REVISION ": 1.4 $ and " ID ": a.puml 3 $\n"},
      {"a " ID "$\nb\nc " REVISION "$", "a " ID "$\nc " REVISION "$\n"},
      {"price is 5$ and " ID "entity$ and $id$", ""},
      {ID ": cut off\n$", ""},
      {"$$" ID "$$", "$$" ID "$$\n"},
  };
  for (const auto& row : rows) EXPECT_EQ(keywordLines(row.text), row.lines) << row.text;
}

TEST(CMHeader, expansionsDoNotCountInAComparison) {
  EXPECT_EQ(withoutExpansions("x " ID ": a 3 $ y " REVISION ": 1.4 $ z"),
            withoutExpansions("x " ID "$ y " REVISION "$ z"));
  EXPECT_NE(withoutExpansions("cost $"
                              "Other: 3 $"),
            withoutExpansions("cost $"
                              "Other: 4 $"));
  // Time in proportion to the length, whatever dollars there are.
  const std::string dollars = std::string(1 << 20, '$') + ID ":";
  EXPECT_EQ(withoutExpansions(dollars), dollars);
}

}  // namespace
}  // namespace veldra::host
