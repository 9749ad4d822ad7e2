// What the windows decide about an open project: what changed on the disk, the settings, new units.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cm/host/IPN.h"
#include "host/ReferenceHost.h"
#include "host/desktop/logic/DiskChanges.h"
#include "host/desktop/logic/NewUnit.h"
#include "host/desktop/logic/SettingsTable.h"
#include "tests/host/desktop/SampleProject.h"

namespace veldra::host::desktop {
namespace {

namespace fs = std::filesystem;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

class ProjectRulesTest : public testing::Test {
 protected:
  ProjectRulesTest() {
    HostOptions options;
    options.settings = SettingsFiles{.packDirectory = VELDRA_PACKS,
                                     .siteFile = {},
                                     .userFile = m_sample.beside("user.toml"),
                                     .cacheDirectory = {}};
    options.seenMessagesFile = "";
    m_host = std::make_unique<ReferenceHost>(options);
    EXPECT_EQ(m_host->open(m_sample.folder()), std::nullopt);
    installHost(m_host.get());
  }
  ~ProjectRulesTest() override { installHost(nullptr); }

  Project& project() { return *m_host->project(); }
  UnitCore& unit(const std::string& path) { return *project().unitByFile(path); }

  SampleProject m_sample;
  std::unique_ptr<ReferenceHost> m_host;
};

TEST_F(ProjectRulesTest, EachKindOfChangeOnTheDiskIsToldOnce) {
  DiskChanges disk;
  disk.remember(project());
  EXPECT_TRUE(disk.look(project()).isEmpty());
  m_sample.write("Brewing/Grinder.vcmp", m_sample.read("Brewing/Grinder.vcmp") + "\n\n");
  m_sample.write("Control/Recipe.vcmp", m_sample.read("Control/Recipe.vcmp") + "\n\n");
  unit("Control/Recipe.vcmp").markModified(true);
  fs::remove(m_sample.file("Control/Counter.vcmp"));
  m_sample.makeReadOnly("Milk/Milk Pump.vcmp");

  const DiskChange change = disk.look(project());
  EXPECT_THAT(change.reload, ElementsAre(m_sample.file("Brewing/Grinder.vcmp")));
  EXPECT_THAT(change.conflict, ElementsAre(m_sample.file("Control/Recipe.vcmp")));
  EXPECT_THAT(change.vanished, ElementsAre(m_sample.file("Control/Counter.vcmp")));
  EXPECT_THAT(change.mode, ElementsAre(m_sample.file("Milk/Milk Pump.vcmp")));
  EXPECT_TRUE(disk.look(project()).isEmpty());
}

TEST_F(ProjectRulesTest, SettingsShowWhereTheirValueComesFrom) {
  SettingsTable table(m_host->properties(), &project());
  const PropertyKey tool{IPN::CM, IPN::General, IPN::CMTool};
  const PropertyKey checkIn{IPN::CM, "Subversion", IPN::CMCheckIn};
  UnitCore& grinder = unit("Brewing/Grinder.vcmp");
  ASSERT_EQ(table.set(tool, "Subversion", Origin::Project, nullptr), std::nullopt);
  const auto originOf = [&](UnitCore* of) {
    for (const SettingRow& row : table.rows({.text = "checkin", .unit = of})) {
      if (row.key == checkIn) return row.value + " " + std::string(originName(row.origin));
    }
    return std::string("not listed");
  };
  EXPECT_THAT(originOf(nullptr), HasSubstr("pack"));
  ASSERT_EQ(table.set(checkIn, "mine", Origin::User, nullptr), std::nullopt);
  EXPECT_EQ(originOf(nullptr), "mine user");
  ASSERT_EQ(table.set(checkIn, "ours", Origin::Project, nullptr), std::nullopt);
  EXPECT_EQ(originOf(nullptr), "ours project");
  ASSERT_EQ(table.set(checkIn, "its", Origin::Unit, &grinder), std::nullopt);
  EXPECT_EQ(originOf(&grinder), "its unit");
  EXPECT_EQ(originOf(nullptr), "ours project");
  EXPECT_TRUE(grinder.isModified());
}

TEST_F(ProjectRulesTest, SettingsThatCannotBeStoredAreRefusedWithTheWayOut) {
  SettingsTable table(m_host->properties(), &project());
  const PropertyKey key{IPN::CM, IPN::General, "Anything"};
  m_sample.makeReadOnly("CoffeeMachine.vdy");
  m_sample.makeReadOnly("Brewing/Grinder.vcmp");
  project().updateMode({});
  UnitCore& grinder = unit("Brewing/Grinder.vcmp");
  grinder.updateMode({});
  EXPECT_THAT(table.set(key, "x", Origin::Project, nullptr).value_or(""), HasSubstr("read-only"));
  EXPECT_THAT(table.set(key, "x", Origin::Unit, &grinder).value_or(""), HasSubstr("read-only"));
  EXPECT_NE(table.set({IPN::CM, "", "x"}, "x", Origin::User, nullptr), std::nullopt);
  EXPECT_EQ(m_host->properties().find(key), nullptr);
}

TEST_F(ProjectRulesTest, NewUnitsLieWhereTheyBelongAndNothingIsOverwritten) {
  std::string error;
  const Folder& brewing = folderFor(project(), &unit("Brewing/Grinder.vcmp"));
  const UnitCore* made = createUnit(project(), brewing, "Component", "Kettle", error);
  ASSERT_NE(made, nullptr) << error;
  EXPECT_EQ(made->relativeFileName(), "Brewing/Kettle.vcmp");
  const UnitCore* package = createUnit(project(), brewing, "Package", "Heat", error);
  ASSERT_NE(package, nullptr) << error;
  EXPECT_EQ(package->relativeFileName(), "Brewing/Heat/Heat.vpkg");
  EXPECT_EQ(package->owner()->record().name, "Brewing");

  const std::string before = m_sample.read("Brewing/Grinder.vcmp");
  for (const char* name : {"Grinder", "", "../out", "a>b", "-r", ".hidden", "a\nb", "$Id"}) {
    EXPECT_EQ(createUnit(project(), brewing, "Component", name, error), nullptr) << name;
    EXPECT_FALSE(error.empty());
  }
  EXPECT_EQ(m_sample.read("Brewing/Grinder.vcmp"), before);
}

}  // namespace
}  // namespace veldra::host::desktop
