#include "cm/core/CMArguments.h"
#include "cm/core/CMFacade.h"
#include "cm/host/IPN.h"
#include "cm/tool/CMDeleteMember.h"
#include "cm/tool/CMMoveMember.h"
#include "cm/tool/CMRenameMember.h"
#include "tests/support/ToolTest.h"

namespace veldra::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class DeleteMoveRenameTest : public ToolTest {
 protected:
  DeleteMoveRenameTest() {
    set(IPN::Delete, "rm $UnitPath");
    set(IPN::DeleteDirectory, "rmdir $OMROOT $UnitDirPath");
    set(IPN::Rename, "mv $oldName $newName");
    set(IPN::RenameDirectory, "mvdir $olddir $newdir $oldName $newName");
    set(IPN::MoveDirectory, "to $olddir $newdir $Unit");
    package.record.packageDirectory = "/plan/pkg";
  }
  int rename(IUnit* member, const std::string& oldName, const std::string& newName) {
    return CMRenameMember()(member, oldName, newName, m_diagnostics, false);
  }
  /// Moves `m_units` to a directory.
  int move(const std::string& directory) {
    CMTargetFile target(directory);
    m_arguments = {&target};
    const int result = callOnUnits<CMMoveMember>();
    EXPECT_THAT(m_arguments, ElementsAre(&target));
    m_arguments.clear();
    return result;
  }

  MemoryUnit& unit = m_model.addUnit("A.vcl");
  MemoryPackage& package = m_model.addPackage("pkg/pkg.vpk");
  MemoryPackage& inFile = m_model.addPackage("inner.vpk");  ///< Without a directory of its own.
};

TEST_F(DeleteMoveRenameTest, APackageWithADirectoryIsDeletedWithIt) {
  answer("rm", {.output = "gone"});
  m_units = {&unit, nullptr, &package, &inFile};
  EXPECT_EQ(callOnUnits<CMDeleteMember>(), 1);
  EXPECT_THAT(commands(),
              ElementsAre("rm /plan/A.vcl", "rmdir /opt/veldra /plan/pkg", "rm /plan/inner.vpk"));
  EXPECT_THAT(m_host.traceLog.texts()[0],
              "Executing the following command to delete the file: rm /plan/A.vcl");
  EXPECT_THAT(m_host.traceLog.texts()[1], "Delete file command returned the following: gone");
  EXPECT_THAT(m_arguments, IsEmpty());

  forgetEvents();
  set(IPN::DeleteDirectory, "");
  callOnUnits<CMDeleteMember>();
  EXPECT_THAT(commands()[1], "rm /plan/pkg/pkg.vpk");
}

TEST_F(DeleteMoveRenameTest, APackageWithoutAFileIsNamedByItsDirectoryOrNotAtAll) {
  package.record.fileName.clear();
  inFile.record.fileName.clear();
  m_units = {&package, &inFile};
  callOnUnits<CMDeleteMember>();
  EXPECT_THAT(commands(), ElementsAre("rmdir /opt/veldra /plan/pkg"));
  EXPECT_EQ(m_host.memoryProgress.ended.back().end, UnitEnd::Refused) << "it has no place at all";
  forgetEvents();
  m_units = {&package};
  EXPECT_EQ(move("/plan/to"), 1);
  EXPECT_EQ(rename(&package, "/plan/pkg/", "/plan/other/"), 1);
  EXPECT_THAT(commands(), ElementsAre("to /plan/pkg /plan/to/pkg ",
                                      "mvdir /plan/pkg /plan/other /plan/pkg/ /plan/other/"));
  forgetEvents();
  for (const char* name : {IPN::DeleteDirectory, IPN::MoveDirectory, IPN::RenameDirectory}) {
    unset(name);
  }
  callOnUnits<CMDeleteMember>();
  move("/plan/to");
  rename(&package, "/plan/pkg/", "/plan/other/");
  EXPECT_THAT(commands(), IsEmpty());
}

