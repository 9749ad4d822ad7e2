#include "cm/templates/CMPathMapper.h"

#include "cm/host/IPN.h"
#include "tests/support/HostTest.h"

namespace veldra::test {
namespace {

class CMPathMapperTest : public HostTest {};

struct Row {
  const char* path;
  const char* mapped;
};

TEST_F(CMPathMapperTest, SubDirectoriesBelowTheWorkingDirectory) {
  for (const Row& row : std::vector<Row>{{"/work/a/b/", "a/b"},
                                         {"  /work/a  ", "a"},
                                         {"/work//a//", "a"},
                                         {"/work", ""},
                                         {"/work/", ""},
                                         {"/elsewhere/a", ""},
                                         {"/WORK/a", ""},
                                         {"", ""}}) {
    EXPECT_EQ(CMPathMapper::getArchiveSubDirFromLocalPath(row.path), row.mapped) << row.path;
  }
  m_host.memoryEnvironment.separator = '\\';
  m_project.unitDirectory = "C:\\work";
  EXPECT_EQ(CMPathMapper::getArchiveSubDirFromLocalPath("C:\\work\\a\\b\\"), "a\\b");
  m_project.unitDirectory = "";
  EXPECT_EQ(CMPathMapper::getArchiveSubDirFromLocalPath("C:\\work\\a"), "");
}

TEST_F(CMPathMapperTest, LocalToArchive) {
  set(IPN::CMArchive, "/main");
  struct Case {
    const char* repository;
    const char* local;
    const char* archive;
  };
  for (const Case& row :
       std::vector<Case>{{"/arc$SubDirs/$FileName", "/work/a/b", "/arc/a/b/$FileName"},
                         {"$archive$SubDirs", "/work/a", "/main/a"},
                         {"/arc$SubDirs/RCS", "/work", "/arc/RCS"},
                         {"/arc$SubDirs/RCS", "/elsewhere/a", "/arc/RCS"},
                         {"/x$SubDirs/y$SubDirs", "/work/a", "/x/a/y/a"},
                         {"$ArchivePath$SubDirs", " /work/a ", " /work/a "},
                         {"", "/work/a", "/work/a"}}) {
    SCOPED_TRACE(row.repository);
    set("Repository", row.repository);
    EXPECT_EQ(CMPathMapper::getArchivePathFromLocalPath(row.local), row.archive);
  }
  unset("Repository");
  EXPECT_EQ(CMPathMapper::getArchivePathFromLocalPath("/work/a"), "/work/a");
}

TEST_F(CMPathMapperTest, ArchiveToLocal) {
  struct Case {
    const char* repository;
    const char* archive;
    const char* local;
  };
  for (const Case& row :
       std::vector<Case>{{"/arc", "/arc/a/b/", "/work/a/b"},
                         {"/arc", " /arc/a ", "/work/a"},
                         {"/arc", "/arc", "/work/"},
                         {"/arc", "", ""},
                         {"/arc", "  ", ""},
                         // A path that does not hold the text maps to the text itself.
                         {"/arc", "/other/a", "/work//arc"},
                         {"/arc", "/ARC/a", "/work//arc"},
                         {"$ArchivePath/x", " /arc/a ", "/arc/a"},
                         {"", " /arc/a ", "/arc/a"}}) {
    SCOPED_TRACE(std::string(row.repository) + " " + row.archive);
    set("Repository", row.repository);
    EXPECT_EQ(CMPathMapper::getLocalPathFromArchivePath(row.archive), row.local);
  }
}

}  // namespace
}  // namespace veldra::test
