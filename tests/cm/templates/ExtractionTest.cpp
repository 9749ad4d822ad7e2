#include <string>

#include "cm/host/IPN.h"
#include "cm/host/SPString.h"
#include "cm/templates/CMProperty.h"
#include "tests/support/HostTest.h"

namespace veldra::test {
namespace {

using std::string_literals::operator""s;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class ExtractionTest : public HostTest {
 protected:
  ExtractionTest() { debugTraces(); }
  std::string m_out = "as it was";
  std::string m_extra = "scratch";
  int m_found = -1;
};

TEST_F(ExtractionTest, FirstGroupOfTheFirstMatch) {
  struct Row {
    const char* pattern;
    const char* text;
    int result;
    const char* out;
  };
  for (const Row& row :
       std::vector<Row>{{"head: (\\S+)", "HEAD: 1.7\nhead: 1.8", 1, "1.7"},
                        {"(a)(b)", "xab", 1, "a"},
                        {"x(y*)z", "xz", 1, ""},
                        {"x(y)?z", "xz", 0, "as it was"},  // The group took no part.
                        {"^(b)", "a\nb", 0, "as it was"},
                        {"nothing(x)", "text", 0, "as it was"},
                        {"no group", "no group", 0, "as it was"},
                        {"(unclosed", "unclosed", 0, "as it was"},
                        {"", "text", 0, "as it was"}}) {
    SCOPED_TRACE(row.pattern);
    m_out = "as it was";
    m_host.manager.window.str("");
    EXPECT_EQ(CMProperty::ExtractBySearchPattern(row.pattern, row.text, m_out, m_extra),
              row.result);
    EXPECT_EQ(m_out, row.out);
    if (row.result == 0) {
      EXPECT_THAT(window(), HasSubstr(std::string("+++ Failed to match '") + row.pattern +
                                      "' in '" + row.text + "'\n"));
    }
  }
  EXPECT_EQ(m_extra, "scratch");
}

TEST_F(ExtractionTest, PatternOfAProperty) {
  EXPECT_EQ(CMProperty::ExtractByProperty("Version", "v1", m_out, m_found, m_extra), 0);
  EXPECT_EQ(m_out, "as it was");

  set("Version", "v(\\d)");
  EXPECT_EQ(CMProperty::ExtractByProperty("Version", "V1", m_out, m_found, m_extra), 1);
  EXPECT_EQ(m_out, "1");
  EXPECT_EQ(m_found, 1);

  m_found = 0;
  EXPECT_EQ(CMProperty::ExtractByProperty("Version", "none", m_out, m_found, m_extra), 0);
  EXPECT_EQ(m_found, 1) << "the property has a pattern, though it does not match";

  set("Version", "");
  m_host.manager.window.str("");
  EXPECT_EQ(CMProperty::ExtractByProperty("Version", "v1", m_out, m_found, m_extra), 1);
  EXPECT_EQ(m_out, "");
  EXPECT_EQ(m_found, 0);
  EXPECT_EQ(window(), "+++ The property 'Versionis empty'\n");
}

TEST_F(ExtractionTest, AnInvalidPatternIsReportedOnce) {
  for (int i = 0; i < 3; ++i)
    CMProperty::ExtractBySearchPattern("(unclosed", "text", m_out, m_extra);
  EXPECT_FALSE(SPString("text").m("(unclosed", ""));
  const std::size_t reports = m_host.memoryMessages.notified.size() +
                              m_host.memoryMessages.asked.size() + windowLines("60007").size();
  EXPECT_EQ(reports, 1U);
}

TEST_F(ExtractionTest, EndlessBacktrackingIsGivenUpAndReported) {
  const std::string text(40, 'a');
  EXPECT_EQ(CMProperty::ExtractBySearchPattern("((a+)+)+$x", text + "!", m_out, m_extra), 0);
  EXPECT_EQ(m_out, "as it was");
}

TEST_F(ExtractionTest, SplitAtAPattern) {
  struct Row {
    const char* text;
    const char* pattern;
    std::vector<std::string> pieces;
  };
  for (const Row& row : std::vector<Row>{{"a--b--c", "--", {"a", "b", "c"}},
                                         {"no match", "--", {"no match"}},
                                         {"--a", "--", {"", "a"}},
                                         {"a--", "--", {"a"}},
                                         {"a----b", "--", {"a", "", "b"}},
                                         {"", "--", {}},
                                         {"abc", "", {"a", "b", "c"}},
                                         {"a\nb", "\\n", {"a", "b"}},
                                         {"aXbxc", "x", {"aXb", "c"}},
                                         {"a--b", "(unclosed", {"a--b"}}}) {
    SCOPED_TRACE(std::string(row.text) + " by " + row.pattern);
    std::vector<std::string> pieces;
    SPString(row.text).split(row.pattern,
                             [&](std::string_view piece) { pieces.emplace_back(piece); });
    EXPECT_EQ(pieces, row.pieces);
  }
}

TEST_F(ExtractionTest, AGrowingTextIsSplitAsTheWholeOne) {
  const std::string text =
      "a--b---c\r\n<entry\n k>\n\n<entry\nl\0m\0"s + std::string(2000, 'x') + "--\n";
  for (const char* pattern :
       {"--", "-+", "", "\\n(?=.)", "<entry\\s+", "\\x00(?=.)", "(?m)^", "\\R", "-(?!-)", "x*",
        "(?m)$", "\\Ga", "b.*", "(unclosed", "[^x]+\\z"}) {
    std::vector<std::string> whole;
    SPString(text).split(pattern, [&](std::string_view piece) { whole.emplace_back(piece); });
    for (const std::size_t step : {1U, 7U, 1500U}) {
      PatternSplitter splitter(pattern);
      std::vector<std::string> pieces;
      const auto take = [&](std::string_view piece) { pieces.emplace_back(piece); };
      for (std::size_t size = 0; size < text.size(); size += step) {
        splitter.more(text.substr(0, size), take);
      }
      splitter.finish(text, take);
      EXPECT_EQ(pieces, whole) << pattern << " by " << step;
    }
  }
  PatternSplitter splitter("\\n(?=.)");
  std::vector<std::string> early;
  splitter.more("a\nb\n", [&](std::string_view piece) { early.emplace_back(piece); });
  EXPECT_THAT(early, ElementsAre("a"));
  EXPECT_EQ(splitter.done(), 2U);
}

TEST_F(ExtractionTest, WithoutAHostNothingMatches) {
  installHost(nullptr);
  EXPECT_FALSE(SPString("a").m("a", ""));
  EXPECT_EQ(CMProperty::ExtractBySearchPattern("(a)", "a", m_out, m_extra), 0);
  installHost(&m_host);
}

}  // namespace
}  // namespace veldra::test
