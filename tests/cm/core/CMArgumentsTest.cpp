#include "cm/core/CMArguments.h"

#include <functional>
#include <memory>

#include "cm/core/CMArchive.h"
#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMUnit.h"
#include "cm/host/IPN.h"
#include "tests/support/HostTest.h"

namespace veldra::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class CMArgumentsTest : public HostTest {};

TEST_F(CMArgumentsTest, EveryKindAnswersToItsKeywordsInAnyCase) {
  struct Row {
    std::shared_ptr<CMArgument> argument;
    std::vector<const char*> keywords;
  };
  const std::vector<Row> rows{
      {std::make_shared<CMArchive>(""), {"archive", "ARCHIVEDirectory"}},
      {std::make_shared<CMLabel>("v"), {"Label"}},
      {std::make_shared<CMLog>("v"), {"LOG"}},
      {std::make_shared<CMLogFile>("v"), {"logfile", "logFile"}},
      {std::make_shared<CMMode>(CMMode::ReadOnly), {"Mode"}},
      {std::make_shared<CMSuppressOKMessage>("v"), {"shouldsuppresssccokmessage"}},
      {std::make_shared<CMTargetFile>("v"), {"targetdir"}},
      {std::make_shared<CMWorkspace>("v"), {"Workspace"}},
      {std::make_shared<CMUnit>(),
       {"unit", "UNITDIRECTORY", "unitpath", "UnitDirPath", "unitarchivepath", "unitArchiveDir"}},
  };
  for (const Row& answering : rows) {
    for (const Row& asked : rows) {
      for (const char* keyword : asked.keywords) {
        SCOPED_TRACE(keyword);
        const bool own = &answering == &asked;
        EXPECT_EQ(answering.argument->isNamed(keyword) != 0, own);
        if (!own) {
          EXPECT_EQ(answering.argument->substitute(keyword), keyword);
        }
      }
    }
    EXPECT_EQ(answering.argument->isNamed(""), 0);
    EXPECT_EQ(answering.argument->isNamed("unitpaths"), 0);
  }
}

TEST_F(CMArgumentsTest, LabelsAndCommentsAreQuotedOnlyWhereNeeded) {
  struct Row {
    const char* value;
    const char* label;
    const char* log;
  };
  for (const Row& row : std::vector<Row>{{"1.3", "1.3", "1.3"},
                                         {"", "", ""},
                                         {"two words", "\"two words\"", "\"two words\""},
                                         {"line\nend", "line\nend", "\"line\nend\""},
                                         {"line\rend", "line\rend", "\"line\rend\""},
                                         {"tab\there", "tab\there", "tab\there"}}) {
    SCOPED_TRACE(row.value);
    EXPECT_EQ(CMLabel(row.value).substitute("label"), row.label);
    EXPECT_EQ(CMLog(row.value).substitute("log"), row.log);
  }
}

TEST_F(CMArgumentsTest, EncloseCommentsInQuotesMeansTheOpposite) {
  for (const char* value : {"Yes", "no way", "", "false"}) {
    set("EncloseCommentsInQuotes", value, IPN::General);
    EXPECT_FALSE(CMLog::EncloseCommentsInQuotes()) << value;
  }
  set("EncloseCommentsInQuotes", "nO", IPN::General);
  EXPECT_TRUE(CMLog::EncloseCommentsInQuotes());
  CMLog log("two words");
  EXPECT_EQ(log.substitute("log"), "two words");
  // Whatever it is asked, it hands out the comment; but it lays claim to its own keyword only, or a
  // command would have the comment in place of the file.
  EXPECT_EQ(log.substitute("UnitPath"), "two words");
  EXPECT_NE(log.isNamed("log"), 0);
  EXPECT_EQ(log.isNamed("UnitPath"), 0);

  m_model.setActiveProject(nullptr);
  EXPECT_FALSE(CMLog::EncloseCommentsInQuotes());
}

TEST_F(CMArgumentsTest, LogFileHoldsTheCommentByteForByteWhileTheArgumentLives) {
  const std::string comment("a \"quoted\"\r\n> $log %1 \xff\0 end", 28);
  std::string path;
  {
    CMLogFile argument(comment);
    EXPECT_THAT(m_host.files.find("/tmp/veldra1"), testing::IsNull());
    path = argument.substitute("logFile");
    EXPECT_EQ(argument.substitute("LOGFILE"), path);
    ASSERT_NE(m_host.files.find(path), nullptr);
    EXPECT_EQ(m_host.files.find(path)->content, comment);
  }
  EXPECT_EQ(m_host.files.find(path), nullptr);
}

