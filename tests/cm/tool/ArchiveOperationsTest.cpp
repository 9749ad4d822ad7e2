#include "cm/core/CMFacade.h"
#include "cm/host/IPN.h"
#include "cm/tool/CMCheckOutFromArchive.h"
#include "cm/tool/CMConnectToCMRepository.h"
#include "cm/tool/CMFetchFromArchive.h"
#include "cm/tool/CMListArchive.h"
#include "cm/tool/CMRecFetchFromArchive.h"
#include "tests/support/ToolTest.h"

namespace veldra::test {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Outcome = ReloadScript::Outcome;

/// A tool whose listing has one line a file: "name|version|mode|locker".
class ListArchiveTest : public ToolTest {
 protected:
  ListArchiveTest() {
    set(IPN::CMListArchive, "ls $archive");
    set(IPN::CMArchive, "/main");
    set(IPN::CMMultiRecordDelimiter, "\\n");
    set(IPN::CMListArchiveItsWorkingFile, "^([^|]*)\\|");
    set(IPN::CMListArchiveItsVersion, "^[^|]*\\|([^|]*)");
    set(IPN::CMListArchiveItsMode, "\\|(?:(rw)|ro)\\|");
    set(IPN::CMListArchiveItsLocker, "([^|]*)$");
  }
  int list(const std::string& output) {
    answer("ls", {.output = output});
    m_items.removeAll();
    const int result = callOnItems<CMListArchive>();
    for (CMArchiveItem* item : m_items) m_listed.addTail(item);
    return result;
  }
  /// "path version mode locker" for each item.
  Lines listed() const {
    Lines lines;
    for (const CMArchiveItem* item : m_items)
      lines.push_back(item->getFileNameWithPath() + " " + item->getVersion() + " " +
                      std::to_string(ListedMode::of(*item)) + " " + item->getLocker());
    return lines;
  }

