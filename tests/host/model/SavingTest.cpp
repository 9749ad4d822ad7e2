#include <gmock/gmock.h>

#include "tests/host/model/TempModel.h"

namespace veldra::host {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

std::string saved(UnitCore& unit) {
  Problem problem;
  return unit.save(problem) ? std::string() : sentence(problem);
}

class Saving : public testing::Test {
 protected:
  Saving() {
    model.putProject();
    model.putUnit("P.vcmp", "\"later\": true");
    project = model.load();
    unit = project->unitByFile("P.vcmp");
  }

  /// The properties are those of one project after another.
  void loadAnew() {
    project.reset();
    project = model.load();
  }

  TempModel model;
  std::unique_ptr<Project> project;
  UnitCore* unit = nullptr;
  Problem problem;
};

TEST_F(Saving, changesOnlyWhatWasChanged) {
  ASSERT_TRUE(unit->rename("Pump", problem));
  ASSERT_TRUE(unit->setAttribute("pressure", "9 \xff", problem));
  // The header that the tool expanded in the meantime stays.
  std::string text = model.read("P.vcmp");
  model.put("P.vcmp", text.replace(text.find("Id$"), 3, "Id: P 4 $"));
  EXPECT_TRUE(unit->isModified());
  EXPECT_EQ(saved(*unit), "");
  EXPECT_FALSE(unit->isModified());
  const std::string after = model.read("P.vcmp");
  EXPECT_TRUE(
      after.starts_with("// Veldra unit\n// $"
                        "Id: P 4 $\n{\n  \"format\": 1,\n"));
  EXPECT_THAT(after, HasSubstr("\"name\": \"Pump\""));
  EXPECT_THAT(after, HasSubstr("\"later\": true"));
  EXPECT_EQ(unit->record().name, "Pump");
}

TEST_F(Saving, setsAsideWhatIsNotUnderstoodWhereAPropertyGoes) {
  const PropertyKey key{"ConfigurationManagement", "General", "CMTool"};
  for (const std::string wrong : {R"(["mine"])", R"({"ConfigurationManagement": "mine"})",
                                  R"({"ConfigurationManagement": {"General": 7e3}})"}) {
    SCOPED_TRACE(wrong);
    model.putProject("\"properties\": " + wrong);
    for (const char* tool : {"Git", "RCS"}) {
      loadAnew();
      model.layers.setInProject(key, tool);
      ASSERT_EQ(saved(*project), "");
    }
    loadAnew();
    EXPECT_EQ(model.layers.find(key)->value(), "RCS");
    EXPECT_THAT(model.read("M.vdy"), testing::AnyOf(HasSubstr("mine"), HasSubstr("7000")));
  }
}

TEST_F(Saving, takesWhatIsResetOutOfTheProjectFile) {
  model.putProject(
      R"("properties": {"ConfigurationManagement": {"General": {"CMTool": "Git", "x": []}}})");
  loadAnew();
  model.layers.setInProject({"ConfigurationManagement", "RCS", "Archive"}, "there");
  ASSERT_EQ(saved(*project), "");
  model.layers.resetInProject({"ConfigurationManagement", "RCS", "Archive"});
  model.layers.resetInProject({"ConfigurationManagement", "General", "CMTool"});
  ASSERT_EQ(saved(*project), "");
  EXPECT_THAT(model.read("M.vdy"),
              AllOf(Not(HasSubstr("RCS")), Not(HasSubstr("CMTool")), HasSubstr("\"x\": []")));
}

TEST_F(Saving, isRefusedForReadOnlyFilesAndForChangedOnes) {
  ASSERT_TRUE(unit->rename("Pump", problem));
  const std::string text = model.read("P.vcmp");
  model.putUnit("P.vcmp", "\"somebody\": \"else\"");
  EXPECT_THAT(saved(*unit), HasSubstr("changed on the disk"));
  model.put("P.vcmp", text);
  fs::permissions(model.path("P.vcmp"), fs::perms::owner_read);
  EXPECT_THAT(saved(*unit), HasSubstr("P.vcmp"));
  EXPECT_EQ(model.read("P.vcmp"), text);
  EXPECT_TRUE(unit->isModified());
  unit->unit().updateMode("");
  EXPECT_FALSE(unit->rename("Other", problem));
  EXPECT_THAT(sentence(problem), HasSubstr("Check the file out first."));
}

TEST_F(Saving, writesNothingForAMarkAlone) {
  fs::permissions(model.path("P.vcmp"), fs::perms::owner_read);
  fs::permissions(model.path("M.vdy"), fs::perms::owner_read);
  unit->unit().setModified(true, true);
  project->setModified(true, true);
  EXPECT_TRUE(project->saveModified().empty());
  EXPECT_FALSE(project->isModified());
}

TEST_F(Saving, undoTakesTheLastOutermostTransactionBack) {
  ASSERT_TRUE(unit->rename("Before", problem));
  ModelUndo& undo = project->undo();
  undo.startTransaction(nullptr, 0);
  undo.startTransaction(nullptr, 0);
  ASSERT_TRUE(unit->rename("Inside", problem));
  undo.endTransaction();
  ASSERT_TRUE(unit->setAttribute("a", "1", problem));
  undo.undo();
  EXPECT_EQ(unit->record().name, "Inside") << "a transaction is still open";
  undo.endTransaction();
  undo.undo();
  EXPECT_EQ(unit->record().name, "Before");
  EXPECT_EQ(saved(*unit), "");
  EXPECT_THAT(model.read("P.vcmp"), testing::Not(HasSubstr("attributes")));
  EXPECT_FALSE(undo.canUndo());
}

TEST_F(Saving, archivesOfUnitsAreInheritedAndKept) {
  model.putUnit("A/A.vpkg");
  model.putUnit("A/B.vcmp");
  project.reset();
  project = model.load();
  IUnit& inner = project->unitByFile("A/B.vcmp")->unit();
  std::string projName = "untouched";
  std::string auxProjPath;
  EXPECT_FALSE(inner.getSccArchiveRecursive(projName, auxProjPath));
  EXPECT_EQ(projName, "untouched");
  project->setSccArchive("", "");
  EXPECT_FALSE(project->isModified());
  project->setSccArchive("Main", "aux");
  project->unitByFile("A/A.vpkg")->unit().setSccArchive("Own", "\xff");
  project->setBatchArchive(project->unitByFile("A/A.vpkg")->relativeFileName(), "/archive");
  EXPECT_TRUE(project->saveModified().empty());
  project.reset();
  project = model.load();
  const auto archiveOf = [&](const char* file) {
    EXPECT_TRUE(project->unitByFile(file)->unit().getSccArchiveRecursive(projName, auxProjPath));
    return projName + "|" + auxProjPath;
  };
  EXPECT_EQ(archiveOf("A/B.vcmp"), "Own|\xff");
  EXPECT_EQ(archiveOf("P.vcmp"), "Main|aux");
  std::string archive;
  EXPECT_TRUE(project->unitByFile("A/B.vcmp")->unit().getBatchArchiveRecursive(archive));
  EXPECT_EQ(archive, "/archive");
  EXPECT_FALSE(project->unitByFile("P.vcmp")->unit().getBatchArchiveRecursive(archive));
}

}  // namespace
}  // namespace veldra::host
