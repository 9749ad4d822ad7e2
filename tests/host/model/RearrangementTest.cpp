#include "host/model/Rearrangement.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "tests/host/model/TempModel.h"

namespace veldra::host {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// A writable project with a package "A", a package "B" in it, and a file of another type.
class RearrangementTest : public testing::Test {
 protected:
  RearrangementTest() {
    model.putProject(
        "\"controlled\": [\"A/B/notes.txt\"],\n  \"archives\": [{\"file\": "
        "\"A/x.vcmp\", \"archive\": \"/far\"}],\n  \"stubs\": [{\"file\": "
        "\"A/B/s.vcmp\", \"load\": true}]");
    for (const char* file : {"A/A.vpkg", "A/x.vcmp", "A/B/B.vpkg", "A/B/y.vcmp", "A/B/s.vcmp",
                             "C/C.vpkg", "D/plain.puml"}) {
      model.putUnit(file);
    }
    model.put("A/B/notes.txt", "notes");
    project = model.load();
  }

  UnitCore& unit(const std::string& file) { return *project->unitByFile(file); }

  /// Every unit with its owner, name and archive.
  static std::vector<std::string> picture(Project& project) {
    std::vector<std::string> lines;
    for (UnitCore* unit : project.files()) {
      const UnitArchive* archive = project.archiveOf(unit->relativeFileName());
      lines.push_back(unit->relativeFileName() + " is " + unit->qualifiedName() +
                      (archive ? " in " + archive->archive : ""));
      EXPECT_EQ(project.unitByFile(unit->fullFileName()), unit);
      EXPECT_TRUE(fs::exists(unit->fullFileName())) << unit->fullFileName();
    }
    std::ranges::sort(lines);
    return lines;
  }

  /// The model has followed when it is what the disk says.
  void expectThatModelIsDisk() {
    EXPECT_TRUE(project->saveModified().empty());
    const std::vector<std::string> now = picture(*project);
    project = model.load();
    EXPECT_EQ(now, picture(*project));
    EXPECT_EQ(allProblems(*project), "");
  }

  /// Carries a plan out after what the tool did to the disk.
  template <class ToolWork>
  void carryOut(Result<Rearrangement> plan, ToolWork work) {
    ASSERT_TRUE(plan) << plan.error();
    ASSERT_EQ(plan->prepare(), std::nullopt);
    work();
    plan->carryOut([](const std::string&) { return true; });
    expectThatModelIsDisk();
  }
  void moveOnDisk(const std::string& from, const std::string& to) {
    fs::create_directories(fs::path(model.path(to)).parent_path());
    fs::rename(model.path(from), model.path(to));
  }

