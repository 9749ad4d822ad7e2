#include "host/model/PropertyLayers.h"

#include <gmock/gmock.h>

#include "host/model/TomlEdit.h"
#include "tests/host/model/TempModel.h"

namespace veldra::host {
namespace {

using testing::HasSubstr;

constexpr char CM[] = "ConfigurationManagement";

class Layers : public testing::Test {
 protected:
  Layers() {
    model.put("packs/rcs.toml",
              "[pack]\nname = \"RCS\"\ntitle = \"GNU RCS\"\n"
              "[ConfigurationManagement.RCS]\nCheckIn = 'ci -u \"$UnitPath\"'\nTimeOut = 5\n"
              "SaveOnCheckOut = true\nPattern = '''\\$Id'x'$'''\n");
    model.put("site.toml",
              "[General]\nDEBUG_CM = \"FALSE\"\nOnlySite = 3\n"
              "[ConfigurationManagement.RCS]\nTimeOut = 6\n");
    model.put("user.toml", "[General]\nDEBUG_CM = \"TRUE\"\n");
    load();
  }
  void load() {
    problems.clear();
    model.layers.load({model.path("packs"), model.path("site.toml"), model.path("user.toml")},
                      problems);
  }
  std::string value(const char* name) {
    const Property* property = model.layers.find({CM, "RCS", name});
    return property ? property->value() + " from " + std::string(originName(property->origin()))
                    : "none";
  }

