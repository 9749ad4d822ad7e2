// Git's listing begins with what the folder knows of the archive, and has to end with what the
// archive really holds.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/live/Job.h"

namespace veldra::live {
namespace {

using testing::Contains;
using testing::Not;

class GitListingTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!isInstalled("git")) GTEST_SKIP() << "git is not installed";
    m_job.tool().makeArchive();
    m_job.makeProject(m_job.tool().archive());
    ASSERT_FALSE(HasFailure());
    m_job.cm({"add", "--all", "-m", "all"});
  }

  /// Somebody else's check-in of a new file.
  void checkInElsewhere(const std::string& archive, const std::string& file) {
    const Ended end = m_job.sandbox().shell(
        "rm -rf other && git clone -q '" + archive + "' other && cd other && echo new >" + file +
        " && git add . && git -c user.name=b -c user.email=b@b commit -q -m b && git push -q");
    ASSERT_EQ(end.code, 0) << end.err;
  }

  std::set<std::string> listed() { return Job::pathsOf(m_job.document({"ls"})); }

  Job m_job{"Git"};
};

TEST_F(GitListingTest, WhatOthersCheckInIsSeenAtOnce) {
  const std::set<std::string> before = listed();
  checkInElsewhere(m_job.tool().archive(), "One.vcmp");
  std::set<std::string> after = before;
  after.insert("One.vcmp");
  EXPECT_EQ(listed(), after);
  // Now the archive keeps its references in one file.
  checkInElsewhere(m_job.tool().archive(), "Two.vcmp");
  m_job.sandbox().shell("git -C '" + m_job.tool().archive() + "' pack-refs --all");
  after.insert("Two.vcmp");
  EXPECT_EQ(listed(), after);
  EXPECT_EQ(listed(), after);
}

TEST_F(GitListingTest, AnAddressMayStandForAnotherFolder) {
  const std::string archive = m_job.tool().archive();
  m_job.sandbox().shell("cp -r '" + archive + "' moved");
  checkInElsewhere(m_job.sandbox().path("moved"), "Moved.vcmp");
  EXPECT_THAT(listed(), Not(Contains("Moved.vcmp")));
  m_job.sandbox().shell("git -C model config url." + m_job.sandbox().path("moved") +
                        ".insteadOf '" + archive + "'");
  EXPECT_THAT(listed(), Contains("Moved.vcmp"));
}

}  // namespace
}  // namespace veldra::live
