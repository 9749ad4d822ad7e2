#include "cm/templates/CMProperty.h"
#include "tests/cm/core/CMFacadeTest.h"

namespace veldra::test {
namespace {

using ::testing::ElementsAre;

class HybridRuleTest : public CMFacadeTest {};

struct HybridRow {
  const char* name;
  bool hybridMode;
  const char* provider;
  bool packageHasDirectory;
  const char* expectedForDelete;
  const char* expectedForDiff;
};

TEST_F(HybridRuleTest, HybridRuleSendsPackagesWithADirectoryToTheTool) {
  const std::vector<HybridRow> rows{
      {"all conditions hold", true, "vaultrix", true, "tool.deleteMember hybrid",
       "tool.fetch hybrid"},
      {"mode is off", false, "Vaultrix", true, "provider.deleteMember", "provider.fetchForDiff"},
      {"another provider", true, "Other", true, "provider.deleteMember", "provider.fetchForDiff"},
      {"package without directory", true, "Vaultrix", false, "provider.deleteMember",
       "tool.fetch hybrid"},
  };
  for (const HybridRow& row : rows) {
    SCOPED_TRACE(row.name);
    useProvider(row.provider);
    set("UseHybridModeWhenPossible", row.hybridMode ? "True" : "False", "General");
    Caller caller = callerWithUnit();
    MemoryPackage& package = m_model.addPackage("Drive.vpk");
    package.record.packageDirectory = row.packageHasDirectory ? "Drive" : "";
    caller.units = {caller.units[0], nullptr, &package};
    onUnits(CMFacade::DeleteMember)(caller);
    EXPECT_THAT(calls(), ElementsAre(row.expectedForDelete));
    onUnits(CMFacade::FetchForDiff)(caller);
    EXPECT_THAT(calls(), ElementsAre(row.expectedForDiff));
  }
}

TEST_F(HybridRuleTest, HybridFetchForDiffNeedsNoSelectedProvider) {
  CMProperty::setSCCToolName("Vaultrix");
  set("UseHybridModeWhenPossible", "True", "General");
  Caller caller = callerWithUnit();
  onUnits(CMFacade::FetchForDiff)(caller);
  EXPECT_THAT(calls(), ElementsAre("tool.fetch hybrid"));
  onUnits(CMFacade::MoveMember)(caller);
  EXPECT_THAT(calls(), ElementsAre("tool.moveMember"));
}

TEST_F(HybridRuleTest, RenameRuleLooksAtTheDirectories) {
  struct Row {
    const char* oldName;
    const char* newName;
    const char* expected;
  };
  const std::vector<Row> rows{
      {"/w/a/x.vcl", "/w/a/y.vcl", "provider.renameMember"},
      {"/w/a/x.vcl", "/w/b/x.vcl", "tool.renameMember hybrid"},
      {"/w/a/x.vcl", "/w/A/x.vcl", "tool.renameMember hybrid"},
      {"x.vcl", "y.vcl", "provider.renameMember"},
  };
  useProvider("Vaultrix");
  set("UseHybridModeWhenPossible", "True", "General");
  DiagnosticList diagnostics;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.newName);
    CMFacade::RenameMember(nullptr, row.oldName, row.newName, diagnostics);
    EXPECT_THAT(calls(), ElementsAre(row.expected));
  }
  set("UseHybridModeWhenPossible", "False", "General");
  CMFacade::RenameMember(nullptr, "/w/a/x.vcl", "/w/b/x.vcl", diagnostics);
  EXPECT_THAT(calls(), ElementsAre("provider.renameMember"));
}

TEST_F(HybridRuleTest, DirectoriesGoToTheProviderOnlyWhenItIsCorvane) {
  Caller c;
  for (const char* provider : {"corvane", "Vaultrix", ""}) {
    SCOPED_TRACE(provider);
    useProvider(provider);
    const std::string side = std::string(provider) == "corvane" ? "provider" : "tool";
    CMFacade::DeleteDirectory("d", c.arguments, c.diagnostics, false, nullptr);
    CMFacade::movePackageContent(nullptr, c.units, "a", "b", c.arguments, c.diagnostics, false);
    EXPECT_THAT(calls(), ElementsAre(side + ".deleteDirectory d", side + ".movePackageContent"));
  }
  set("UseSCCtool", "NO", "General");
  CMProperty::setSCCToolName("Corvane");
  CMFacade::DeleteDirectory("d", c.arguments, c.diagnostics, false, nullptr);
  EXPECT_THAT(calls(), ElementsAre("tool.deleteDirectory d"));
}

}  // namespace
}  // namespace veldra::test
