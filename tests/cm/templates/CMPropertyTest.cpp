#include "cm/templates/CMProperty.h"

#include "cm/core/BackEnd.h"
#include "cm/core/CMOperation.h"
#include "cm/core/ModuleState.h"
#include "cm/host/IPN.h"
#include "tests/support/HostTest.h"

namespace veldra::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsNull;

class CMPropertyTest : public HostTest {
 protected:
  static std::string valueOf(const std::string& name, bool providerMetaclass = false) {
    std::string value = "(missing)";
    CMProperty::getToolPropertyValue(name, value, providerMetaclass);
    return value;
  }
  void share(const std::string& metaclass, const std::string& name, const std::string& value) {
    m_model.sharedSettings.attachProperty(IPN::CM, metaclass,
                                          std::make_unique<MemoryProperty>(name, value));
  }
};

TEST_F(CMPropertyTest, RefereeIsTheObjectElseComponentElseConfiguration) {
  MemoryUnit& unit = m_model.addUnit("U.vcl");
  EXPECT_EQ(CMProperty::getReferee(&unit), &unit);
  EXPECT_EQ(CMProperty::getReferee(nullptr), &m_project.component);
  m_project.component.flags = 0;
  EXPECT_EQ(CMProperty::getReferee(nullptr), &m_project.configuration);
  m_project.hasConfiguration = false;
  debugTraces();
  EXPECT_THAT(CMProperty::getReferee(nullptr), IsNull());
  EXPECT_EQ(window(), "+++ cannot get valid referee\n");
  m_project.hasComponent = false;
  m_project.hasConfiguration = true;
  EXPECT_THAT(CMProperty::getReferee(nullptr), IsNull());
  m_model.setActiveProject(nullptr);
  EXPECT_THAT(CMProperty::getReferee(nullptr), IsNull());
}

TEST_F(CMPropertyTest, ToolMetaclassComesBeforeGeneral) {
  set("Both", "tool");
  set("Both", "general", IPN::General);
  set("Common", "general", IPN::General);
  set("Other", "other tool", "OtherTool");
  EXPECT_EQ(valueOf("Both"), "tool");
  EXPECT_EQ(valueOf("Common"), "general");
  EXPECT_EQ(valueOf("Other"), "(missing)");
  set(IPN::CMTool, "OtherTool", IPN::General);
  EXPECT_EQ(valueOf("Other"), "other tool");
  EXPECT_EQ(valueOf("Both"), "general");
  unset(IPN::CMTool, IPN::General);
  EXPECT_EQ(valueOf("Both"), "general");
}

TEST_F(CMPropertyTest, ProviderMetaclasses) {
  set("Where", "scc", IPN::SCC);
  set("Where", "vaultrix", "Vaultrix");
  set("Where", "general", IPN::General);
  useProvider();
  EXPECT_EQ(valueOf("Where"), "scc");
  EXPECT_EQ(valueOf("Where", true), "general") << "no provider has given its name yet";
  CMProperty::setSCCToolName("Vaultrix");
  EXPECT_EQ(valueOf("Where", true), "vaultrix");
  EXPECT_EQ(CMProperty::getSCCToolName(), "Vaultrix");
  set("UseSCCtool", "no", IPN::General);
  EXPECT_EQ(CMProperty::useSccCompliantTool(), 0);
  EXPECT_EQ(valueOf("Where", true), "general");
}

TEST_F(CMPropertyTest, OnlyYesSelectsTheProvider) {
  for (const auto& [value, selected] : std::vector<std::pair<const char*, int>>{
           {"YES", 1}, {"Yes", 1}, {"yes", 1}, {"TRUE", 0}, {"1", 0}, {"", 0}, {"yes ", 0}}) {
    set("UseSCCtool", value, IPN::General);
    EXPECT_EQ(CMProperty::useSccCompliantTool(), selected) << value;
    EXPECT_EQ(CMProperty::getUseSCCtool(), selected) << value;
  }
  unset("UseSCCtool", IPN::General);
  EXPECT_EQ(CMProperty::useSccCompliantTool(), 0);
  useProvider();
  m_model.setActiveProject(nullptr);
  EXPECT_EQ(CMProperty::useSccCompliantTool(), 0);
}

