// A disk without room, under the project and under the archive: nothing is lost, the message says
// what to do, and with room again the same command finishes the job.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mount.h>

#include <cerrno>
#include <cstring>
#include <memory>

#include "tests/live/Job.h"

namespace veldra::live {
namespace {

using testing::AllOf;
using testing::HasSubstr;

constexpr char FilledUnit[] = "Brewing/Grinder.vcmp";

/// A small disk of its own, at a folder of the sandbox.
class SmallDisk {
 public:
  /// What the folder holds lies on the disk afterwards.
  SmallDisk(const Sandbox& sandbox, const std::string& folder)
      : m_sandbox(sandbox), m_folder(folder), m_path(sandbox.path(folder)) {
    sandbox.shell("mv " + folder + " moved && mkdir " + folder);
    if (mount("none", m_path.c_str(), "tmpfs", 0, "size=16m") != 0) m_problem = strerror(errno);
    sandbox.shell("cp -a moved/. " + folder + " && rm -rf moved");
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;
  ~SmallDisk() {
    if (m_problem.empty()) umount2(m_path.c_str(), MNT_DETACH);
  }

  /// Why there is none.
  const std::string& problem() const { return m_problem; }
  /// To the last byte.
  void fill() const {
    m_sandbox.shell("dd if=/dev/zero of=" + m_folder +
                    "/filler bs=64k; dd if=/dev/zero bs=1 of=" + m_folder + "/filler2 count=5000");
  }
  void makeRoom() const { m_sandbox.shell("rm " + m_folder + "/filler*"); }

 private:
  const Sandbox& m_sandbox;
  std::string m_folder;
  std::string m_path;
  std::string m_problem;
};

class DiskFullTest : public testing::TestWithParam<const char*> {
 protected:
  /// Puts this folder of the job onto a small disk.
  void begin(const std::string& folder) {
    const std::string program = m_job.tool().traits().program;
    if (!isInstalled(program)) GTEST_SKIP() << program << " is not installed";
    m_job.makeProject("archive");
    m_job.cm({"add", "--all", "-m", "all"});
    m_disk = std::make_unique<SmallDisk>(m_job.sandbox(), folder);
    if (!m_disk->problem().empty())
      GTEST_SKIP() << "no small disk can be made: " << m_disk->problem();
  }

  /// The command fails, and says what to do.
  void expectAdvice(const std::vector<std::string>& command) {
    const Ended ended = m_job.tryCm(command);
    EXPECT_NE(ended.code, 0) << command.front();
    EXPECT_THAT(ended.err, HasSubstr("Make room on the disk")) << command.front();
  }

  Job m_job{GetParam()};
  std::unique_ptr<SmallDisk> m_disk;
};

TEST_P(DiskFullTest, UnderTheProject) {
  begin("model");
  if (IsSkipped() || HasFailure()) return;
  m_job.cm({"checkout", FilledUnit});
  m_job.change(FilledUnit, "\"5\"", "\"6\"");
  const std::string changed = m_job.read(FilledUnit);
  const std::string project = m_job.read("Machine.vdy");
  m_disk->fill();
  // An undo writes, and so does the copy that is kept before it.
  expectAdvice({"undo", FilledUnit});
  EXPECT_EQ(m_job.read(FilledUnit), changed);
  EXPECT_NE(m_job.tryCm({"property", "set", "CMSaveOnCheckOut", "True"}).code, 0);
  EXPECT_EQ(m_job.read("Machine.vdy"), project);
  m_disk->makeRoom();
  m_job.cm({"checkin", FilledUnit, "-m", "with room"});
  EXPECT_EQ(m_job.tool().newestText(FilledUnit), m_job.read(FilledUnit));
}

TEST_P(DiskFullTest, UnderTheArchive) {
  begin("archive");
  if (IsSkipped() || HasFailure()) return;
  m_job.cm({"checkout", FilledUnit});
  m_job.change(FilledUnit, "\"5\"", "\"6\"");
  const std::string changed = m_job.read(FilledUnit);
  m_disk->fill();
  expectAdvice({"checkin", FilledUnit, "-m", "without room"});
  EXPECT_EQ(m_job.read(FilledUnit), changed);
  EXPECT_TRUE(m_job.isWritable(FilledUnit));
  m_disk->makeRoom();
  m_job.cm({"checkin", FilledUnit, "--last-comment"});
  EXPECT_EQ(m_job.tool().newestText(FilledUnit), m_job.read(FilledUnit));
  EXPECT_THAT(m_job.tool().newestText(FilledUnit), HasSubstr("\"6\""));
  EXPECT_THAT(m_job.tool().newestComment(FilledUnit), HasSubstr("without room"));
}

INSTANTIATE_TEST_SUITE_P(Packs, DiskFullTest,
                         testing::Values("Subversion", "RCS", "CVS", "Git", "Mercurial"),
                         [](const auto& param) { return std::string(param.param); });

}  // namespace
}  // namespace veldra::live
