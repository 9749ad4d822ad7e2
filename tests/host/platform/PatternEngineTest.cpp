#include "host/platform/PatternEngine.h"

#include <gmock/gmock.h>

namespace veldra::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class PatternEngineTest : public testing::Test {
 protected:
  PatternEnd match(const std::string& pattern, std::string_view text,
                   const std::string& options = "", std::size_t from = 0) {
    std::string error;
    const auto compiled = m_engine.compile(pattern, options, error);
    if (compiled == nullptr) return PatternEnd::Invalid;
    EXPECT_EQ(compiled->match(text, from, m_match), m_match.end);
    return m_match.end;
  }

  std::string errorOf(const std::string& pattern, const std::string& options = "") {
    std::string error;
    EXPECT_EQ(m_engine.compile(pattern, options, error), nullptr);
    return error;
  }

  PatternEngine m_engine;
  PatternMatch m_match;
};

TEST_F(PatternEngineTest, capturesWholeMatchAndGroups) {
  EXPECT_EQ(match(R"((\d+)\.(\d+)(x)?( locked)?)", "file 1.42 locked"), PatternEnd::Matched);
  EXPECT_THAT(m_match.captures, ElementsAre("1.42 locked", "1", "42", "", " locked"));
  EXPECT_EQ(match("nothing", "file"), PatternEnd::NoMatch);
  EXPECT_TRUE(m_match.captures.empty());
}

TEST_F(PatternEngineTest, searchesFromAPositionAndSeesWhatIsBefore) {
  const std::string_view text = "ab ab";
  ASSERT_EQ(match(R"(\bab)", text, "", 1), PatternEnd::Matched);
  EXPECT_EQ(m_match.captures[0].data(), text.data() + 3);
  EXPECT_EQ(match("^ab", text, "", 1), PatternEnd::NoMatch);
  EXPECT_EQ(match("(?<=a)b", text, "", 1), PatternEnd::Matched);
  EXPECT_EQ(match(R"(\Gab)", text, "", 1), PatternEnd::NoMatch);
  // The place of an empty match is that of its view.
  ASSERT_EQ(match("$", text, "", 2), PatternEnd::Matched);
  EXPECT_EQ(m_match.captures[0].data(), text.data() + text.size());
  EXPECT_EQ(match("a", text, "", 6), PatternEnd::NoMatch);
  EXPECT_EQ(match("^$", std::string_view()), PatternEnd::Matched);
}

TEST_F(PatternEngineTest, optionsChangeTheMeaning) {
  struct Case {
    const char* pattern;
    const char* text;
    const char* options;
    PatternEnd end;
  };
  for (const Case& row :
       {Case{"abc", "xABCx", "", PatternEnd::NoMatch},
        Case{"abc", "xABCx", "i", PatternEnd::Matched},
        Case{"^b$", "a\r\nb\r\nc", "", PatternEnd::NoMatch},
        Case{"^b$", "a\r\nb\r\nc", "m", PatternEnd::Matched},
        Case{"^b$", "a\nb\rc", "m", PatternEnd::Matched},
        Case{"a.b", "a\nb", "", PatternEnd::NoMatch}, Case{"a.b", "a\nb", "s", PatternEnd::Matched},
        Case{"a b # c", "ab", "", PatternEnd::NoMatch},
        Case{"a b # c", "AB", "xi", PatternEnd::Matched},
        Case{"^.$", "\xff", "", PatternEnd::Matched},
        Case{"^.$", "\xc3\xa4", "", PatternEnd::NoMatch}}) {
    EXPECT_EQ(match(row.pattern, row.text, row.options), row.end) << row.pattern << row.options;
  }
}

TEST_F(PatternEngineTest, reportsAnInvalidPatternWithItsPlace) {
  EXPECT_THAT(errorOf("ab(c"), HasSubstr("position 5"));
  EXPECT_THAT(errorOf("[z-a]"), HasSubstr("position"));
  EXPECT_THAT(errorOf("a", "iq"), HasSubstr("\"q\""));
  EXPECT_FALSE(errorOf(std::string("(?:") + std::string(100000, '(')).empty());
}