  TempModel model;
  Problems problems;
};

TEST_F(Layers, theStrongestCountsAndSaysWhereItComesFrom) {
  model.putProject(
      "\"properties\": {\"ConfigurationManagement\": {\"RCS\": {\"CheckIn\": \"mine\", "
      "\"Flag\": true, \"Number\": 7}}}");
  model.putUnit("P.vcmp",
                "\"properties\": {\"ConfigurationManagement\": {\"RCS\": {\"TimeOut\": \"9\"}}}");
  EXPECT_TRUE(problems.empty());
  EXPECT_EQ(value("CheckIn"), "ci -u \"$UnitPath\" from pack");
  EXPECT_EQ(value("TimeOut"), "6 from site");
  EXPECT_EQ(value("Pattern"), "\\$Id'x'$ from pack");
  EXPECT_EQ(value("checkin"), "none");
  EXPECT_TRUE(model.layers.find({CM, "RCS", "SaveOnCheckOut"})->getBool());
  auto project = model.load();
  EXPECT_EQ(value("CheckIn"), "mine from project");
  EXPECT_EQ(value("Number"), "7 from project");
  IUnit& unit = project->unitByFile("P.vcmp")->unit();
  EXPECT_EQ(unit.findProperty(CM, "RCS", "TimeOut", false)->getValue(), "9");
  EXPECT_EQ(unit.findProperty(CM, "RCS", "CheckIn", false)->getValue(), "mine");
  EXPECT_EQ(unit.findProperty(CM, "RCS", "CheckIn", true), nullptr);
  EXPECT_EQ(project->findProperty(CM, "RCS", "TimeOut", true), nullptr);
  EXPECT_EQ(project->getComponent()->findProperty(CM, "RCS", "CheckIn", true)->getValue(), "mine");
  project.reset();
  EXPECT_EQ(value("CheckIn"), "ci -u \"$UnitPath\" from pack");
  EXPECT_EQ(model.layers.setting("General", "DEBUG_CM"), "TRUE");
  EXPECT_EQ(model.layers.setting("General", "OnlySite"), "3");
  EXPECT_EQ(model.layers.setting("Other", "OnlySite"), std::nullopt);
  ASSERT_EQ(model.layers.packs().size(), 1U);
  EXPECT_EQ(model.layers.packs()[0].title, "GNU RCS");
}

TEST_F(Layers, anotherFormOfATemplateGoesWithTheTemplate) {
  model.put("packs/rcs.toml",
            "[ConfigurationManagement.RCS]\nCheckIn = 'ci'\nCheckInBatch = 'ci-all'\n"
            "CheckOut = 'co'\nCheckOutQuick = 'lock'\n");
  model.put("site.toml",
            "[ConfigurationManagement.RCS]\nCheckIn = 'our-ci'\nCheckOut = 'co'\n"
            "CheckOutBatch = 'our-co'\n");
  load();
  EXPECT_EQ(value("CheckInBatch"), "none") << "the site's check-in is another one";
  EXPECT_EQ(value("CheckOutQuick"), "lock from pack") << "the site says the same as the pack";
  EXPECT_EQ(value("CheckOutBatch"), "our-co from site");
  model.putProject(
      "\"properties\": {\"ConfigurationManagement\": {\"RCS\": {\"CheckInBatch\": \"mine\", "
      "\"CheckOut\": \"my-co\"}}}");
  auto project = model.load();
  EXPECT_EQ(value("CheckInBatch"), "mine from project");
  EXPECT_EQ(value("CheckOutQuick"), "none");
  EXPECT_EQ(value("CheckOutBatch"), "none");
  model.layers.resetInProject({CM, "RCS", "CheckOut"});
  EXPECT_EQ(value("CheckOutBatch"), "our-co from site");
}

TEST_F(Layers, onlyARealChangeMarksTheProject) {
  model.putProject();
  auto project = model.load();
  IComponent& component = *project->getComponent();
  IProperty* inherited = component.findProperty(CM, "RCS", "TimeOut", false);
  component.attachProperty(CM, "RCS", inherited->copy());
  EXPECT_FALSE(project->isModified()) << "a copy of what is inherited changes nothing";
  IProperty* local = component.findProperty(CM, "RCS", "TimeOut", true);
  ASSERT_NE(local, nullptr);
  local->setValue("6");
  EXPECT_FALSE(project->isModified());
  local->setValue("7");
  EXPECT_TRUE(project->isModified());
  EXPECT_EQ(local->getValue(), "7");
  EXPECT_EQ(model.layers.findIn(Origin::Project, {CM, "RCS", "TimeOut"})->ownValue(), "6");
  EXPECT_EQ(model.layers.findIn(Origin::Site, {CM, "RCS", "TimeOut"})->value(), "6");

  component.attachProperty(CM, "RCS",
                           std::make_unique<Property>("Odd", "\xff\"\n", Origin::Project));
  component.attachProperty(CM, "RCS", component.findProperty(CM, "RCS", "CheckIn", false)->copy());
  EXPECT_TRUE(project->saveModified().empty());
  const std::string text = model.read("M.vdy");
  EXPECT_THAT(text, testing::Not(HasSubstr("CheckIn"))) << "what is only repeated is not written";
  project.reset();
  project = model.load();
  EXPECT_FALSE(project->isModified());
  EXPECT_EQ(value("TimeOut"), "7 from project");
  EXPECT_EQ(value("Odd"), "\xff\"\n from project");
  EXPECT_TRUE(project->saveModified().empty());
  EXPECT_EQ(model.read("M.vdy"), text);

  model.layers.setInProject({CM, "RCS", "CheckIn"}, "ci -u \"$UnitPath\"");
  EXPECT_TRUE(project->isModified()) << "the user's own wish is kept even when it repeats";
  EXPECT_TRUE(project->saveModified().empty());
  EXPECT_THAT(model.read("M.vdy"), HasSubstr("CheckIn"));
}

TEST_F(Layers, brokenFilesAreReportedWithTheirLineAndSkipped) {
  model.put("site.toml", "[General]\nDEBUG_CM = \"TRUE\n");
  model.put("packs/broken.toml", std::string("\0\xff", 2));
  model.put("packs/kinds.toml", "top = 1\n[S.M]\ngood = 1\nbad = [1]\n");
  std::filesystem::remove(model.path("user.toml"));
  std::filesystem::create_directory(model.path("user.toml"));
  load();
  std::string lines;
  for (const Problem& problem : problems) lines += sentence(problem) + "\n";
  for (const char* expected : {"site.toml: Line 2", "broken.toml: Line 1", "kinds.toml: Line 1",
                               "kinds.toml: Line 4", "user.toml: "}) {
    EXPECT_THAT(lines, HasSubstr(expected));
  }
  EXPECT_EQ(model.layers.find({"S", "M", "good"})->value(), "1");
  EXPECT_EQ(value("TimeOut"), "5 from pack");
}

TEST_F(Layers, theUsersFileKeepsItsCommentsWhenAValueIsSet) {
  model.put("user.toml",
            "# mine \u00e8\n[ConfigurationManagement.RCS]\n# why\nCheckIn = '''\nlong\n'''  # end\n"
            "[\"A b\".C]\nx = 1\n");
  load();
  const struct {
    PropertyKey key;
    const char* value;
  } rows[] = {
      {{CM, "RCS", "CheckIn"}, "a \"b\" \\ $x\n\t\u00e8"},
      {{CM, "RCS", "New one"}, "1"},
      {{CM, "Git", "CheckIn"}, "g"},
      {{"A b", "C", "x"}, "2"},
      {{"A b", "C", "y"}, ""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(model.layers.setForUser(row.key, row.value), std::nullopt) << row.key.name;
    EXPECT_EQ(model.layers.find(row.key)->value(), row.value);
  }
  const std::string text = model.read("user.toml");
  for (const char* kept : {"# mine \u00e8\n", "# why\n", "  # end\n"}) {
    EXPECT_THAT(text, HasSubstr(kept));
  }
  load();
  EXPECT_TRUE(problems.empty());
  for (const auto& row : rows) {
    EXPECT_EQ(model.layers.find(row.key)->value(), row.value) << row.key.name;
  }
  EXPECT_NE(model.layers.setForUser({CM, "RCS", "x"}, "\xff"), std::nullopt);
  EXPECT_EQ(model.read("user.toml"), text);
  model.put("user.toml", "broken");
  EXPECT_THAT(model.layers.setForUser({CM, "RCS", "x"}, "1").value_or(""), HasSubstr("line 1"));
  EXPECT_EQ(model.read("user.toml"), "broken");
}

TEST_F(Layers, listsEveryPropertyWithItsOrigin) {
  std::string list;
  for (const PropertyEntry& entry : model.layers.entries()) {
    list += entry.key.name + " " + std::string(originName(entry.origin)) + " " +
            std::string(baseName(entry.source)) + "; ";
  }
  EXPECT_EQ(list,
            "CheckIn pack rcs.toml; Pattern pack rcs.toml; SaveOnCheckOut pack rcs.toml; "
            "TimeOut site site.toml; ");
}

TEST_F(Layers, whatIsTakenAwayLeavesTheInheritedValue) {
  ASSERT_EQ(model.layers.setForUser({CM, "RCS", "TimeOut"}, "7"), std::nullopt);
  ASSERT_EQ(model.layers.setForUser({CM, "RCS", "CheckIn"}, "mine"), std::nullopt);
  model.layers.setInProject({CM, "RCS", "TimeOut"}, "8");
  model.layers.resetInProject({CM, "RCS", "TimeOut"});
  EXPECT_EQ(value("TimeOut"), "7 from user");
  ASSERT_EQ(model.layers.resetForUser({CM, "RCS", "TimeOut"}), std::nullopt);
  EXPECT_EQ(value("TimeOut"), "6 from site");
  load();
  EXPECT_EQ(value("TimeOut"), "6 from site") << "it is out of the file, too";
  EXPECT_EQ(value("CheckIn"), "mine from user") << "its neighbour is not";
  model.put("user.toml",
            "[ConfigurationManagement]\nRCS = {TimeOut = \"7\", CheckIn = \"mine\"}\n");
  load();
  EXPECT_NE(model.layers.resetForUser({CM, "RCS", "TimeOut"}), std::nullopt);
  EXPECT_EQ(value("TimeOut"), "7 from user") << "a line that holds more is left to its author";
}

}  // namespace
}  // namespace veldra::host