TEST_F(CMArgumentsTest, LogFileThatCannotBeWrittenIsReported) {
  m_host.memoryEnvironment.diskFull = true;
  CMLogFile argument("comment");
  EXPECT_EQ(argument.substitute("logFile"), "");
  ASSERT_THAT(m_host.memoryMessages.asked, SizeIs(1));
  EXPECT_THAT(m_host.memoryMessages.asked[0].text, HasSubstr("60009: /tmp"));
}

TEST_F(CMArgumentsTest, ModeIsTheToolsWord) {
  set(IPN::CMReadOnly, "-r");
  EXPECT_EQ(CMMode(CMMode::ReadOnly).substitute("mode"), "-r");
  EXPECT_EQ(CMMode(CMMode::ReadWrite).substitute("mode"), "");
  set(IPN::CMReadWrite, "-l");
  EXPECT_EQ(CMMode(CMMode::ReadWrite).substitute("mode"), "-l");
}

TEST_F(CMArgumentsTest, ArchiveIsTheHeldPathOrTheMainArchiveExpanded) {
  EXPECT_EQ(CMArchive("/held").substitute("archive"), "/held");
  EXPECT_EQ(CMArchive("").substitute("archive"), "");
  set(IPN::CMArchive, "$OMROOT/main");
  EXPECT_EQ(CMArchive("").substitute("archive"), "/opt/veldra/main");
  EXPECT_EQ(CMArchive("/held").substitute("archive"), "/held");
}

TEST_F(CMArgumentsTest, ArchiveDirectoryLooksAtTheDisk) {
  m_host.files.write("/arc/sub\\file.arc", "");
  m_host.files.write("/arc/dir/file.arc", "");
  struct Row {
    const char* path;
    const char* directory;
    bool traced;
  };
  debugTraces();
  for (const Row& row : std::vector<Row>{{"/arc/dir/file.arc", "/arc/dir", false},
                                         {"/arc/sub\\file.arc", "/arc/sub", false},
                                         {"/arc/dir", "/arc/dir", false},
                                         {"/arc/missing.arc", "/arc/missing.arc", true}}) {
    SCOPED_TRACE(row.path);
    m_host.manager.window.str("");
    EXPECT_EQ(CMArchive(row.path).substitute("archiveDirectory"), row.directory);
    EXPECT_THAT(
        windowLines(std::string("+++ Problem getting _tstat information about ") + row.path),
        SizeIs(row.traced ? 1 : 0));
  }
  m_host.memoryEnvironment.settings[{"General", "DEBUG_CM"}] = "true";
  m_host.manager.window.str("");
  CMArchive("/arc/missing.arc").substitute("archiveDirectory");
  EXPECT_EQ(window(), "");
}

TEST_F(CMArgumentsTest, MainArchiveIsStoredInTheProjectAndReadBack) {
  EXPECT_EQ(CMArchive::setMainArchive("/arc"), 0) << "the host has no such property";
  set(IPN::CMArchive, "");
  EXPECT_EQ(CMArchive::setMainArchive("$OMROOT"), 1);
  EXPECT_EQ(CMArchive::getMainArchive(), "/opt/veldra");
  m_model.setActiveProject(nullptr);
  EXPECT_EQ(CMArchive::setMainArchive("/arc"), 0);
  EXPECT_EQ(CMArchive::getMainArchive(), "");
}

TEST_F(CMArgumentsTest, ArchiveSelectionByWord) {
  EXPECT_EQ(CMArchive::getArchiveSelection(), CMArchive::ArchiveUnset);
  for (const auto& [value, selection] :
       std::vector<std::pair<const char*, int>>{{"file", 1}, {"DIRECTORY", 0}, {"Files", 2}}) {
    set(IPN::CMArchiveSelection, value);
    EXPECT_EQ(CMArchive::getArchiveSelection(), selection) << value;
  }
  set(IPN::CMArchiveSelection, "File");
  m_model.setActiveProject(nullptr);
  EXPECT_EQ(CMArchive::getArchiveSelection(), CMArchive::ArchiveUnset);
}

