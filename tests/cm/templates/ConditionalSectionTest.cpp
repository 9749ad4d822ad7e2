#include "tests/cm/templates/ExpansionTest.h"

namespace veldra::test {
namespace {

TEST_F(ExpansionTest, Conditions) {
  for (const ExpandRow& row : std::vector<ExpandRow>{
           {"($label? -r $label:)", 1, "-r 1.3"},
           {"ci ($label?-r $label:-n) $Unit", 1, "ci -r 1.3 Engine.vcl"},
           {"($Empty?a:b)", 1, "b"},
           {"($Empty?a)", 1, ""},
           {"x($Empty?a)y", 1, "xy"},
           {"(a?b)", 1, "b"},
           {"(?b:c)", 1, "c"},
           {"(  ?b:c)", 1, "c"},
           {"( a ?  b : c )", 1, "b"},
           // The section ends at the last parenthesis of the text, and the first colon splits.
           {"(a?b)(c?d)", 1, "b)(c?d"},
           {"(a?b:c) and (d)", 1, "b"},
           {"($Empty?b:c) and (d)", 1, "c) and (d"},
           {"(a?b:c:d)", 1, "b"},
           {"($Empty?b:c:d)", 1, "c:d"},
           {"(a?b?c)", 1, "b?c"},
           // Without its marks a parenthesis is text.
           {"f(x)", 1, "f(x)"},
           {"(a:b)", 1, "(a:b)"},
           {"(a?b", 1, "(a?b"},
           {"(a?b:c", 1, "(a?b:c"},
           {"(a?b):c", 1, "(a?b):c"},
           {")a?b(", 1, ")a?b("},
           {"(a $label", 1, "(a 1.3"},
       }) {
    set("Empty", "");
    checkRow(row.text, row.result, row.out);
  }
}

TEST_F(ExpansionTest, ConditionsThatFail) {
  // A condition that does not expand leaves nothing of its section; a later success counts anew.
  checkRow("x($nobody?a:b)y", 0, "xy");
  checkRow("x(a?$nobody:b)y", 0, "x$nobodyy");
  checkRow("x($nobody?a:b)$OMROOT", 1, "x/opt/veldra");
  // Nothing is left at all: the failure is not kept.
  m_out = "as it was";
  EXPECT_EQ(expand("($nobody?a:b)"), 1);
  EXPECT_EQ(m_out, "as it was");
}

struct SectionRow {
  const char* text;
  int result, start, end;
  const char* condition;
  const char* thenPart;
  const char* elsePart;
};

TEST(ExtractConditionTest, Sections) {
  for (const SectionRow& row : std::vector<SectionRow>{
           {"(a?b:c)", 1, 0, 6, "a", "b", "c"},
           {"(a?b)", 1, 0, 4, "a", "b", ""},
           {"x ( a ? b : c ) y", 1, 2, 14, "a", "b", "c"},
           {"(?)", 1, 0, 2, "", "", ""},
           {"(?:)", 1, 0, 3, "", "", ""},
           {"(a?b)(c?d)", 1, 0, 9, "a", "b)(c?d", ""},
           {"(a?b:c)(d)", 1, 0, 9, "a", "b", "c)(d"},
           {"((a?b:c))", 1, 0, 8, "(a", "b", "c)"},
           {"(a?b:c:d)", 1, 0, 8, "a", "b", "c:d"},
           {"a?b:(c?d)", 1, 4, 8, "c", "d", ""},
           {"", 0, -1, -1, "", "", ""},
           {"a?b)", 0, -1, -1, "", "", ""},
           {"(a)", 0, -1, -1, "", "", ""},
           {"(a?b", 0, -1, -1, "", "", ""},
           {"(a)?b", 0, -1, -1, "", "", ""},
           {"(a?b):c", 0, -1, -1, "", "", ""},
           {")(a?b", 0, -1, -1, "", "", ""},
       }) {
    SCOPED_TRACE(row.text);
    int start = 99;
    int end = 99;
    std::string condition = "old";
    std::string thenPart = "old";
    std::string elsePart = "old";
    EXPECT_EQ(CMProperty::ExtractCondition(row.text, start, end, condition, thenPart, elsePart),
              row.result);
    EXPECT_EQ(start, row.start);
    EXPECT_EQ(end, row.end);
    EXPECT_EQ(condition, row.condition);
    EXPECT_EQ(thenPart, row.thenPart);
    EXPECT_EQ(elsePart, row.elsePart);
  }
}

}  // namespace
}  // namespace veldra::test