TEST_F(DeleteMoveRenameTest, ADirectoryIsDeletedByPlainReplacement) {
  struct Row {
    const char* value;
    const char* directory;
    Lines commands;
  };
  for (const Row& row : std::vector<Row>{{"rmdir $OMROOT $UnitDirPath $UnitDirPath $logFile",
                                          "/plan/a b",
                                          {"rmdir /opt/veldra /plan/a b /plan/a b $logFile"}},
                                         {"rmdir all", "/plan/a", {"rmdir all"}},
                                         {"rmdir $unitdirpath", "/plan/a", {"rmdir $unitdirpath"}},
                                         {"", "/plan/a", {}},
                                         {"rmdir $UnitDirPath", "/plan/a\"b", {}},
                                         {"rmdir $UnitDirPath", "/plan/$OMROOT", {}}}) {
    SCOPED_TRACE(row.value);
    forgetEvents();
    set(IPN::DeleteDirectory, row.value);
    EXPECT_EQ(CMDeleteMember().deleteDirectory(row.directory, m_arguments, m_diagnostics, false),
              row.commands.empty() ? 0 : 1);
    EXPECT_EQ(commands(), row.commands);
    EXPECT_THAT(m_arguments, IsEmpty());
  }
  set(IPN::DeleteDirectory, "rmdir $UnitDirPath");
  forgetEvents();
  CMDeleteMember().deleteDirectory("/plan/a", m_arguments, m_diagnostics, false);
  EXPECT_THAT(m_host.traceLog.texts(),
              ElementsAre("Executing the following command to delete the directory: rmdir /plan/a",
                          "Delete directory command returned the following: "));
  m_host.memoryEnvironment.rootKnown = false;
  EXPECT_EQ(CMDeleteMember().deleteDirectory("/plan/a", m_arguments, m_diagnostics, false), 0);
}

TEST_F(DeleteMoveRenameTest, AMoveNamesTheFilesAndPackagesTakeTheirDirectoryAlong) {
  m_units = {&unit, &package, &inFile};
  EXPECT_EQ(move("/plan/to"), 1);
  EXPECT_THAT(commands(),
              ElementsAre("mv /plan/A.vcl /plan/to/A.vcl", "to /plan/pkg /plan/to/pkg pkg.vpk",
                          "mv /plan/inner.vpk /plan/to/inner.vpk"));
  forgetEvents();
  set(IPN::MoveDirectory, "");
  m_units = {&package};
  move("/plan/to");
  EXPECT_THAT(commands(), ElementsAre("mv /plan/pkg/pkg.vpk /plan/to/pkg/pkg.vpk"));
}

TEST_F(DeleteMoveRenameTest, AMoveWithoutATargetIsRefused) {
  m_units = {&unit};
  EXPECT_EQ(callOnUnits<CMMoveMember>(), 0);
  EXPECT_THAT(commands(), IsEmpty());
  ASSERT_THAT(m_diagnostics, SizeIs(1));
  EXPECT_THAT(m_diagnostics[0].getMessage(), HasSubstr("60020"));
}

TEST_F(DeleteMoveRenameTest, ContentMovesAsAWholeOrUnitByUnit) {
  UnitList content{&package, &m_model.addUnit("pkg/B.vcl")};
  const auto moveContent = [&] {
    forgetEvents();
    EXPECT_EQ(CMMoveMember().movePackageContent(&package, content, "/plan/pkg", "/plan/x/y",
                                                m_arguments, m_diagnostics, false),
              1);
    return commands();
  };
  EXPECT_THAT(moveContent(), ElementsAre("to /plan/pkg /plan/x/y pkg.vpk"));
  unset(IPN::MoveDirectory);
  EXPECT_THAT(moveContent(), ElementsAre("mv /plan/pkg/pkg.vpk /plan/x/y/pkg.vpk",
                                         "mv /plan/pkg/B.vcl /plan/x/y/B.vcl"));
}