 private:
  CMArchiveItemListWrapper m_listed;
};

TEST_F(ListArchiveTest, RecordsBecomeItems) {
  EXPECT_EQ(list("a/A.vcl|1.2|rw|bob\nB.vcl|1.1|ro|\nC.vcl||?|ann\n"), 1);
  EXPECT_THAT(listed(), ElementsAre("a/A.vcl 1.2 2 bob", "B.vcl 1.1 1 ", "C.vcl  0 ann"));
  EXPECT_THAT(m_host.traceLog.texts(),
              ElementsAre("Executing the following command to list the files in the archive: "
                          "ls /main",
                          HasSubstr("List archive command returned the following: a/A.vcl")));
  EXPECT_THAT(m_arguments, IsEmpty());
  EXPECT_EQ((*m_items.begin())->getStatus(), "");
}

TEST_F(ListArchiveTest, ValuesOfXmlAreRead) {
  const std::string output = "a &amp;lt; &lt;b&gt;.vcl|&quot;1&apos;|ro|R&amp;D\n";
  list(output);
  EXPECT_THAT(listed(), ElementsAre("a &amp;lt; &lt;b&gt;.vcl &quot;1&apos; 1 R&amp;D"));
  set("ListArchiveIsXml", "Yes");
  list(output);
  EXPECT_THAT(listed(), ElementsAre("a &lt; <b>.vcl \"1' 1 R&D"));
}

TEST_F(ListArchiveTest, WhatWasReadAheadCountsOnlyWhenItIsTheAnswer) {
  const std::string output = "A.vcl|1|ro|\nagain\nB.vcl|2|ro|\nC.vcl|3|rw|ann\n";
  EXPECT_EQ(list(output), 1);
  EXPECT_THAT(m_items, SizeIs(3));
  set("ListArchiveStartsOver", "^(again)$");
  EXPECT_EQ(list(output), 1);
  EXPECT_THAT(listed(), ElementsAre("B.vcl 2 1 ", "C.vcl 3 2 ann"));
  answer("ls", {.output = output, .errors = "no archive\n"});
  m_items.removeAll();
  callOnItems<CMListArchive>();
  EXPECT_THAT(m_items, IsEmpty()) << "error lines take the place of the output";
}

TEST_F(ListArchiveTest, ItemsAreAppended) {
  CMArchiveItem& first = addItem("first.vcl");
  answer("ls", {.output = "A.vcl|1|ro|\n"});
  EXPECT_EQ(callOnItems<CMListArchive>(), 1);
  ASSERT_THAT(m_items, SizeIs(2));
  EXPECT_EQ(*m_items.begin(), &first);
  CMArchiveItemListWrapper owner;
  owner.addTail(*(m_items.begin() + 1));
}

TEST_F(ListArchiveTest, Modes) {
  // Unknown when the pattern does not match at all, read-only when its group took no part.
  for (const auto& [pattern, mode] : std::vector<std::pair<const char*, int>>{
           {"(rw)", 2}, {"never (rw)", 0}, {"r(x)?w", 1}, {"", 0}, {"no group", 0}}) {
    SCOPED_TRACE(pattern);
    set(IPN::CMListArchiveItsMode, pattern);
    list("A.vcl|1|rw|\n");
    ASSERT_THAT(m_items, SizeIs(1));
    EXPECT_EQ(ListedMode::of(**m_items.begin()), mode);
  }
  unset(IPN::CMListArchiveItsMode);
  list("A.vcl|1|rw|\n");
  EXPECT_EQ(ListedMode::of(**m_items.begin()), ListedMode::Unknown);
}

TEST_F(ListArchiveTest, Delimiters) {
  struct Row {
    const char* delimiter;
    const char* output;
    std::size_t items;
  };
  for (const Row& row : std::vector<Row>{{"====\\n", "A.vcl|1|rw|", 1},
                                         {"====\\n", "A.vcl|1|rw|\n====\nB.vcl|1|rw|\n", 2},
                                         {"\\n+", "A.vcl|1|rw|\n\n\nB.vcl|1|rw|\n", 2},
                                         {"\\n", "", 0},
                                         {"(unclosed", "A.vcl|1|rw|", 1}}) {
    SCOPED_TRACE(row.output);
    set(IPN::CMMultiRecordDelimiter, row.delimiter);
    list(row.output);
    EXPECT_THAT(m_items, SizeIs(row.items));
  }
  unset(IPN::CMMultiRecordDelimiter);
  EXPECT_EQ(list("A.vcl|1|rw|\n"), 1);
  EXPECT_THAT(m_items, IsEmpty());
}

TEST_F(ListArchiveTest, OfProjectFilesOnlyTheOwnOneIsListed) {
  struct Row {
    const char* file;
    bool listed;
  };
  for (const Row& row : std::vector<Row>{{"Plant.vdy", true},
                                         {"src\\Plant.vdy", true},
                                         {"src/Plant.vdy", true},
                                         {"src/ Plant.vdy ", true},
                                         {"src/plant.vdy", false},
                                         {"src\\Other.vdy", false},
                                         {"Other.vdy.vcl", false},
                                         {"src/Engine.vcl", true}}) {
    SCOPED_TRACE(row.file);
    set("ShowAllFilesInArchive", "False");
    list(std::string(row.file) + "|1|ro|\n");
    EXPECT_THAT(m_items, SizeIs(row.listed ? 1 : 0));
    set("ShowAllFilesInArchive", "True");
    list(std::string(row.file) + "|1|ro|\n");
    EXPECT_THAT(m_items, SizeIs(1));
  }
}

TEST_F(ListArchiveTest, NamesWithoutADot) {
  const std::string output = "Makefile|1|ro|\npkg.dir/unit|1|ro|\nA.vcl|1|ro|\n";
  list(output);
  EXPECT_THAT(m_items, SizeIs(1)) << "the setting is missing";
  set("IgnoreArchiveItemsWithoutDot", "True", IPN::General);
  list(output);
  EXPECT_THAT(m_items, SizeIs(1));
  set("IgnoreArchiveItemsWithoutDot", "False", IPN::General);
  list(output);
  EXPECT_THAT(m_items, SizeIs(3));
}

TEST_F(ListArchiveTest, RecordsWithoutAWorkingFileAreSkipped) {
  EXPECT_EQ(list("total 3\nA.vcl|1|rw|bob\n"), 1);
  EXPECT_THAT(m_items, SizeIs(1));
  EXPECT_EQ(list("A.vcl|1|rw|bob\ntotal 3"), 0) << "the last record decides the result";
  set(IPN::CMListArchiveItsWorkingFile, "");
  list("A.vcl|1|rw|bob\n");
  EXPECT_THAT(m_items, IsEmpty());
}

TEST_F(ListArchiveTest, WhatStopsAListing) {
  unset(IPN::CMListArchive);
  EXPECT_EQ(list("A.vcl|1|rw|bob\n"), 0);
  set(IPN::CMListArchive, "ls");
  m_project.unitDirectory = "/gone";
  EXPECT_EQ(list("A.vcl|1|rw|bob\n"), 0);
  EXPECT_THAT(commands(), IsEmpty());
  set(IPN::CMTool, "none", IPN::General);
  EXPECT_EQ(list(""), 0);
  EXPECT_THAT(m_diagnostics, SizeIs(1));
  m_model.setActiveProject(nullptr);
  EXPECT_EQ(list(""), 0);
  EXPECT_THAT(m_items, IsEmpty());
}

TEST_F(ListArchiveTest, DebugLinesOfARecord) {
  debugTraces();
  list("A.vcl|1.2|rw|bob\n");
  EXPECT_THAT(windowLines("+++ Archive"),
              ElementsAre("+++ Archive working file: 'A.vcl'", "+++ Archive version: '1.2'",
                          "+++ Archive file mode: ReadWrite", "+++ Archive Locker: 'bob'"));
}

class CheckOutFromArchiveTest : public ToolTest {
 protected:
  CheckOutFromArchiveTest() { set(IPN::CMCheckOutFromArchive, "co $UnitArchivePath"); }
};

TEST_F(CheckOutFromArchiveTest, ALoadedUnitIsReloadedAndANewFileAdded) {
  m_model.addWorkspace("Plant.vws");
  m_model.addUnit("A.vcl");
  addItem("A.vcl");
  addItem("sub/New.vcl");
  m_items.addTail(nullptr);
  answer("co", {.output = "answer"});
  EXPECT_EQ(callOnItems<CMCheckOutFromArchive>(), 1);
  EXPECT_THAT(m_host.journal.lines(),
              ElementsAre("before", "handler-prepare 1 /plan/A.vcl", "run co A.vcl",
                          "handler-complete /plan/A.vcl", "reload A.vcl",
                          "handler-prepare 1 /plan/sub/New.vcl", "run co sub/New.vcl",
                          "handler-complete /plan/sub/New.vcl", "add New.vcl at /plan/sub",
                          "saved-list New.vcl", "after"));
  EXPECT_THAT(m_host.traceLog.texts(),
              ElementsAre("Executing the following command to check out the file from the archive: "
                          "co A.vcl",
                          "Check out from the archive command returned the following: answer",
                          "Performing ATM for the file A.vcl",
                          "Executing the following command to check out the file from the archive: "
                          "co sub/New.vcl",
                          "Check out from the archive command returned the following: answer",
                          "Performing ATM for the file New.vcl"));
}

TEST_F(CheckOutFromArchiveTest, AUnitOfThatFileElsewhereIsNotReloaded) {
  m_model.addUnit("A.vcl");
  addItem("sub/A.vcl");
  callOnItems<CMCheckOutFromArchive>();
  EXPECT_THAT(m_host.journal.only({"reload", "add"}), ElementsAre("add A.vcl at /plan/sub"));
}

TEST_F(CheckOutFromArchiveTest, FilesOfUnknownTypeAreNotLoaded) {
  addItem("notes.doc");
  EXPECT_EQ(callOnItems<CMCheckOutFromArchive>(), 1);
  EXPECT_THAT(commands(), SizeIs(1));
  EXPECT_THAT(m_host.journal.only({"reload", "add", "handler-complete"}), IsEmpty());
}

TEST_F(CheckOutFromArchiveTest, TheHandlerNamesAModelFile) {
  m_model.unitTypes[".vdr"] = ".VDR";
  addItem("Old.vdr");
  callOnItems<CMCheckOutFromArchive>();
  EXPECT_THAT(m_host.journal.only({"add"}), ElementsAre("add /plan/Old.vdy at /plan"));
}

TEST_F(CheckOutFromArchiveTest, AFileThatCannotBeLoadedIsReported) {
  set("ReportLoadingError", "Output Window");
  m_host.reloads.addToModel = Outcome::Lose;
  addItem("sub/New.vcl");
  EXPECT_EQ(callOnItems<CMCheckOutFromArchive>(), 0);
  EXPECT_THAT(window(), HasSubstr("\nERROR : 47640: /plan/sub/New.vcl\n"));
}

TEST_F(CheckOutFromArchiveTest, AWritableLoadedFileIsAskedAbout) {
  m_model.addUnit("A.vcl");
  m_host.files.find("/plan/A.vcl")->writable = true;
  m_host.files.write("/plan/New.vcl", "", true);  // Writable too, but no unit is loaded from it.
  addItem("A.vcl");
  addItem("New.vcl");
  EXPECT_EQ(callOnItems<CMCheckOutFromArchive>(), 1);
  EXPECT_THAT(m_host.memoryMessages.overwriteQuestions, ElementsAre("953: A.vcl /plan/A.vcl"));
  EXPECT_THAT(commands(), ElementsAre("co New.vcl"));
}

TEST_F(CheckOutFromArchiveTest, SavesOnlyOnRequest) {
  EXPECT_EQ(callOnItems<CMCheckOutFromArchive>(), 0);
  addItem("A.vcl");
  callOnItems<CMCheckOutFromArchive>();
  EXPECT_THAT(m_host.journal.only({"save"}), IsEmpty());
  set(IPN::CMSaveOnCheckOut, "True");
  callOnItems<CMCheckOutFromArchive>();
  EXPECT_THAT(m_host.journal.only({"save"}), SizeIs(1));
}

TEST_F(CheckOutFromArchiveTest, FetchRunsTheCommandAndNothingElse) {
  set(IPN::CMFetchFromArchive, "get $UnitArchivePath");
  answer("get", {.output = "answer"});
  addItem("A.vcl");
  EXPECT_EQ(callOnItems<CMFetchFromArchive>(), 1);
  EXPECT_EQ(callOnItems<CMRecFetchFromArchive>(), 1);
  EXPECT_THAT(m_host.journal.lines(), ElementsAre("run get A.vcl", "run get A.vcl"));
  EXPECT_THAT(
      m_host.traceLog.texts(),
      ElementsAre("Executing the following command to fetch the file from the archive: get A.vcl",
                  "Fetch from the archive command returned the following: answer",
                  "Executing the following command to recursively fetch the file(s) from the "
                  "archive: get A.vcl",
                  "Recursive fetch from the archive command returned the following: answer"));
}

class ConnectTest : public ToolTest {
 protected:
  ConnectTest() {
    set(IPN::CMConnectToCMRepository, "connect");
    set("HeaderInfoItsRepositoryPath", "root(.*)");
  }
  int connect() { return CMConnectToCMRepository()(m_units, m_arguments, m_diagnostics); }
};

TEST_F(ConnectTest, LearnsTheRepositoryAndRunsThePostConnectCommand) {
  set("Repository", "$ArchivePath$SubDirs/$FileName:$ArchivePath");
  set("ArchiveRoot", "$ArchivePath");
  set("PostConnectToCMRepository", "post $ArchiveRoot");
  answer("connect", {.output = "root =  /arc  \n"});
  answer("post", {.output = "posted"});
  EXPECT_EQ(connect(), 1);
  EXPECT_EQ(get("Repository"), "/arc$SubDirs/$FileName:/arc");
  EXPECT_EQ(get("ArchiveRoot"), "/arc");
  EXPECT_THAT(m_host.journal.lines(), ElementsAre("save", "run connect", "run post /arc"));
  EXPECT_THAT(m_host.traceLog.texts(),
              ElementsAre("Executing the following command to connect to archive: connect",
                          "Connect to archive command returned the following: root =  /arc  \n",
                          "Executing the following command to perform post connect to archive "
                          "operations: post /arc",
                          "Post connect to archive command returned the following: posted"));
}

TEST_F(ConnectTest, HowThePathIsCleaned) {
  for (const auto& [printed, stored] :
       std::vector<std::pair<const char*, const char*>>{{"root /arc", "/arc"},
                                                        {"root=/arc", "/arc"},
                                                        {"root = = /arc", "= /arc"},
                                                        {"root  =", ""},
                                                        {"nothing of the kind", "$ArchivePath"}}) {
    SCOPED_TRACE(printed);
    set("Repository", "$ArchivePath");
    answer("connect", {.output = printed});
    connect();
    EXPECT_EQ(get("Repository"), stored);
  }
}

TEST_F(ConnectTest, AValueWithoutTheKeywordStaysAndMissingOnesAreNotMade) {
  set("Repository", "/fixed");
  answer("connect", {.output = "root /arc"});
  connect();
  EXPECT_EQ(get("Repository"), "/fixed");
  EXPECT_EQ(get("ArchiveRoot"), "(missing)");
}

TEST_F(ConnectTest, AConnectionThatCouldNotRunIsFollowedByNothing) {
  set("PostConnectToCMRepository", "post");
  m_project.unitDirectory = "/gone";
  EXPECT_EQ(connect(), 0);
  m_project.unitDirectory = "/plan";
  unset(IPN::CMConnectToCMRepository);
  EXPECT_EQ(connect(), 0);
  EXPECT_THAT(commands(), IsEmpty());
}

TEST_F(ConnectTest, ThePostConnectCommandNeedsNoPath) {
  set("PostConnectToCMRepository", "post");
  EXPECT_EQ(connect(), 0) << "the pattern did not match";
  EXPECT_THAT(commands(), ElementsAre("connect", "post"));
}

TEST_F(ConnectTest, TheArchiveOfTheFirstUnitOrTheProjectBecomesTheMainOne) {
  set(IPN::CMArchive, "/main");
  set(IPN::CMArchiveSelection, "Directory");
  MemoryUnit& unit = m_model.addUnit("A.vcl");
  unit.record.archive = "/unit";
  m_project.record.archive = "/project";
  connect();
  EXPECT_EQ(get(IPN::CMArchive), "/project");
  m_units = {&unit};
  connect();
  EXPECT_EQ(get(IPN::CMArchive), "/unit");
  set(IPN::CMArchive, "/main");
  set(IPN::CMArchiveSelection, "");
  connect();
  EXPECT_EQ(get(IPN::CMArchive), "/main");
}

}  // namespace
}  // namespace veldra::test
