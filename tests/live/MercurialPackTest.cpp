// What only Mercurial's users can meet.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/live/Job.h"

namespace veldra::live {
namespace {

using testing::HasSubstr;

TEST(MercurialPackTest, AFewLettersAreNoLabelAlthoughACommitBeginsWithThem) {
  if (!isInstalled("hg")) GTEST_SKIP() << "hg is not installed";
  const std::string unit = "Brewing/Grinder.vcmp";
  Job job("Mercurial");
  job.tool().makeArchive();
  job.makeProject(job.tool().archive());
  job.cm({"add", "--all", "-m", "all"});
  const std::string commit = job.sandbox().shell("hg -R model log -r tip -T '{node}'").out;
  ASSERT_EQ(commit.size(), 40U);
  const std::string text = job.read(unit);

  for (const std::string& label : {commit.substr(0, 3), std::string("123456")}) {
    const Ended refused = job.tryCm({"fetch", unit, "-l", label});
    EXPECT_EQ(refused.code, 3) << label;
    EXPECT_THAT(refused.err, HasSubstr("no label or revision '" + label + "'"));
  }
  for (const std::string& label : {commit.substr(0, 12), std::string("0"), std::string("tip")}) {
    job.cm({"fetch", unit, "-l", label});
    EXPECT_EQ(job.read(unit), text);
  }
}

}  // namespace
}  // namespace veldra::live