TEST_F(DeleteMoveRenameTest, ARenameTakesTheDirectoryTemplateWhenAPackageDirectoryChanges) {
  struct Row {
    IUnit* unit;
    const char* oldName;
    const char* newName;
    const char* command;
  };
  for (const Row& row : std::vector<Row>{
           {&unit, "/plan/A.vcl", "/plan/B.vcl", "mv /plan/A.vcl /plan/B.vcl"},
           {&unit, "/plan/A.vcl", "/plan/x/B.vcl", "mv /plan/A.vcl /plan/x/B.vcl"},
           {&package, "/plan/pkg/pkg.vpk", "/plan/box/box.vpk",
            "mvdir /plan/pkg /plan/box /plan/pkg/pkg.vpk /plan/box/box.vpk"},
           {&package, "/plan/pkg/pkg.vpk", "/plan/pkg/p.vpk",
            "mv /plan/pkg/pkg.vpk /plan/pkg/p.vpk"},
           {&inFile, "/plan/inner.vpk", "/plan/x/i.vpk", "mv /plan/inner.vpk /plan/x/i.vpk"}}) {
    SCOPED_TRACE(row.command);
    forgetEvents();
    EXPECT_EQ(rename(row.unit, row.oldName, row.newName), 1);
    EXPECT_THAT(commands(), ElementsAre(row.command));
  }
}

TEST_F(DeleteMoveRenameTest, TheFacadePassesACommentOn) {
  set(IPN::Rename, "mv $oldName $newName -m $log");
  CMLog log("why");
  m_arguments = {&log};
  EXPECT_EQ(CMFacade::RenameMember(&unit, "/plan/A.vcl", "/plan/B.vcl", m_arguments, m_diagnostics),
            1);
  EXPECT_THAT(commands(), ElementsAre("mv /plan/A.vcl /plan/B.vcl -m why"));
  EXPECT_THAT(m_arguments, ElementsAre(&log));
}

TEST_F(DeleteMoveRenameTest, NamesThatNoCommandCanCarryAreRefused) {
  for (const char* name : {"/plan/a\"b.vcl", "/plan/a>b", "/plan/$log", "/plan/(a?b)", "/plan/a\n",
                           "/plan/${oldName}"}) {
    SCOPED_TRACE(name);
    m_diagnostics.clear();
    EXPECT_EQ(rename(&unit, "/plan/A.vcl", name), 0);
    m_units = {&unit};
    EXPECT_EQ(move(name + std::string("/in")), 0);
    ASSERT_THAT(m_diagnostics, SizeIs(2));
    EXPECT_THAT(m_diagnostics[0].getMessage(), HasSubstr(name));
  }
  EXPECT_THAT(commands(), IsEmpty());
  EXPECT_EQ(rename(&unit, "/plan/A.vcl", ""), 0);
  EXPECT_THAT(m_diagnostics.back().getMessage(), HasSubstr("60021"));
}

TEST_F(DeleteMoveRenameTest, InHybridModeTheTemplatesAreThoseOfTheProvider) {
  useProvider("Vaultrix");
  set("UseHybridModeWhenPossible", "True", IPN::General);
  set(IPN::DeleteDirectory, "vault-rmdir $UnitDirPath", "Vaultrix");
  set(IPN::Rename, "vault-mv $oldName $newName", "Vaultrix");
  m_units = {&package};
  EXPECT_EQ(CMFacade::DeleteMember(m_units, m_arguments, m_diagnostics), 1);
  EXPECT_EQ(CMFacade::RenameMember(&unit, "/plan/A.vcl", "/plan/x/A.vcl", m_diagnostics), 1);
  EXPECT_THAT(commands(),
              ElementsAre("vault-rmdir /plan/pkg", "vault-mv /plan/A.vcl /plan/x/A.vcl"));
}

}  // namespace
}  // namespace veldra::test