class CMUnitTest : public HostTest {
 protected:
  /// All keywords of a unit in the order of the table in the header.
  static std::vector<std::string> all(CMUnit& argument) {
    std::vector<std::string> values;
    for (const char* keyword :
         {"Unit", "UnitPath", "UnitDirPath", "UnitDirectory", "UnitArchivePath", "UnitArchiveDir"})
      values.push_back(argument.substitute(keyword));
    return values;
  }
};

TEST_F(CMUnitTest, NoFile) {
  CMUnit none;
  EXPECT_THAT(all(none), ElementsAre("", "", ".", "", "", ""));
}

TEST_F(CMUnitTest, UnitBelowTheWorkingDirectory) {
  CMUnit unit(&m_model.addUnit("drive/Engine.vcl"));
  EXPECT_THAT(all(unit), ElementsAre("Engine.vcl", "/plan/drive/Engine.vcl", "/plan/drive",
                                     "/drive", "/plan/drive/Engine.vcl", "/plan/drive"));
}

TEST_F(CMUnitTest, ArchivePlaceFollowsTheRepositoryTemplate) {
  struct Row {
    const char* repository;
    const char* path;
    const char* directory;
  };
  MemoryUnit& engine = m_model.addUnit("drive/Engine.vcl");
  for (const Row& row :
       std::vector<Row>{{"$ArchivePath/x", "/plan/drive/Engine.vcl", "$ArchivePath/x"},
                        {"/arc$SubDirs", "/arc/drive/Engine.vcl", "/arc/drive"},
                        {"", "/plan/drive/Engine.vcl", "/plan/drive"},
                        {"$archive$SubDirs", "/main/drive/Engine.vcl", "/main/drive"}}) {
    SCOPED_TRACE(row.repository);
    set(IPN::CMArchive, "/main");
    set("Repository", row.repository);
    CMUnit unit(&engine);
    EXPECT_EQ(unit.substitute("UnitArchivePath"), row.path);
    EXPECT_EQ(unit.substitute("UnitArchiveDir"), row.directory);
  }
}

TEST_F(CMUnitTest, ArchiveItem) {
  CMArchiveItem item("drive/Engine.vcl", "1.1", CMArchiveItem::ReadOnly, "", "");
  CMUnit unit(&item);
  EXPECT_THAT(all(unit), ElementsAre("Engine.vcl", "/plan/drive/Engine.vcl", "/plan/drive",
                                     "/drive", "drive/Engine.vcl", "drive"));
  CMArchiveItem atRoot("Engine.vcl", "1.1", CMArchiveItem::ReadOnly, "", "");
  CMUnit unitAtRoot(&atRoot);
  EXPECT_THAT(all(unitAtRoot),
              ElementsAre("Engine.vcl", "/plan/Engine.vcl", "/plan", "", "Engine.vcl", ""));
  // The dot is looked for in the whole path first, so a name without one is cut short.
  CMArchiveItem odd("pkg.dir\\unit", "", CMArchiveItem::ReadOnly, "", "");
  EXPECT_EQ(CMUnit(&odd).substitute("Unit"), "pkg.dir\\unit");
}

TEST_F(CMUnitTest, DirectoryIsRelativeToTheWorkingDirectory) {
  struct Row {
    const char* directory;
    const char* relative;
  };
  MemoryUnit& unit = m_model.addUnit("Engine.vcl");
  for (const Row& row : std::vector<Row>{{"/plan", ""},
                                         {"/plan/a/b", "/a/b"},
                                         {"/elsewhere/a", ""},
                                         {"/PLAN/a", ""},
                                         {"/plan/", ""}}) {
    SCOPED_TRACE(row.directory);
    unit.record.directory = row.directory;
    EXPECT_EQ(CMUnit(&unit).substitute("UnitDirectory"), row.relative);
  }
  unit.record.directory = "/plan/a";
  m_model.setActiveProject(nullptr);
  EXPECT_EQ(CMUnit(&unit).substitute("UnitDirectory"), "");
}

TEST_F(CMUnitTest, WindowsPathsAreCutAtTheLaterSeparator) {
  m_host.memoryEnvironment.separator = '\\';
  MemoryUnit& unit = m_model.addUnit("x.vcl");
  unit.record.directory = "C:\\work";  // The full name becomes C:\work/x.vcl.
  EXPECT_EQ(CMUnit(&unit).substitute("UnitDirPath"), "C:\\work");
  EXPECT_EQ(CMUnit(&unit).substitute("UnitPath"), "C:\\work\\x.vcl");
}

}  // namespace
}  // namespace veldra::test
