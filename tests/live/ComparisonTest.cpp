// Comparing with the archive, with real tools: what is printed, and that nothing of the working
// folder changes by it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/live/Job.h"

namespace veldra::live {
namespace {

using testing::HasSubstr;

constexpr char Unit[] = "Brewing/Grinder.vcmp";
constexpr char Checked[] = "Grinds exactly one portion.";
constexpr char Written[] = "Grinds two portions at most.";

class ComparisonTest : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    if (!isInstalled(m_job.tool().traits().program)) {
      GTEST_SKIP() << GetParam() << " is not installed";
    }
    // Whatever comparisons leave behind goes with the sandbox.
    std::filesystem::create_directory(m_job.sandbox().path("tmp"));
    m_job.sandbox().set("TMPDIR", m_job.sandbox().path("tmp"));
    m_job.tool().makeArchive();
    m_job.makeProject(m_job.tool().archive());
    m_job.cm({"add", "--all", "-m", "As drawn", "-l", "Yesterday"});
    m_job.cm({"checkout", Unit});
    m_job.change(Unit, description(), Checked);
    m_job.cm({"checkin", Unit, "-m", "More exact"});
  }

  /// The description that the sample has.
  std::string description() { return between(m_job.read(Unit), "\"description\": \"", "\""); }
  Ended compare(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "compare");
    return m_job.tryCm(arguments);
  }
  void step(const char* what) { std::printf("  %s: %s\n", GetParam(), what); }

  Job m_job{GetParam()};
};

TEST_P(ComparisonTest, AUnitIsComparedWithYesterdaysRevision) {
  const FileState before{m_job.isWritable(Unit), m_job.read(Unit)};
  const Ended same = compare({"Brewing::Grinder"});
  EXPECT_EQ(same.code, 0) << same.out << same.err;
  step("what is checked in is the same as in the archive");

  const Ended earlier = compare({"Brewing::Grinder", "-l", "Yesterday"});
  EXPECT_EQ(earlier.code, 1) << earlier.err;
  EXPECT_THAT(earlier.out, HasSubstr("description"));
  EXPECT_THAT(earlier.out, HasSubstr(Checked));
  EXPECT_EQ((FileState{m_job.isWritable(Unit), m_job.read(Unit)}), before);
  step("yesterday's revision differs by the description, and the working file is untouched");

  EXPECT_EQ(compare({Unit, "-l", "Yesterday", "-l", "Yesterday"}).code, 0);
  step("a version is the same as itself");

  m_job.cm({"checkout", Unit});
  m_job.change(Unit, Checked, Written);
  const Ended changed = compare({Unit});
  EXPECT_EQ(changed.code, 1);
  EXPECT_THAT(changed.out, HasSubstr(Written));
  EXPECT_THAT(m_job.read(Unit), HasSubstr(Written));
  EXPECT_TRUE(m_job.isWritable(Unit));
  step("changes that are not checked in are shown, and kept");

  m_job.cm({"checkin", Unit, "-m", "Two at most"});
  EXPECT_THAT(m_job.tool().newestText(Unit), HasSubstr(Written));
  step("the next check-in is as if nobody had compared");
}

TEST_P(ComparisonTest, WhatCannotBeComparedIsSaid) {
  const Ended noSuch = compare({Unit, "-l", "NoSuchLabel"});
  EXPECT_EQ(noSuch.code, 3);
  EXPECT_THAT(noSuch.err, HasSubstr("NoSuchLabel"));
  EXPECT_EQ(compare({"Nobody::Knows"}).code, 3);
  EXPECT_EQ(compare({Unit, "-l", "a", "-l", "b", "-l", "c"}).code, 2);
  EXPECT_THAT(m_job.read(Unit), HasSubstr(Checked));
}

TEST_P(ComparisonTest, TheCompareToolPrintsWhatTheCommandPrints) {
  const std::string program =
      (std::filesystem::path(VELDRA_CM_PROGRAM).parent_path() / "Tandel.exe").string();
  const std::string here = m_job.sandbox().path("model/" + std::string(Unit));
  m_job.sandbox().write("yesterday.vcmp", m_job.tool().textAt("Yesterday", Unit));
  const Ended printed =
      m_job.sandbox().run({program, here, m_job.sandbox().path("yesterday.vcmp"), "-print"});
  EXPECT_EQ(printed.code, 1) << printed.err;
  EXPECT_EQ(printed.out, compare({Unit, "-l", "Yesterday"}).out);
  const Ended same = m_job.sandbox().run({program, here, here, "-print"});
  EXPECT_EQ(same.code, 0);
  EXPECT_EQ(m_job.sandbox().run({program, here, "nowhere", "-print"}).code, 2);
}

INSTANTIATE_TEST_SUITE_P(Tools, ComparisonTest,
                         testing::Values("Subversion", "Git", "RCS", "CVS", "Mercurial"));

}  // namespace
}  // namespace veldra::live