  TempModel model;
  std::unique_ptr<Project> project;
};

TEST_F(RearrangementTest, aMovedFileHasItsNewOwnerAndKeepsItsArchive) {
  carryOut(Rearrangement::planMove(unit("A/x.vcmp"), unit("C/C.vpkg")),
           [this] { moveOnDisk("A/x.vcmp", "C/x.vcmp"); });
  EXPECT_EQ(unit("C/x.vcmp").qualifiedName(), "C::x");
  const UnitArchive* const archive = project->archiveOf(unit("C/x.vcmp").relativeFileName());
  ASSERT_NE(archive, nullptr);
  EXPECT_EQ(archive->archive, "/far");
}

TEST_F(RearrangementTest, aMovedPackageTakesEverythingAlong) {
  carryOut(Rearrangement::planMove(unit("A/B/B.vpkg"), *project),
           [this] { moveOnDisk("A/B", "B"); });
  EXPECT_EQ(unit("B/y.vcmp").qualifiedName(), "B::y");
  EXPECT_THAT(model.read("M.vdy"), testing::AllOf(HasSubstr("B/notes.txt"), HasSubstr("B/s.vcmp"),
                                                  testing::Not(HasSubstr("A/B"))));
}

TEST_F(RearrangementTest, whatATtoolLeavesLyingFollowsByItself) {
  carryOut(Rearrangement::planMove(unit("A/A.vpkg"), unit("C/C.vpkg")), [] {});
  EXPECT_EQ(unit("C/A/B/y.vcmp").qualifiedName(), "C::A::B::y");
  EXPECT_FALSE(fs::exists(model.path("A")));
}

TEST_F(RearrangementTest, whatTheToolLeavesOfADeletedFolderGoesOnlyWithLeave) {
  Result<Rearrangement> plan = Rearrangement::planDelete(unit("A/A.vpkg"), true);
  ASSERT_TRUE(plan && plan->prepare() == std::nullopt);
  fs::remove(model.path("A/x.vcmp"));
  std::vector<std::string> asked;
  plan->carryOut([&asked](const std::string& file) {
    asked.push_back(file);
    return !file.ends_with("notes.txt");
  });
  EXPECT_THAT(asked, testing::Contains(model.path("A/B/notes.txt")));
  EXPECT_THAT(asked, testing::Not(testing::Contains(model.path("A/x.vcmp"))));
  EXPECT_EQ(model.read("A/B/notes.txt"), "notes");
  EXPECT_FALSE(fs::exists(model.path("A/A.vpkg")));
}

TEST_F(RearrangementTest, aRenamedPackageRenamesItsFolderAndItsName) {
  carryOut(Rearrangement::planRename(unit("A/A.vpkg"), "New: Name"), [this] {
    moveOnDisk("A", "New_ Name");
    moveOnDisk("New_ Name/A.vpkg", "New_ Name/New_ Name.vpkg");
  });
  EXPECT_EQ(unit("New_ Name/B/y.vcmp").qualifiedName(), "New: Name::B::y");
}

TEST_F(RearrangementTest, filesOfOtherToolsAreRenamedWithoutBeingWritten) {
  const std::string before = model.read("D/plain.puml");
  carryOut(Rearrangement::planRename(unit("D/plain.puml"), "fancy"),
           [this] { moveOnDisk("D/plain.puml", "D/fancy.puml"); });
  EXPECT_EQ(unit("D/fancy.puml").record().name, "fancy");
  EXPECT_EQ(model.read("D/fancy.puml"), before);
  carryOut(Rearrangement::planRename(unit("A/B/notes.txt"), "more.md"),
           [this] { moveOnDisk("A/B/notes.txt", "A/B/more.md"); });
  EXPECT_EQ(unit("A/B/more.md").record().name, "more.md");
}

TEST_F(RearrangementTest, aDeletedUnitLeavesModelAndDisk) {
  carryOut(Rearrangement::planDelete(unit("A/x.vcmp"), false), [] {});
  EXPECT_EQ(project->unitByFile("A/x.vcmp"), nullptr);
  EXPECT_EQ(project->archiveOf("A/x.vcmp"), nullptr);
  carryOut(Rearrangement::planDelete(unit("A/A.vpkg"), true), [] {});
  EXPECT_FALSE(fs::exists(model.path("A")));
}

TEST_F(RearrangementTest, whenTheToolFailsHalfWayEverythingIsAsBefore) {
  const std::vector<std::string> before = picture(*project);
  const std::string text = model.read("A/A.vpkg");
  fs::permissions(model.path("A/x.vcmp"), fs::perms::owner_read);
  const fs::perms mode = fs::status(model.path("A/x.vcmp")).permissions();
  Result<Rearrangement> plan = Rearrangement::planRename(unit("A/A.vpkg"), "Z");
  ASSERT_TRUE(plan) << plan.error();
  ASSERT_EQ(plan->prepare(), std::nullopt);
  EXPECT_THAT(model.read("A/A.vpkg"), HasSubstr("\"Z\""));
  moveOnDisk("A/A.vpkg", "Z/Z.vpkg");
  moveOnDisk("A/x.vcmp", "Z/x.vcmp");
  model.put("A/B/y.vcmp", "spoilt");
  fs::remove(model.path("A/B/notes.txt"));
  EXPECT_EQ(plan->takeBack(), std::nullopt);
  EXPECT_FALSE(fs::exists(model.path("Z")));
  EXPECT_EQ(model.read("A/A.vpkg"), text);
  EXPECT_EQ(model.read("A/B/notes.txt"), "notes");
  EXPECT_EQ(fs::status(model.path("A/x.vcmp")).permissions(), mode);
  EXPECT_EQ(picture(*project), before);
  expectThatModelIsDisk();
}

TEST_F(RearrangementTest, whatCannotBeDoneIsRefusedWithTheReason) {
  model.put("C/x.vcmp", "in the way");
  fs::permissions(model.path("A/B/y.vcmp"), fs::perms::owner_read);
  unit("A/B/y.vcmp").updateMode("");
  const std::pair<Result<Rearrangement>, const char*> rows[] = {
      {Rearrangement::planDelete(*project, true), "project itself"},
      {Rearrangement::planMove(unit("A/x.vcmp"), unit("C/C.vpkg")), "exists already"},
      {Rearrangement::planMove(unit("A/x.vcmp"), unit("A/A.vpkg")), "place already"},
      {Rearrangement::planMove(unit("A/A.vpkg"), unit("A/B/B.vpkg")), "into itself"},
      {Rearrangement::planMove(unit("A/x.vcmp"), unit("A/B/y.vcmp")), "no package"},
      {Rearrangement::planRename(unit("A/B/y.vcmp"), "z"), "Check it out first"},
      {Rearrangement::planRename(unit("A/x.vcmp"), ""), "cannot be a file's name"},
      {Rearrangement::planRename(unit("D/plain.puml"), "../q"), "cannot be a file's name"},
      {Rearrangement::planRename(unit("D/plain.puml"), ".."), "cannot be a file's name"},
      {Rearrangement::planRename(unit("D/plain.puml"), ".veldra-q"), "no file of the model"},
      {Rearrangement::planRename(unit("C/C.vpkg"), "RCS"), "no file of the model"},
      {Rearrangement::planRename(unit("A/B/notes.txt"), "notes.vcmp"), "no file of the model"}};
  for (const auto& [plan, reason] : rows) {
    EXPECT_FALSE(plan) << reason;
    EXPECT_THAT(plan.error(), HasSubstr(reason));
  }
  fs::permissions(model.path("M.vdy"), fs::perms::owner_read);
  project->updateMode("");
  EXPECT_THAT(Rearrangement::planDelete(unit("A/B/notes.txt"), false).error(),
              HasSubstr("Check the project file out first"));
  EXPECT_TRUE(Rearrangement::planDelete(unit("C/C.vpkg"), true));
}

}  // namespace
}  // namespace veldra::host