TEST_F(CMPropertyTest, SwitchingTheProjectSwitchesTheBackEndWithoutAReset) {
  useProvider();
  set("Where", "scc of the first", IPN::SCC);
  EXPECT_EQ(valueOf("Where"), "scc of the first");
  MemoryProject& second = m_model.openProject("/second", "Second.vdy");
  second.attachProperty(IPN::CM, IPN::General,
                        std::make_unique<MemoryProperty>("UseSCCtool", "no"));
  second.attachProperty(IPN::CM, IPN::General, std::make_unique<MemoryProperty>(IPN::CMTool, "T"));
  second.attachProperty(IPN::CM, "T", std::make_unique<MemoryProperty>("Where", "tool of second"));
  EXPECT_EQ(valueOf("Where"), "tool of second");
  EXPECT_EQ(CMProperty::getUseSCCtool(), 0);
  m_model.setActiveProject(&m_project);
  EXPECT_EQ(valueOf("Where"), "scc of the first");
}

TEST_F(CMPropertyTest, TheSelectionIsComputedOncePerProject) {
  EXPECT_EQ(CMProperty::getUseSCCtool(), 0);
  set("UseSCCtool", "YES", IPN::General);
  EXPECT_EQ(CMProperty::getUseSCCtool(), 0);
  EXPECT_EQ(CMProperty::useSccCompliantTool(), 1);
  EXPECT_EQ(CMProperty::getUseSCCtool(), 1);
}

TEST_F(CMPropertyTest, AnOverrideIsTheEffectiveValueAndTheValueUnderItStays) {
  set("P", "own");
  EXPECT_EQ(CMProperty::setToolProperty("P", "override", nullptr), 1);
  EXPECT_EQ(valueOf("P"), "override");
  const auto* property = dynamic_cast<MemoryProperty*>(CMProperty::getToolProperty("P"));
  ASSERT_NE(property, nullptr);
  EXPECT_EQ(property->ownValue(), "own");
}

TEST_F(CMPropertyTest, SettingAnInheritedPropertyCopiesItToTheObject) {
  share(Tool, "P", "shipped");
  MemoryUnit& unit = m_model.addUnit("U.vcl");
  EXPECT_EQ(CMProperty::setToolProperty("P", "of the unit", &unit), 1);
  EXPECT_EQ(CMProperty::getToolProperty("P", &unit, true)->getValue(), "of the unit");
  EXPECT_EQ(valueOf("P"), "shipped");
  EXPECT_EQ(CMProperty::setToolPropertyValue("P", "of the project"), 1);
  EXPECT_EQ(valueOf("P"), "of the project");
  EXPECT_EQ(m_model.sharedSettings.findProperty(IPN::CM, Tool, "P", true)->getValue(), "shipped");
  EXPECT_EQ(m_project.component.properties().find(IPN::CM, Tool, "P")->getValue(),
            "of the project");
}

TEST_F(CMPropertyTest, SettingChangesNothingThatOthersShareAndCountsAtOnce) {
  struct Row {
    const char* name;
    const char* tool;  ///< The metaclasses that others have it in.
    const char* general;
    bool hasOwn;  ///< The object has one of its own under "General".
    bool hasTool;
    const char* attachedTo;
  };
  for (const Row& row : std::vector<Row>{{"Site", "", "site", false, true, Tool},
                                         {"PackAndSite", "pack", "site", false, true, Tool},
                                         {"PackAndOwn", "pack", "", true, true, Tool},
                                         {"Own", "", "", true, true, IPN::General},
                                         {"NoTool", "", "site", false, false, IPN::General}}) {
    SCOPED_TRACE(row.name);
    const auto shared = [&](const char* metaclass) {
      const IProperty* p = m_model.sharedSettings.findProperty(IPN::CM, metaclass, row.name, true);
      return p != nullptr ? p->getValue() : "";
    };
    if (*row.tool != '\0') share(Tool, row.name, row.tool);
    if (*row.general != '\0') share(IPN::General, row.name, row.general);
    if (row.hasOwn) set(row.name, "own", IPN::General);
    if (!row.hasTool) unset(IPN::CMTool, IPN::General);
    EXPECT_EQ(CMProperty::setToolPropertyValue(row.name, "set"), 1);
    EXPECT_EQ(valueOf(row.name), "set");
    EXPECT_EQ(m_project.component.findProperty(IPN::CM, row.attachedTo, row.name, true)->getValue(),
              "set");
    EXPECT_EQ(shared(Tool), row.tool);
    EXPECT_EQ(shared(IPN::General), row.general);
  }
}

TEST_F(CMPropertyTest, APropertyThatExistsNowhereCannotBeSet) {
  EXPECT_EQ(CMProperty::setToolPropertyValue("Nowhere", "x"), 0);
  EXPECT_EQ(valueOf("Nowhere"), "(missing)");
}

