#include "host/model/Reloading.h"

#include <gmock/gmock.h>

#include <new>

#include "host/model/Model.h"
#include "host/model/ModelFileHandler.h"
#include "tests/host/model/TempModel.h"

namespace veldra::host {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

void setOwnerMayWrite(const std::string& path, bool may) {
  fs::permissions(path, fs::perms::owner_write,
                  may ? fs::perm_options::add : fs::perm_options::remove);
}

TEST(Handle, tellsADeadObjectFromANewOneAtTheSameAddress) {
  TempModel model;
  model.putProject();
  const auto project = model.load();
  alignas(ProjectComponent) std::byte place[sizeof(ProjectComponent)];
  auto* first = new (place) ProjectComponent(*project);
  const std::unique_ptr<IHandle> handle = first->getHandle();
  EXPECT_EQ(handle->doGetObject(), first);
  first->~ProjectComponent();
  auto* second = new (place) ProjectComponent(*project);
  EXPECT_EQ(handle->doGetObject(), nullptr);
  EXPECT_EQ(second->getHandle()->doGetObject(), second);
  second->~ProjectComponent();
}

TEST(Reload, putsANewObjectInThePlaceOfTheOldOne) {
  TempModel model;
  model.putProject();
  model.putUnit("A/A.vpkg");
  model.putUnit("A/Pump.vcmp");
  const auto project = model.load();
  QuickReload reload;
  IUnit* package = &project->unitByFile("A/A.vpkg")->unit();
  package->setCMState(3);
  const std::unique_ptr<IHandle> handle = package->getHandle();
  model.put("A/A.vpkg", TempModel::unitText("Package", "New name"));
  ASSERT_TRUE(reload.CanReloadUnit(package));
  IUnit* fresh = reload.reloadUnit(package);
  ASSERT_NE(fresh, nullptr);
  EXPECT_NE(fresh, package);
  EXPECT_EQ(handle->doGetObject(), nullptr);
  EXPECT_EQ(fresh->getName(), "New name");
  EXPECT_EQ(fresh->getCMState(), 3);
  EXPECT_EQ(&project->unitByFile("A/A.vpkg")->unit(), fresh);
  EXPECT_EQ(project->unitByFile("A/Pump.vcmp")->qualifiedName(), "New name::Pump");
  EXPECT_EQ(&project->files()[1]->unit(), fresh);
  project->releaseRetired();
  EXPECT_EQ(handle->doGetObject(), nullptr);

  fs::remove(model.path("A/Pump.vcmp"));
  EXPECT_EQ(reload.reloadUnit(&project->unitByFile("A/Pump.vcmp")->unit()), nullptr);
  EXPECT_THAT(problemOf(*project, "Pump.vcmp"), HasSubstr("not there"));
}

TEST(Reload, headerAndModeAloneKeepTheUnitTheSameObject) {
  const std::string text = TempModel::unitText("Component", "P");
  const std::string body = text.substr(text.find('{'));
  const std::string modelica =
      "model P // $"
      "Id$\nend P;\n";
  const struct {
    const char* name;
    const char* file;
    std::string before, after;
    bool same;
  } rows[] = {
      {"header", "P.vcmp",
       "// $"
       "Id$\n" +
           body,
       "// $"
       "Id: P 4 $\n// more\n" +
           body,
       true},
      {"body", "P.vcmp",
       "// $"
       "Id$\n" +
           body,
       "// $"
       "Id$\n" +
           body + "\n",
       false},
      {"keyword of another tool", "P.mo", modelica,
       "model P // $"
       "Id: P.mo 9 $\nend P;\n",
       true},
      {"content of another tool", "P.mo", modelica,
       "model Q // $"
       "Id$\nend P;\n",
       false},
      {"file is gone", "P.vcmp", body, "", false},
  };
  for (const auto& row : rows) {
    TempModel model;
    model.putProject();
    model.put(row.file, row.before);
    const auto project = model.load();
    IUnit& unit = project->unitByFile(row.file)->unit();
    FileCompare compare(model.path(row.file));
    compare.LoadFile1();
    if (row.after.empty()) {
      fs::remove(model.path(row.file));
    } else {
      model.put(row.file, row.after);
      setOwnerMayWrite(model.path(row.file), false);
    }
    compare.LoadFile2();
    EXPECT_EQ(compare.Compare() != 0, row.same) << row.name;
    if (!row.same) continue;
    EXPECT_FALSE(unit.isReadOnly());
    EXPECT_EQ(compare.atm(&unit), &unit) << row.name;
    EXPECT_TRUE(unit.isReadOnly()) << row.name;
    EXPECT_THAT(unit.getCMHeader(), HasSubstr("$"
                                              "Id: P"))
        << row.name;
  }
}

TEST(Reload, addsFilesThatTheModelDoesNotHave) {
  TempModel model;
  model.putProject("\"stubs\": [{\"file\": \"A/Stub.vcmp\"}]");
  model.putUnit("A/A.vpkg");
  const auto project = model.load();
  model.putUnit("A/New.vcmp");
  model.putUnit("A/Stub.vcmp");
  model.put("A/note.md", "n");
  FileAdder adder(*project, model.path("A"));
  for (const std::string& name :
       {std::string("New.vcmp"), std::string("A/Stub.vcmp"), model.path("A/note.md")}) {
    IUnit* added = adder.addToModel(name);
    ASSERT_NE(added, nullptr) << name;
    EXPECT_EQ(added->getFlags() & UnitFlag::Stub, 0U) << name;
  }
  EXPECT_EQ(project->unitByFile("A/New.vcmp")->qualifiedName(), "A::New");
  EXPECT_TRUE(project->isModified()) << "a new controlled file has to be listed";
  for (const std::string& name : {std::string("None.vcmp"), std::string("/etc/hostname"),
                                  std::string("../x.vcmp"), std::string()}) {
    EXPECT_EQ(adder.addToModel(name), nullptr) << name;
  }
}

TEST(Reload, modeIsTheOwnersWritePermissionOrTheToolsWord) {
  TempModel model;
  model.putProject();
  model.putUnit("P.vcmp");
  setOwnerMayWrite(model.path("P.vcmp"), false);
  const auto project = model.load();
  IUnit& unit = project->unitByFile("P.vcmp")->unit();
  EXPECT_TRUE(unit.isReadOnly());
  const std::pair<const char*, bool> rows[] = {{"ReadWrite", false}, {"RO", true}, {"rw", false},
                                               {"read-only", true},  {"w", false}, {"", true}};
  for (const auto& [word, readOnly] : rows) {
    unit.updateMode(word);
    EXPECT_EQ(unit.isReadOnly(), readOnly) << word;
  }
}

TEST(Rename, isApprovedOnlyForAFileThatIsThereAndNoOtherUnits) {
  TempModel model;
  model.putProject();
  model.put("Old.vcmp", TempModel::unitText("Component", "New: name"));
  model.putUnit("Other.vcmp");
  const auto project = model.load();
  IUnit& unit = project->unitByFile("Old.vcmp")->unit();
  EXPECT_FALSE(unit._approveCMRename("Other.vcmp"));
  EXPECT_EQ(unit.getComputedFileName(), "New_ name.vcmp");
  EXPECT_FALSE(unit._approveCMRename("New_ name.vcmp"));
  fs::rename(model.path("Old.vcmp"), model.path("New_ name.vcmp"));
  ASSERT_TRUE(unit._approveCMRename("New_ name.vcmp"));
  unit.setFileName("New_ name.vcmp");
  EXPECT_EQ(project->unitByFile("Old.vcmp"), nullptr);
  EXPECT_EQ(&project->unitByFile("New_ name.vcmp")->unit(), &unit);
}

TEST(ModelFileHandler, putsTheFileBackUnlessTheCommandSucceeded) {
  const struct {
    const char* name;
    const char* left;  ///< What the command leaves; null when it removes the file.
    bool completes;
    const char* expected;
  } rows[] = {
      {"success", "new", true, "new"},
      {"failure", "half", false, "old"},
      {"failure that removes", nullptr, false, "old"},
      {"failure without a change", "old", false, "old"},
  };
  for (const auto& row : rows) {
    const TempDirectory directory;
    const std::string file = directory.write("M.vdy", "old");
    setOwnerMayWrite(file, false);
    {
      ModelFileHandler handler(file);
      handler.prepare(CMVDYHandler::CheckIn);
      EXPECT_EQ(directory.entries(), 2U);
      std::error_code failed;
      ASSERT_TRUE(removeEntry(file, failed)) << failed.message();
      if (row.left) directory.write("M.vdy", row.left);
      if (row.completes) handler.complete();
    }
    EXPECT_EQ(directory.read("M.vdy"), row.expected) << row.name;
    EXPECT_EQ(directory.entries(), 1U) << row.name;
    const bool mayWrite =
        (fs::status(file).permissions() & fs::perms::owner_write) != fs::perms::none;
    EXPECT_EQ(mayWrite, row.completes) << row.name;
  }
}

TEST(ModelFileHandler, knowsBothExtensionsAndLeavesOtherFilesAlone) {
  const TempDirectory directory;
  directory.write("M.vdr", "old");
  const ModelFileHandler handler(directory.file("M.vdy"));
  EXPECT_EQ(handler.oldFileName(), directory.file("M.vdr"));
  EXPECT_EQ(handler.newFileName(), directory.file("M.vdy"));
  EXPECT_EQ(handler.fileNameToLoad(), directory.file("M.vdr"));
  ModelFileHandler other(directory.write("P.vcmp", "x"));
  other.prepare(CMVDYHandler::Fetch);
  EXPECT_EQ(directory.entries(), 2U);
  EXPECT_EQ(other.fileNameToLoad(), "");
}

TEST(ModelFileHandler, aCopyLeftByACrashIsReportedUnlessItIsJustLikeTheFile) {
  TempModel model;
  model.putProject();
  ModelFileHandler handler(model.path("M.vdy"));
  handler.prepare(CMVDYHandler::CheckOut);
  const std::string before = model.read("M.vdy");
  model.put("M.vdy", before + "\n");
  EXPECT_THAT(allProblems(*model.load()), HasSubstr("interrupted"));
  model.put("M.vdy", before);
  EXPECT_EQ(allProblems(*model.load()), "");
  model.put("M.vdy", before + "\n");
  EXPECT_EQ(allProblems(*model.load()), "") << "it is gone";
}

}  // namespace
}  // namespace veldra::host
