#include "cm/templates/ExpansionLimits.h"
#include "tests/cm/templates/ExpansionTest.h"

namespace veldra::test {
namespace {

// --- abuse: each of these must end, fail and say which keyword it was ---

class ExpansionBoundsTest : public ExpansionTest {
 protected:
  /// The window has a line that names the keyword as the one that passed the bound.
  bool boundNames(const std::string& keyword) const {
    for (const std::string& line : windowLines("leads back to itself"))
      if (line.find(keyword) != std::string::npos) return true;
    return false;
  }
};

TEST_F(ExpansionBoundsTest, ACommentThatNamesItself) {
  m_log = std::make_unique<CMLog>("$log");
  EXPECT_EQ(expand("ci -m$log $Unit"), 0);
  EXPECT_TRUE(boundNames("$log"));
}

TEST_F(ExpansionBoundsTest, NothingMakesAPassedBoundGood) {
  m_log = std::make_unique<CMLog>("$log");
  EXPECT_EQ(expand("ci -m$log $OMROOT"), 0);
  EXPECT_EQ(expand("(a?$log)"), 0);
  EXPECT_EQ(expand("($log?a:b)"), 0);
}

TEST_F(ExpansionBoundsTest, APropertyThatIsItself) {
  set("A", "$A");
  EXPECT_EQ(expand("$A"), 0);
  EXPECT_TRUE(boundNames("$A"));
}

TEST_F(ExpansionBoundsTest, PropertiesThatNameEachOther) {
  set("A", "a$B");
  set("B", "${A}b");
  EXPECT_EQ(expand("$A"), 0);
  EXPECT_TRUE(boundNames("$B") || boundNames("${A}"));
}

TEST_F(ExpansionBoundsTest, ArgumentsThatNameEachOther) {
  m_label = std::make_unique<CMLabel>("$log$log");
  m_log = std::make_unique<CMLog>("$label$label");
  EXPECT_EQ(expand("$label"), 0);
}

TEST_F(ExpansionBoundsTest, ASelfReferenceInsideACondition) {
  set("A", "($A?x:$A)");
  EXPECT_EQ(expand("$A"), 0);
  set("B", "(x?$B)");
  EXPECT_EQ(expand("$B"), 0);
}

TEST_F(ExpansionBoundsTest, DoublingFortyTimesOver) {
  set("D0", "0123456789");
  for (int i = 1; i <= 40; ++i) {
    const std::string inner = "$D" + std::to_string(i - 1);
    set("D" + std::to_string(i), inner + " " + inner);
  }
  m_host.memoryEnvironment.settings.clear();
  EXPECT_EQ(expand("$D40"), 0);
  EXPECT_LT(m_out.size(), std::size_t{1} << 28);
  EXPECT_EQ(expand("$D5"), 1);
  EXPECT_EQ(m_out.size(), 32U * 11 - 1);
}

TEST_F(ExpansionBoundsTest, TheBoundIsThereAgainForTheNextExpansion) {
  set("A", "$A");
  expand("$A");
  EXPECT_EQ(expand("$label"), 1);
  EXPECT_EQ(m_out, "1.3");
}

TEST_F(ExpansionBoundsTest, ManyWideValuesAreFine) {
  std::string text;
  std::string expected;
  for (int i = 0; i < 10000; ++i) {
    text += "$label ";
    expected += "1.3 ";
  }
  m_host.memoryEnvironment.settings.clear();
  EXPECT_EQ(expand(text), 1);
  EXPECT_EQ(m_out, expected);
}

TEST_F(ExpansionBoundsTest, AMegabyteOfText) {
  m_host.memoryEnvironment.settings.clear();
  const std::string mega(std::size_t{1} << 20, 'x');
  for (const std::string& filler : {mega, std::string(mega.size(), '$'),
                                    std::string(mega.size(), '}'), std::string(mega.size(), '?')}) {
    EXPECT_EQ(expand("$label " + filler + " $label"), 1);
    EXPECT_EQ(m_out, "1.3 " + filler + " 1.3");
  }
  m_log = std::make_unique<CMLog>(mega);
  EXPECT_EQ(expand("ci -m$log"), 1);
  EXPECT_EQ(m_out.size(), mega.size() + 5);
  EXPECT_EQ(expand("$" + mega), 0);  // One keyword with a name of a megabyte.
}

TEST_F(ExpansionBoundsTest, TenThousandParentheses) {
  constexpr int Count = 10000;
  m_host.memoryEnvironment.settings.clear();
  const std::string open(Count, '(');
  const std::string close(Count, ')');
  EXPECT_EQ(expand(open + close), 1);
  EXPECT_EQ(m_out, open + close);
  EXPECT_EQ(expand(open + "?" + close), 1);
  EXPECT_EQ(m_out, close.substr(1));
  EXPECT_EQ(expand(open + "a?b"), 1);
  EXPECT_EQ(m_out, open + "a?b");

  std::string nested;
  std::string row;
  for (int i = 0; i < Count; ++i) {
    nested += "(a?";
    row += "(a?b:c) ";
  }
  // Ten thousand levels are more than any template needs; they fail like every other depth.
  EXPECT_EQ(expand("x" + nested + close), 0);
  EXPECT_EQ(expand(row), 1);
  EXPECT_EQ(m_out, "b ");
}

}  // namespace
}  // namespace veldra::test
