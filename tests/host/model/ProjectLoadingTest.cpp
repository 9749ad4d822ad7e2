#include <gmock/gmock.h>

#include <functional>

#include "host/model/FolderScan.h"
#include "host/model/NewProject.h"
#include "host/platform/RealPath.h"
#include "tests/host/model/TempModel.h"
#include "tests/host/platform/FileSystem.h"

namespace veldra::host {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> relativeFiles(const Project& project) {
  std::vector<std::string> files;
  for (const UnitCore* unit : project.files())
    files.push_back(std::filesystem::path(unit->relativeFileName()).generic_string());
  return files;
}

std::string qualifiedName(const Project& project, const std::string& file) {
  const UnitCore* unit = project.unitByFile(file);
  return unit ? unit->qualifiedName() : "no unit";
}

TEST(ProjectLoading, failsOnlyForTheProjectFileAndSaysHowToGoOn) {
  const struct {
    const char* name;
    std::string bytes;
    const char* what;
  } rows[] = {
      {"empty", "", "is empty"},
      {"cut off", "// x\n{\n  \"format\": 1,\n", "cut off"},
      {"not text", std::string("PK\3\4\0\0", 6), "not a text"},
      {"newer", R"({"format": 99, "type": "Project", "name": "M"})", "newer version"},
  };
  for (const auto& row : rows) {
    TempModel model;
    model.put("M.vdy", row.bytes);
    EXPECT_EQ(model.load(), nullptr) << row.name;
    EXPECT_THAT(model.error, HasSubstr("M.vdy")) << row.name;
    EXPECT_THAT(model.error, HasSubstr(row.what)) << row.name;
    EXPECT_EQ(model.read("M.vdy"), row.bytes) << row.name;
  }
  TempModel model;
  fs::create_directory(model.path("M.vdy"));
  EXPECT_EQ(model.load(), nullptr);
  EXPECT_THAT(model.error, HasSubstr("M.vdy"));
}

TEST(ProjectLoading, findsTheOneProjectFileOfADirectory) {
  TempModel model;
  std::string error;
  EXPECT_EQ(findProjectFile(model.root(), error), "");
  EXPECT_THAT(error, HasSubstr("no project file"));
  model.put("Old.vdr", "");
  EXPECT_EQ(findProjectFile(model.root(), error), model.path("Old.vdr"));
  model.put("New.vdy", "");
  EXPECT_EQ(findProjectFile(model.root(), error), "");
  EXPECT_THAT(error, HasSubstr("\"New.vdy\" \"Old.vdr\""));
  EXPECT_EQ(findProjectFile(model.path("New.vdy"), error), model.path("New.vdy"));
  EXPECT_EQ(findProjectFile(model.path("none"), error), "");
}

TEST(ProjectLoading, directoriesOwnWhatLiesInThem) {
  TempModel model;
  model.putProject("\"controlled\": [\"docs/req.md\", \"docs/./req.md\"]");
  model.putUnit("Top.vcmp");
  model.putUnit("A/A.vpkg", "\"controlled\": [\"note.txt\"]");
  model.putUnit("A/B b/C.vcmp");
  model.putUnit("A/Pump.vcmp");
  model.put("A/note.txt", "n");
  model.put("A/other.txt", "not listed");
  model.put("docs/req.md",
            "<!-- $"
            "Id: req.md 3 $ -->");
  for (const char* skipped : {".git/x.vpkg", "A/RCS/Pump.vcmp", ".svn/y.vcmp", ".hidden/z.mo"}) {
    model.put(skipped, "");
  }
  const auto project = model.load();
  ASSERT_NE(project, nullptr) << model.error;
  EXPECT_EQ(allProblems(*project), "");
  EXPECT_THAT(relativeFiles(*project), ElementsAre(".", "Top.vcmp", "A/A.vpkg", "A/Pump.vcmp",
                                                   "A/B b/C.vcmp", "docs/req.md", "A/note.txt"));
  EXPECT_EQ(qualifiedName(*project, "A/B b/C.vcmp"), "A::B b::C");
  EXPECT_EQ(qualifiedName(*project, "A/note.txt"), "A::note.txt");
  ASSERT_EQ(project->unitsByName("A::B b::C").size(), 1U);

  IUnit& document = project->unitByFile("docs/req.md")->unit();
  EXPECT_NE(document.asEmbededFile(), nullptr);
  EXPECT_EQ(document.getSaveUnit(), project.get());
  EXPECT_THAT(document.getCMHeader(), HasSubstr("req.md 3"));
  IUnit& package = project->unitByFile("A/A.vpkg")->unit();
  EXPECT_EQ(package.asSubsystem()->getPackageDirectory(), model.path("A"));
  EXPECT_EQ(package.getFlags(), UnitFlag::SavedSeparately);
  EXPECT_EQ(package.getCMHeader(),
            "// Veldra unit\n// $"
            "Id$\n");
}

TEST(ProjectLoading, brokenUnitsStayUnitsAndAreReported) {
  const struct {
    const char* file;
    std::string bytes;
    const char* what;
  } rows[] = {
      {"Empty.vcmp", "", "is empty"},
      {"Cut.vcmp", TempModel::unitText("Component", "Cut").substr(0, 40), "cut off"},
      {"CutBody.vcmp", R"({"format": 1, "type": "Component", "name": "CutBody", "x": ["a")",
       "cut off"},
      {"Newer.vpkg", R"({"format": 7, "type": "Package", "name": "N"})", "format 7"},
      {"Binary.vdgm", std::string("\0\1\2", 3), "not a text"},
      {"Conflict.vcmp", "// h\n<<<<<<< .mine\n", "merge"},
  };
  TempModel model;
  model.putProject();
  for (const auto& row : rows) model.put(row.file, row.bytes);
  fs::create_directory(model.path("Folder.vcmp"));
  const auto project = model.load();
  ASSERT_NE(project, nullptr);
  EXPECT_EQ(project->files().size(), std::size(rows) + 1);
  for (const auto& row : rows) {
    ASSERT_NE(project->unitByFile(row.file), nullptr) << row.file;
    EXPECT_EQ(project->unitByFile(row.file)->record().name, stemOf(row.file));
    EXPECT_THAT(problemOf(*project, row.file), HasSubstr(row.what)) << row.file;
  }
}

TEST(ProjectLoading, unitsAreLoadedWhenTheyAreAskedFor) {
  TempModel model;
  model.putProject(
      "\"stubs\": [{\"file\": \"../S.vcmp\"}], \"fileTypes\": [{\"extension\": \"x\"}]");
  model.put("Broken.vcmp", "// nothing");
  for (const auto& ask : std::initializer_list<std::function<bool(Project&)>>{
           [](Project& project) { return project.files().size() == 2; },
           [](Project& project) { return project.unitByFile("Broken.vcmp") != nullptr; },
           [](Project& project) { return project.unitsByName("Broken").size() == 1; },
           [](Project& project) { return project.getAggregates().size() == 1; },
           [](Project& project) { return problemOf(project, "Broken.vcmp") != ""; },
           [](Project& project) { return project.folders().root().owner == &project; }}) {
    const auto project = model.load();
    int loads = 0;
    project->setLoadListener([&] { ++loads; });
    EXPECT_EQ(project->problemsSoFar().size(), 1U) << "of the project's own file";
    EXPECT_EQ(project->findProperty("S", "M", "n", false), nullptr);
    EXPECT_TRUE(project->saveModified().empty());
    EXPECT_EQ(loads, 0);
    EXPECT_TRUE(ask(*project));
    EXPECT_EQ(loads, 1);
    EXPECT_EQ(project->files().size(), 2U);
    EXPECT_GT(project->problemsSoFar().size(), 1U);
    EXPECT_EQ(loads, 1);
  }
}

TEST(ProjectLoading, readsHeadsThatAreLongerThanOneLook) {
  TempModel model;
  model.putProject();
  const std::string history(100000, 'h');
  model.put("Long.vcmp", "// " + history + "\n" + TempModel::unitText("Component", "Real name"));
  const auto project = model.load();
  EXPECT_EQ(allProblems(*project), "");
  EXPECT_EQ(project->unitByFile("Long.vcmp")->record().name, "Real name");
}

TEST(ProjectLoading, contentsThatLieBehindTheHeadAreCheckedOnRequest) {
  TempModel model;
  model.putProject();
  model.put("Bad.vcmp", TempModel::unitText("Component", "Bad", "\"x\": nonsense"));
  const auto project = model.load();
  EXPECT_EQ(allProblems(*project), "");
  project->checkContents();
  EXPECT_THAT(problemOf(*project, "Bad.vcmp"), HasSubstr("line 8"));
}

TEST(ProjectLoading, linksThatLeadOutOrRoundAreNotFollowed) {
  if (!CanMakeLinks) GTEST_SKIP() << NoLinks;
  TempModel model;
  const TempDirectory outside;
  outside.write("Out.vcmp", "");
  model.putProject();
  model.putUnit("A/A.vpkg");
  model.putUnit("A/Real.vcmp");
  fs::create_directory_symlink(outside.path(), model.path("A/out"));
  fs::create_directory_symlink(model.root(), model.path("A/round"));
  fs::create_directory_symlink(model.path("A"), model.path("again"));
  fs::create_symlink(outside.file("Out.vcmp"), model.path("OutFile.vcmp"));
  fs::create_symlink("nowhere", model.path("Nowhere.vcmp"));
  fs::create_symlink("Self.vcmp", model.path("Self.vcmp"));
  fs::create_symlink("A/Real.vcmp", model.path("Alias.vcmp"));
  fs::create_hard_link(model.path("A/Real.vcmp"), model.path("A/Twin.vcmp"));
  const auto project = model.load();
  ASSERT_NE(project, nullptr);
  EXPECT_THAT(relativeFiles(*project), ElementsAre(".", "A/A.vpkg", "A/Real.vcmp"));
  const std::pair<const char*, const char*> expected[] = {
      {"out", "out of the project"},  {"round", "circle"},
      {"again", "another folder"},    {"OutFile.vcmp", "out of the project"},
      {"Nowhere.vcmp", "nowhere"},    {"Self.vcmp", "nowhere"},
      {"Alias.vcmp", "same file as"}, {"Twin.vcmp", "same file as"},
  };
  for (const auto& [file, what] : expected) {
    EXPECT_THAT(problemOf(*project, file), HasSubstr(what)) << file;
  }
}

TEST(ProjectLoading, endlesslyNestedFoldersAndForeignProjectsAreLeftOut) {
  TempModel model;
  model.putProject();
  std::string deep;
  for (int level = 0; level < MaximumFolderDepth + 6; ++level) deep += "d/";
  model.putUnit(deep + "Deep.vcmp");
  model.put("Other/Other.vdy", TempModel::unitText("Project", "Other"));
  model.putUnit("Other/X.vcmp");
  const auto project = model.load();
  EXPECT_EQ(project->files().size(), 1U);
  EXPECT_THAT(allProblems(*project), HasSubstr("nested deeper"));
  EXPECT_THAT(problemOf(*project, "Other"), HasSubstr("project of its own"));
}

TEST(ProjectLoading, listsOfTheProjectFileCannotReachOutOfIt) {
  if (!CanMakeLinks) GTEST_SKIP() << NoLinks;
  TempModel model;
  const TempDirectory outside;
  outside.write("secret", "s");
  fs::create_symlink(outside.file("secret"), model.path("link.md"));
  std::string deep = "x";
  for (int level = 0; level < 100000; ++level) deep += "/x";
  model.putProject(
      "\"controlled\": [\"../up\", \"/etc/passwd\", \"a/../../up\", \"link.md\", \"gone.md\", "
      "7, \"\", \"" +
      deep +
      "\"], \"stubs\": [{\"file\": \"../S.vcmp\"}, 3], "
      "\"properties\": {\"S\": {\"M\": {\"n\": [1]}}, \"T\": 5}, "
      "\"fileTypes\": [{\"extension\": \".vcmp\", \"type\": \"Mine\"}]");
  const auto project = model.load();
  ASSERT_NE(project, nullptr) << model.error;
  EXPECT_THAT(relativeFiles(*project), ElementsAre(".", "gone.md"));
  for (const char* file : {"up", "passwd", "link.md", "gone.md", "S.vcmp", "M.vdy"}) {
    EXPECT_NE(problemOf(*project, file), "") << file;
  }
}

TEST(ProjectLoading, knowsStubsAndUnitsOfOtherProjects) {
  TempModel model;
  const TempDirectory other;
  const std::string library = joinPath(realPath(other.path()), "Lib.vcmp");
  other.write("Lib.vcmp", TempModel::unitText("Component", "Library"));
  model.putProject(
      "\"stubs\": [{\"file\": \"There.vcmp\", \"load\": false}, {\"file\": \"P/Gone.vpkg\"}, "
      "{\"file\": \"Loaded.vcmp\", \"load\": true}], \"references\": [\"" +
      std::filesystem::path(other.path()).generic_string() + "\", \"nowhere\"]");
  model.putUnit("There.vcmp");
  model.putUnit("Loaded.vcmp");
  const auto project = model.load();
  const auto flags = [&](const char* file) { return project->unitByFile(file)->unit().getFlags(); };
  EXPECT_EQ(flags("There.vcmp"), UnitFlag::SavedSeparately | UnitFlag::Stub);
  EXPECT_EQ(flags("P/Gone.vpkg"), UnitFlag::SavedSeparately | UnitFlag::Stub);
  EXPECT_EQ(flags("Loaded.vcmp"), UnitFlag::SavedSeparately);
  EXPECT_EQ(project->unitByFile("P/Gone.vpkg")->record().unitType, "Package");
  ASSERT_NE(project->unitByFile(library), nullptr);
  IUnit& referenced = project->unitByFile(library)->unit();
  EXPECT_TRUE(referenced.isReferenced());
  EXPECT_TRUE(referenced.isExternalUnitRecursive());
  EXPECT_EQ(referenced.getName(), "Library");
  EXPECT_THAT(problemOf(*project, "nowhere"), HasSubstr("leads nowhere"));
}

TEST(ProjectLoading, findsUnitsByAnyNameOfTheirFile) {
  TempModel model;
  model.putProject();
  model.putUnit("A/A.vpkg");
  model.putUnit("A/b\\c.vcmp");
  const std::string odd =
      AnyByteInNames ? "A/ -x 'q' \"$HOME\" > \xff\n.vcmp" : "A/ -x 'q' $HOME & \xC3\xA4.vcmp";
  model.put(odd, TempModel::unitText("Component", "Odd"));
  const auto project = model.load();
  EXPECT_EQ(allProblems(*project), "");
  for (const std::string& name :
       {std::string("A/A.vpkg"), std::string("A\\A.vpkg"), std::string("./A//A.vpkg"),
        std::string("x/../A/A.vpkg"), model.path("A/A.vpkg"), model.path("A\\A.vpkg"),
        model.path("A/../A/./A.vpkg"), model.path("A/b\\c.vcmp"), std::string("A/b\\c.vcmp"), odd,
        model.path(odd), std::string("M.vdy"), model.path("M.vdy")}) {
    EXPECT_NE(project->unitByFile(name), nullptr) << name;
  }
  for (const std::string& name :
       {std::string(), std::string("A"), std::string("A.vpkg"), std::string("../A/A.vpkg"),
        model.root(), model.root() + "x/M.vdy"}) {
    EXPECT_EQ(project->unitByFile(name), nullptr) << name;
  }
  if (!CanMakeLinks) return;
  const TempDirectory elsewhere;
  fs::create_directory_symlink(model.root(), elsewhere.file("link"));
  EXPECT_NE(project->unitByFile(elsewhere.file("link/A/A.vpkg")), nullptr);
}

TEST(NewProject, makesAProjectOfAFolderWithoutTouchingIt) {
  TempModel model;
  const std::string modelica =
      "within Lib;\r\nmodel Pump // $"
      "Id$\nend Pump;";
  model.put("package.mo", "package Lib end Lib;");
  model.put("Water/package.mo", "within Lib; package Water end Water;");
  model.put("Water/Pump.mo", modelica);
  model.put("Water/package.order", "Pump");
  model.put("Plain/Flow.puml", "@startuml");
  model.put("Resources/a.png", std::string("\x89PNG\0", 5));
  std::string error;
  const NewProject request{model.root(), "M", {{{"S", "T", "n"}, "v"}}};
  ASSERT_EQ(createProject(request, error), model.path("M.vdy")) << error;
  const auto project = model.load();
  ASSERT_NE(project, nullptr) << model.error;
  EXPECT_EQ(allProblems(*project), "");
  const std::string top(baseName(model.root()));
  EXPECT_EQ(qualifiedName(*project, "Water/Pump.mo"), top + "::Water::Pump");
  EXPECT_EQ(qualifiedName(*project, "Plain/Flow.puml"), top + "::Plain::Flow");
  EXPECT_EQ(project->files().size(),
            7U);  // Everything in the folder, so that nothing is forgotten.
  EXPECT_NE(project->unitByFile("Resources/a.png")->unit().asEmbededFile(), nullptr);
  EXPECT_EQ(model.layers.find({"S", "T", "n"})->value(), "v");
  EXPECT_EQ(project->unitByFile("Water/Pump.mo")->record().header,
            "model Pump // $"
            "Id$\n");

  project->unitByFile("Water/Pump.mo")->unit().setModified(true, true);
  EXPECT_TRUE(project->saveModified().empty());
  EXPECT_EQ(model.read("Water/Pump.mo"), modelica);

  EXPECT_FALSE(createProject(request, error));
  EXPECT_THAT(error, HasSubstr("is a project already"));
  const TempDirectory fresh;
  for (const char* name : {"a/b", "-x", ".x", "a\nb"}) {
    EXPECT_FALSE(createProject({fresh.path(), name, {}}, error)) << name;
  }
}

TEST(Sample, loadsWithoutProblems) {
  const fs::path sample = fs::path(__FILE__).parent_path() / "../../../samples/coffee-machine";
  PropertyLayers layers;
  std::string error;
  const auto project = loadProject(findProjectFile(sample.string(), error), layers, error);
  ASSERT_NE(project, nullptr) << error;
  project->checkContents();
  EXPECT_EQ(allProblems(*project), "");
  EXPECT_EQ(project->files().size(), 42U);
  EXPECT_EQ(qualifiedName(*project, "Brewing/Water Circuit/Pump.vcmp"),
            "Brewing::Water Circuit::Pump");
  for (const UnitCore* unit : project->files()) {
    EXPECT_THAT(unit->record().header, HasSubstr("$"
                                                 "Id$"))
        << unit->relativeFileName();
    if (!unit->isOwnFile()) continue;
    // Written as Veldra writes it, so that the first save changes one line and not the whole file.
    Problem problem;
    const std::string path = unit->fullFileName();
    std::ifstream stream(path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    EXPECT_EQ(writeModelText(*parseModelText(text, problem)), text) << path;
  }
}

}  // namespace
}  // namespace veldra::host
