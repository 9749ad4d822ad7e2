#include "cm/core/CMArchiveItem.h"

#include "cm/core/CMArchiveItemList.h"
#include "cm/core/CMDiagnostic.h"
#include "tests/support/HostTest.h"

namespace veldra::test {
namespace {

using ::testing::ElementsAre;

CMArchiveItem itemOf(const std::string& path) {
  return {path, "1.2", CMArchiveItem::ReadWrite, "bob", "new"};
}

class CMArchiveItemTest : public HostTest {};

TEST_F(CMArchiveItemTest, PartsOfTheName) {
  struct Row {
    const char* path;
    const char* fileName;
    const char* name;
    const char* suffix;
    const char* type;
  };
  for (const Row& row :
       std::vector<Row>{{"a\\b.vcl", "b.vcl", "b", ".vcl", "Class"},
                        {"dir/sub\\file.vpk", "file.vpk", "file", ".vpk", "Package"},
                        {"dir\\sub/file.x", "file.x", "file", ".x", ""},
                        {"two.dots.vcl", "two.dots.vcl", "two.dots", ".vcl", "Class"},
                        {"plain", "plain", "plain", "", ""},
                        // The last dot of the whole path is cut at, even in a directory.
                        {"pkg.dir\\unit", "unit", "pkg", ".dir\\unit", ""},
                        {"dir/", "", "", "", ""},
                        {".hidden", ".hidden", "", ".hidden", ""},
                        {"", "", "", "", ""}}) {
    SCOPED_TRACE(row.path);
    const CMArchiveItem item = itemOf(row.path);
    EXPECT_EQ(item.getFileName(), row.fileName);
    EXPECT_EQ(item.getName(), row.name);
    EXPECT_EQ(item.getSuffix(), row.suffix);
    EXPECT_EQ(item.getType(), row.type);
    EXPECT_EQ(item.getFileNameWithPath(), row.path);
  }
}

TEST_F(CMArchiveItemTest, ShortPathByTheRepositoryTemplate) {
  struct Row {
    const char* repository;
    const char* path;
    const char* withSuffix;
    const char* withoutSuffix;
  };
  for (const Row& row : std::vector<Row>{
           {"$ArchivePath/$FileName", "/arc/a/f.x", "/arc/a/f.x", "/arc/a/f"},
           {"/arc$SubDirs", "/arc/a/f.x", "/arc/a/f.x", "/arc/a/f"},
           {"/arc/$FileName", "/arc/a/f.x", "/arc/a/f.x", "/arc/a/f"},
           {"/arc$SubDirs/$FileName", "/ARC/sub/f.x", "/sub/f.x", "/sub/f"},
           {"/arc$SubDirs/$FileName", "/other/sub/f.x", "/other/sub/f.x", "/other/sub/f"},
           {"/arc$SubDirs\\$FileName", "/arc\\f.x", "\\f.x", "\\f"},
           {"/arc/$SubDirs$FileName", "/arc/sub/f.x", "sub/f.x", "sub/f"},
           // Directories that stand between the sub-directories and the file go, up to their
           // separator.
           {"/arc$SubDirs/RCS/$FileName", "sub/dir/RCS/f.x", "sub/dir/f.x", "sub/dir/f"},
           {"/arc$SubDirs/rcs/$FileName", "/arc/sub/RCS/f.x", "/sub/f.x", "/sub/f"},
           {"/arc$SubDirs/RCS/$FileName", "sub/f.x", "f.x", "f"},
           {"/arc$SubDirs/RCS/$FileName", "f.x", "f.x", "f"},
           // Without a prefix nothing is taken off the template, and no directory ends in a
           // keyword.
           {"$SubDirs/$FileName", "sub/f.x", "f.x", "f"},
           {"$FileName$SubDirs", "sub/f.x", "sub/f.x", "sub/f"}}) {
    SCOPED_TRACE(std::string(row.repository) + " " + row.path);
    set("Repository", row.repository);
    EXPECT_EQ(itemOf(row.path).getNameNShortPath(true), row.withSuffix);
    EXPECT_EQ(itemOf(row.path).getNameNShortPath(false), row.withoutSuffix);
  }
}

TEST_F(CMArchiveItemTest, ShortPathByTheWorkingDirectory) {
  const auto shortPath = [](const char* path) { return itemOf(path).getNameNShortPath(true); };
  for (const bool provider : {false, true}) {
    if (provider) useProvider();
    set("Repository", provider ? "/arc$SubDirs/RCS/$FileName" : "");
    EXPECT_EQ(shortPath("/PLAN/sub/f.x"), "sub/f.x");
    EXPECT_EQ(shortPath("/elsewhere/f.x"), "/elsewhere/f.x");
    EXPECT_EQ(shortPath("f.x"), "f.x");
    EXPECT_EQ(shortPath("/plan"), "");
  }
}

TEST_F(CMArchiveItemTest, OldProjectsKnowFileNamesOnly) {
  set("SupportTreeRepository", "");
  set("Repository", "/arc$SubDirs/RCS/$FileName");
  EXPECT_EQ(itemOf("sub/dir/RCS/f.x").getNameNShortPath(true), "sub/dir/f.x");
  set("SupportTreeRepository", "No");
  EXPECT_EQ(itemOf("sub/dir/RCS/f.x").getNameNShortPath(true), "f.x");
  EXPECT_EQ(itemOf("sub/dir/RCS/f.x").getNameNShortPath(false), "f");
}

TEST_F(CMArchiveItemTest, LocalPlaceOfTheFile) {
  struct Row {
    const char* path;
    const char* localPath;
    const char* fullName;
  };
  m_project.unitDirectory = "/plan/units";
  for (const Row& row :
       std::vector<Row>{{"sub/f.x", "/plan/units/sub", "/plan/units/sub/f.x"},
                        {"f.x", "/plan/units", "/plan/units/f.x"},
                        {"/plan/units/sub\\f.x", "/plan/units/sub", "/plan/units/sub/f.x"},
                        // The project's own file lies beside the units, not below them.
                        {"any/PLANT.vdy", "/plan", "/plan/PLANT.vdy"}}) {
    SCOPED_TRACE(row.path);
    EXPECT_EQ(itemOf(row.path).getLocalPath(), row.localPath);
    EXPECT_EQ(itemOf(row.path).getFullUnitFileName(), row.fullName);
  }
  m_model.setActiveProject(nullptr);
  EXPECT_EQ(itemOf("sub/f.x").getLocalPath(), "");
}

TEST_F(CMArchiveItemTest, ExternalUnitsKeepTheirName) {
  MemoryUnit& unit = m_model.addUnit("sub/f.x");
  EXPECT_EQ(itemOf("sub/f.x").getFullUnitFileName(), "/plan/sub/f.x");
  unit.record.external = true;
  EXPECT_EQ(itemOf("sub/f.x").getFullUnitFileName(), "sub/f.x");
}

TEST_F(CMArchiveItemTest, RepositoryFileNames) {
  EXPECT_EQ(itemOf("sub/f.x").getFileNameForRepFiles(), "f.x");
  m_model.fullPathRepFiles = true;
  EXPECT_EQ(itemOf("sub/f.x").getFileNameForRepFiles(), "/plan/sub/f.x");
  EXPECT_EQ(itemOf("/arc/f.x").getFileNameForRepFiles(), "/arc/f.x");
  EXPECT_EQ(itemOf("./f.x").getFileNameForRepFiles(), "/plan/./f.x");
  m_model.setActiveProject(nullptr);
  EXPECT_EQ(itemOf("sub/f.x").getFileNameForRepFiles(), "sub/f.x");
}

TEST_F(CMArchiveItemTest, ListedModesAreKeptApartFromTheItemsOwn) {
  for (const int listed : {ListedMode::Unknown, ListedMode::ReadOnly, ListedMode::ReadWrite}) {
    const CMArchiveItem item("f.x", "", ListedMode::store(listed), "", "");
    EXPECT_EQ(ListedMode::of(item), listed);
    EXPECT_EQ(static_cast<int>(item.getMode()), listed);
  }
}

TEST_F(CMArchiveItemTest, ListRemovesByIdentityAndTheWrapperDestroysInAnyCase) {
  CMArchiveItemListWrapper wrapper;
  auto* const first = new CMArchiveItem(itemOf("f.x"));
  auto* const twin = new CMArchiveItem(itemOf("f.x"));
  wrapper.addTail(first);
  wrapper.addTail(nullptr);
  wrapper.addTail(twin);
  wrapper.removeAndMemoryDelete(nullptr);
  EXPECT_EQ(wrapper.list().size(), 3U);
  wrapper.removeAndMemoryDelete(twin);
  EXPECT_THAT(std::vector<CMArchiveItem*>(wrapper.list().begin(), wrapper.list().end()),
              ElementsAre(first, nullptr));
  // Not in the list: destroyed all the same, which the leak checker would notice.
  wrapper.removeAndMemoryDelete(new CMArchiveItem(itemOf("g.x")));
  EXPECT_EQ(wrapper.list().size(), 2U);
}

TEST_F(CMArchiveItemTest, DiagnosticsAreLedByTypeAndName) {
  const CMDiagnostic ofItem(0, "gone", itemOf("a/Pump.vcl"));
  EXPECT_EQ(ofItem.getMessage(), "Class 'Pump': gone");
  const CMDiagnostic ofUnit(1, "done", &m_model.addPackage("Drive.vpk"));
  EXPECT_EQ(ofUnit.getMessage(), "Package 'Drive': done");
  EXPECT_EQ(ofUnit.getStatus(), 1);
  EXPECT_EQ(CMDiagnostic(0, "no tool", nullptr).getMessage(), "no tool");
}

}  // namespace
}  // namespace veldra::test