TEST_F(PatternEngineTest, givesUpOnEndlessBacktracking) {
  const std::string many(20000, 'a');
  EXPECT_EQ(match("(a+)+$", many + "b"), PatternEnd::GivenUp);
  EXPECT_EQ(match("(a|a)*$", std::string(40, 'a') + "b"), PatternEnd::GivenUp);
  EXPECT_EQ(match("a*a*a*a*[bc]d", many + "cbd" + many), PatternEnd::GivenUp);
  EXPECT_EQ(match(R"(\G(a+)+$)", many + "b"), PatternEnd::GivenUp);
  // Few steps at each start position, but a million positions, or steps that look at all of the
  // text.
  const std::string wide(1 << 20, 'q');
  EXPECT_EQ(match("(?:.|\n)*?zz", wide), PatternEnd::GivenUp);
  EXPECT_EQ(match(R"(\w*\s*\w*\s*:)", wide), PatternEnd::GivenUp);
  // The engine is as good as new afterwards.
  EXPECT_EQ(match("(a+)+$", many), PatternEnd::Matched);
  EXPECT_EQ(match("a+$", many), PatternEnd::Matched);
}

TEST_F(PatternEngineTest, aHopelessPatternDoesNotCostItsTimeAtEachRecord) {
  const std::string record = std::string(60, 'a') + "b";
  for (int i = 0; i < 1000; ++i) ASSERT_EQ(match("(a+)+$", record), PatternEnd::GivenUp);
}

TEST_F(PatternEngineTest, longTextsAreSearchedToTheirEnd) {
  const std::string text = std::string(1 << 24, 'x') + "error: 42";
  ASSERT_EQ(match("ERROR: ([0-9]+)$", text, "i"), PatternEnd::Matched);
  EXPECT_EQ(m_match.captures[1], "42");
  EXPECT_EQ(match("[0-9][a-z]", text), PatternEnd::NoMatch);
  EXPECT_EQ(match(R"(\z)", text), PatternEnd::Matched);
  const std::string_view half(text.data() + text.size() - 100000, 100000);
  EXPECT_EQ(match("(?:x|y)*error", half), PatternEnd::Matched);
}

// A long text is searched part by part; wherever it is divided, the same must come out.
TEST_F(PatternEngineTest, longTextsAreSearchedAsOneWhole) {
  struct Case {
    const char* pattern;
    const char* text;
    const char* found;
    PatternEnd end = PatternEnd::Matched;
  };
  for (const Case& row :
       std::initializer_list<Case>{{"<entry\\s+kind", "<<entry\n   kind", "<entry\n   kind"},
                                   {"(?m)^b$", "a\nb\nc", "b"},
                                   {"a\\n(?m:^)b", "a\nb", "a\nb"},
                                   {"(?m)^\\n", "a\r\nb", nullptr, PatternEnd::NoMatch},
                                   {"a(?!b)", "abac", "a"},
                                   {"\\ba+\\b", "-aa,", "aa"},
                                   {"ab|abc", "abc", "ab"},
                                   {"(?<=ab)c*d", "abccd", "ccd"},
                                   {"a\\Kb", "ab", "b"},
                                   {"\\Gq", "aq", nullptr, PatternEnd::NoMatch},
                                   {"a{3}\\z", "aaab", nullptr, PatternEnd::NoMatch},
                                   {"\\R.", "x\r\ny", "\r\ny"}}) {
    for (std::size_t before = 1000; before < 1030; ++before) {
      const std::string text = std::string(before, '.') + row.text + std::string(3000, '.');
      ASSERT_EQ(match(row.pattern, text), row.end) << row.pattern << " at " << before;
      if (row.found == nullptr) continue;
      const std::string_view found = m_match.captures[0];
      EXPECT_EQ(found, row.found) << row.pattern << " at " << before;
      const std::size_t place = static_cast<std::size_t>(found.data() - text.data());
      EXPECT_GE(place, before) << row.pattern;
      EXPECT_EQ(place - before, std::string_view(row.text).rfind(row.found)) << row.pattern;
    }
  }
}

TEST_F(PatternEngineTest, keepsThePatternsThatWereAskedForLast) {
  std::string error;
  const auto kept = m_engine.compile("kept", "i", error);
  for (int i = 0; i < 5000; ++i) {
    ASSERT_NE(m_engine.compile(std::to_string(i) + "p", "", error), nullptr);
    ASSERT_EQ(m_engine.compile("kept", "i", error), kept);
  }
  EXPECT_NE(m_engine.compile("kept", "", error), kept);
  EXPECT_EQ(match("kept", "KEPT", "i"), PatternEnd::Matched);
  EXPECT_EQ(match("1p", "x1p", ""), PatternEnd::Matched);
}

}  // namespace
}  // namespace veldra::host
