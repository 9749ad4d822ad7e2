// Tools that number their commits by long numbers take a few letters for the beginning of one. A
// label that does not exist must not mean some commit, or even another file, by chance.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/live/Job.h"

namespace veldra::live {
namespace {

using testing::HasSubstr;

struct Numbering {
  const char* pack;
  const char* commit;      ///< Prints the long number of the newest one.
  const char* otherFile;   ///< The same of another file's content, or of the commit again.
  std::size_t fewLetters;  ///< With which the tool is content.
};

class ShortLabelTest : public testing::TestWithParam<Numbering> {
 protected:
  void SetUp() override {
    const std::string program = programOf(GetParam().pack);
    if (!isInstalled(program)) GTEST_SKIP() << program << " is not installed";
    m_job.tool().makeArchive();
    m_job.makeProject(m_job.tool().archive());
    m_job.cm({"add", "--all", "-m", "all"});
  }

  std::string numberBy(const std::string& command) {
    const std::string number = m_job.sandbox().shell("cd model && " + command).out;
    EXPECT_GE(number.size(), 40U);
    return number.substr(0, 40);
  }

  const std::string m_unit = "Brewing/Grinder.vcmp";
  Job m_job{GetParam().pack};
};

TEST_P(ShortLabelTest, AFewLettersAreNoLabelAlthoughSomethingBeginsWithThem) {
  const std::string commit = numberBy(GetParam().commit);
  const std::string other = numberBy(GetParam().otherFile);
  const std::string text = m_job.read(m_unit);
  const std::size_t few = GetParam().fewLetters;
  for (const std::string& label : {commit.substr(0, few), other.substr(0, few)}) {
    const Ended refused = m_job.tryCm({"fetch", m_unit, "-l", label});
    EXPECT_EQ(refused.code, 3) << label;
    EXPECT_THAT(refused.err, HasSubstr("no label or revision '" + label + "'"));
  }
  m_job.cm({"fetch", m_unit, "-l", commit.substr(0, 12)});
  EXPECT_EQ(m_job.read(m_unit), text);
}

INSTANTIATE_TEST_SUITE_P(Packs, ShortLabelTest,
                         testing::Values(Numbering{"Git", "git rev-parse HEAD",
                                                   "git rev-parse HEAD:Milk/Milk.vpkg", 5},
                                         Numbering{"Mercurial", "hg log -r tip -T '{node}'",
                                                   "hg log -r tip -T '{node}'", 3}),
                         [](const auto& row) { return std::string(row.param.pack); });

}  // namespace
}  // namespace veldra::live