TEST_F(CMPropertyTest, SettingTheToolKeepsItLocal) {
  unset(IPN::CMTool, IPN::General);
  EXPECT_EQ(CMProperty::setCMTool("RCS", nullptr), 0);
  share(IPN::General, IPN::CMTool, "None");
  EXPECT_EQ(CMProperty::setCMTool("RCS", nullptr), 1);
  EXPECT_EQ(CMProperty::getCMTool(nullptr, true)->getValue(), "RCS");
  EXPECT_EQ(
      m_model.sharedSettings.findProperty(IPN::CM, IPN::General, IPN::CMTool, true)->getValue(),
      "None");
}

TEST_F(CMPropertyTest, MissesAreTraced) {
  debugTraces();
  valueOf("Nowhere");
  EXPECT_THAT(window(), HasSubstr("+++ could not find the property 'Nowhere' for Tool\n"));
  m_host.manager.window.str("");
  unset(IPN::CMTool, IPN::General);
  CMProperty::getCMTool(nullptr, false);
  EXPECT_EQ(window(), "+++ could not find the property that states which is the CM tool\n");
}

TEST_F(CMPropertyTest, SingleSettings) {
  EXPECT_EQ(CMProperty::isHybridModePossible(), 0);
  set("UseHybridModeWhenPossible", "TRUE", IPN::General);
  EXPECT_EQ(CMProperty::isHybridModePossible(), 1);

  EXPECT_EQ(CMProperty::closeProjectNeeded(), 1);
  set("ProjName", "", IPN::SCC);
  EXPECT_EQ(CMProperty::closeProjectNeeded(), 1);
  set("ProjName", "p", IPN::SCC);
  EXPECT_EQ(CMProperty::closeProjectNeeded(), 0);

  set("CustomButtonCmd", "cmd", "CustomButton");
  EXPECT_EQ(CMProperty::CheckCustomButton(), 0);
  set("CustomButtonImg", "img", "CustomButton");
  EXPECT_EQ(CMProperty::CheckCustomButton(), 1);

  m_project.showsStatus = true;
  EXPECT_EQ(CMProperty::getShowCMStatus(), 1);
  m_model.setActiveProject(nullptr);
  EXPECT_EQ(CMProperty::getShowCMStatus(), 1) << "the last value is remembered";
  EXPECT_EQ(CMProperty::isHybridModePossible(), 0);
  EXPECT_EQ(CMProperty::closeProjectNeeded(), 1);
  EXPECT_EQ(CMProperty::getWorkingDir(), "");
}

TEST_F(CMPropertyTest, WorkingDirectoryOfOldAndNewProjects) {
  m_project.unitDirectory = "/plan/units";
  EXPECT_EQ(CMProperty::getWorkingDir(), "/plan/units");
  set("SupportTreeRepository", "");
  EXPECT_FALSE(CMProperty::isPre40Compatible());
  set("SupportTreeRepository", "Yes");
  EXPECT_TRUE(CMProperty::isPre40Compatible());
  EXPECT_EQ(CMProperty::getWorkingDir(), "/plan");
}

TEST_F(CMPropertyTest, ArchivesOfUnitsFallBackToTheProject) {
  MemoryUnit& unit = m_model.addUnit("U.vcl");
  std::string archive = "old";
  EXPECT_EQ(CMProperty::getBatchArchiveRecursive(&unit, archive), 0);
  EXPECT_EQ(archive, "");
  set(IPN::CMArchive, "/main");
  EXPECT_EQ(CMProperty::getBatchArchiveRecursive(&unit, archive), 1);
  EXPECT_EQ(archive, "/main");
  unit.record.archive = "/own";
  EXPECT_EQ(CMProperty::getBatchArchiveRecursive(&unit, archive), 1);
  EXPECT_EQ(archive, "/own");
}

TEST_F(CMPropertyTest, AskingForACMTool) {
  struct Operation final : CMOperation {
  } operation;
  struct Row {
    const char* tool;  ///< Null: there is no such property.
    bool provider, hybrid;
    int result;
    const char* message;
  };
  for (const Row& row : std::vector<Row>{{"Tool", false, false, 1, ""},
                                         {"nONE", false, false, 0, "46554"},
                                         {nullptr, false, false, 0, "as it was"},
                                         {nullptr, true, true, 1, "as it was"},
                                         {"None", true, false, 0, "46554"},
                                         {"None", false, true, 0, "46554"}}) {
    SCOPED_TRACE(row.message);
    unset(IPN::CMTool, IPN::General);
    if (row.tool != nullptr) set(IPN::CMTool, row.tool, IPN::General);
    set("UseSCCtool", row.provider ? "YES" : "NO", IPN::General);
    CMProperty::useSccCompliantTool();
    std::string message = "as it was";
    EXPECT_EQ(operation.isCMTool(message, nullptr, row.hybrid), row.result);
    EXPECT_EQ(message, row.message);
  }
}

}  // namespace
}  // namespace veldra::test
