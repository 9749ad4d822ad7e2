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
  for (const Row& row : std::vector<Row>{{"/plan/a/b/", "a/b"},
                                         {"  /plan/a  ", "a"},
                                         {"/plan//a//", "a"},
                                         {"/plan", ""},
                                         {"/plan/", ""},
                                         {"/elsewhere/a", ""},
                                         {"/PLAN/a", ""},
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
       std::vector<Case>{{"/arc$SubDirs/$FileName", "/plan/a/b", "/arc/a/b/$FileName"},
                         {"$archive$SubDirs", "/plan/a", "/main/a"},
                         {"/arc$SubDirs/RCS", "/plan", "/arc/RCS"},
                         {"/arc$SubDirs/RCS", "/elsewhere/a", "/arc/RCS"},
                         {"/x$SubDirs/y$SubDirs", "/plan/a", "/x/a/y/a"},
                         {"$ArchivePath$SubDirs", " /plan/a ", " /plan/a "},
                         {"", "/plan/a", "/plan/a"}}) {
    SCOPED_TRACE(row.repository);
    set("Repository", row.repository);
    EXPECT_EQ(CMPathMapper::getArchivePathFromLocalPath(row.local), row.archive);
  }
  unset("Repository");
  EXPECT_EQ(CMPathMapper::getArchivePathFromLocalPath("/plan/a"), "/plan/a");
}

TEST_F(CMPathMapperTest, ArchiveToLocal) {
  struct Case {
    const char* repository;
    const char* archive;
    const char* local;
  };
  for (const Case& row :
       std::vector<Case>{{"/arc", "/arc/a/b/", "/plan/a/b"},
                         {"/arc", " /arc/a ", "/plan/a"},
                         {"/arc", "/arc", "/plan/"},
                         {"/arc", "", ""},
                         {"/arc", "  ", ""},
                         // A path that does not hold the text maps to the text itself.
                         {"/arc", "/other/a", "/plan//arc"},
                         {"/arc", "/ARC/a", "/plan//arc"},
                         {"$ArchivePath/x", " /arc/a ", "/arc/a"},
                         {"", " /arc/a ", "/arc/a"}}) {
    SCOPED_TRACE(std::string(row.repository) + " " + row.archive);
    set("Repository", row.repository);
    EXPECT_EQ(CMPathMapper::getLocalPathFromArchivePath(row.archive), row.local);
  }
}

}  // namespace
}  // namespace veldra::test
