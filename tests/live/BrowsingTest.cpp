// The archive browser's comparisons with real tools: what stands on the two sides that the compare
// tool is started on.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iostream>

#include "cm/ui/logic/archive/ArchiveComparison.h"
#include "tests/live/Desk.h"
#include "tests/live/Job.h"

namespace veldra::live {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr char Browsed[] = "Brewing/Grinder.vcmp";
constexpr char BrowsedPackage[] = "Brewing/Brewing.vpkg";
constexpr char CheckedIn[] = "Grinds exactly one portion.";
constexpr char OnlyDrawn[] = "Grinds two portions at most.";

class BrowsingTest : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    if (!isInstalled(m_job.tool().traits().program)) {
      GTEST_SKIP() << GetParam() << " is not installed";
    }
    m_job.tool().makeArchive();
    m_job.makeProject(m_job.tool().archive());
    m_job.cm({"add", "--all", "-m", "As drawn", "-l", "Yesterday"});
    m_first = between(m_job.read(Browsed), "\"description\": \"", "\"");
    m_job.cm({"checkout", Browsed});
    m_job.change(Browsed, m_first, CheckedIn);
    m_job.cm({"checkin", Browsed, "-m", "More exact"});
    m_job.cm({"checkout", Browsed});
    m_job.change(Browsed, CheckedIn, OnlyDrawn);
    m_before = m_job.sandbox().files("model");
    ASSERT_FALSE(HasFailure());
    m_desk.emplace(m_job.sandbox(), "model");
  }

  void step(const char* what) { std::cout << "  " << GetParam() << ": " << what << '\n'; }

  void expectNothingTouched() {
    m_desk.reset();
    const auto after = m_job.sandbox().files("model");
    for (const auto& [name, state] : m_before) {
      if (!m_job.files().contains(name)) continue;
      EXPECT_EQ(after.at(name), state) << name;
    }
  }

  Job m_job{GetParam()};
  std::string m_first;
  std::map<std::string, FileState> m_before;
  std::optional<Desk> m_desk;
};

TEST_P(BrowsingTest, TwoVersionsOfAnEntryAndWithEverythingBelow) {
  ASSERT_TRUE(m_desk->select(Browsed));
  m_desk->window().versions = VersionChoice{"Yesterday", "", false};
  EXPECT_TRUE(ArchiveComparison(m_desk->window()).OnArcCmDiff())
      << testing::PrintToString(m_desk->takeMessages());
  Ended printed = m_desk->compareTool();
  EXPECT_EQ(printed.code, 1) << printed.err;
  EXPECT_THAT(printed.out,
              AllOf(HasSubstr(m_first), HasSubstr(CheckedIn), Not(HasSubstr(OnlyDrawn))));
  step("yesterday's version and the newest differ by the description");

  ASSERT_TRUE(m_desk->select(BrowsedPackage));
  m_desk->window().versions = VersionChoice{"Yesterday", "", true};
  EXPECT_TRUE(ArchiveComparison(m_desk->window()).OnArcCmDiff())
      << testing::PrintToString(m_desk->takeMessages());
  printed = m_desk->compareTool();
  EXPECT_EQ(printed.code, 1) << printed.err;
  EXPECT_THAT(printed.out,
              AllOf(HasSubstr("Grinder.vcmp"), HasSubstr(m_first), HasSubstr(CheckedIn),
                    Not(HasSubstr("Boiler.vcmp")), Not(HasSubstr("Brewing.vpkg"))));
  step("below the package nothing else differs between yesterday and the newest");
  expectNothingTouched();
}

TEST_P(BrowsingTest, TheModelWithAnEntryAndWithEverythingBelow) {
  ASSERT_TRUE(m_desk->select(Browsed));
  EXPECT_TRUE(ArchiveComparison(m_desk->window()).OnArcVdDiff())
      << testing::PrintToString(m_desk->takeMessages());
  Ended printed = m_desk->compareTool();
  EXPECT_EQ(printed.code, 1) << printed.err;
  EXPECT_THAT(printed.out, AllOf(HasSubstr(OnlyDrawn), HasSubstr(CheckedIn)));
  step("what is drawn differs from what is checked in");

  ASSERT_TRUE(m_desk->select(BrowsedPackage));
  m_desk->window().answer->label = "Yesterday";
  m_desk->window().answer->withDescendants = true;
  EXPECT_TRUE(ArchiveComparison(m_desk->window()).OnArcVdDiff())
      << testing::PrintToString(m_desk->takeMessages());
  printed = m_desk->compareTool();
  EXPECT_EQ(printed.code, 1) << printed.err;
  EXPECT_THAT(printed.out, AllOf(HasSubstr("Grinder.vcmp"), HasSubstr(OnlyDrawn),
                                 HasSubstr(m_first), Not(HasSubstr("Boiler.vcmp"))));
  step("the package as it is drawn differs from yesterday's by one unit");
  expectNothingTouched();
}

INSTANTIATE_TEST_SUITE_P(Tools, BrowsingTest,
                         testing::Values("Subversion", "Git", "RCS", "CVS", "Mercurial"));

}  // namespace
}  // namespace veldra::live
