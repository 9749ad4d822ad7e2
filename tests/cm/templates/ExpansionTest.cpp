#include "tests/cm/templates/ExpansionTest.h"

#include "cm/host/IPN.h"

namespace veldra::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

TEST_F(ExpansionTest, References) {
  for (const ExpandRow& row : std::vector<ExpandRow>{
           {"plain text", 1, "plain text"},
           {"$label", 1, "1.3"},
           {"${label}", 1, "1.3"},
           {"${label", 1, "1.3"},
           {"$label}", 1, "1.3"},
           {"a$label.b", 1, "a1.3.b"},
           {"${label}x", 1, "1.3x"},
           {"${${label}", 1, "${1.3"},
           {"$label$label", 1, "1.31.3"},
           {"-m$log", 1, "-m\"two words\""},
           {"$LABEL ${Label} $lAbEl", 1, "1.3 1.3 1.3"},
           // One keyword begins with the other: each replacement touches its own reference.
           {"$Unit of $UnitPath", 1, "Engine.vcl of /plan/drive/Engine.vcl"},
           {"$UnitPath of $Unit", 1, "/plan/drive/Engine.vcl of Engine.vcl"},
           {"$unit of $UNITPATH", 1, "Engine.vcl of /plan/drive/Engine.vcl"},
           {"$UNITPATH of $unit", 1, "/plan/drive/Engine.vcl of Engine.vcl"},
           {"${Unit}Path", 1, "Engine.vclPath"},
           {"$UnitDirPath/$UnitDirectory", 1, "/plan/drive//drive"},
           // Dollar signs that begin no reference.
           {"$", 1, "$"},
           {"$$", 1, "$$"},
           {"${}", 1, "${}"},
           {"costs 5$ or $5", 1, "costs 5$ or $5"},
           {"{$5}", 1, "{$5}"},
           {"$ label", 1, "$ label"},
           {"$1$label", 1, "$11.3"},
       })
    checkRow(row.text, row.result, row.out);
}

TEST_F(ExpansionTest, UnresolvedKeywordStopsAndStays) {
  for (const ExpandRow& row : std::vector<ExpandRow>{{"$nobody", 0, "$nobody"},
                                                     {"${nobody}", 0, "${nobody}"},
                                                     {"$label $nobody", 0, "1.3 $nobody"},
                                                     {"$nobody $label", 0, "$nobody $label"},
                                                     {"$_x1 $label", 0, "$_x1 $label"},
                                                     {"$labels", 0, "$labels"}}) {
    checkRow(row.text, row.result, row.out);
    EXPECT_THAT(windowLines("+++ Could not resolve '$"), SizeIs(1));
  }
  expand("a ${noBody} b");
  EXPECT_THAT(window(), HasSubstr("+++ Could not resolve '${noBody}'\n"));
}

TEST_F(ExpansionTest, Properties) {
  set("Options", "-q -x$label");
  set("Empty", "");
  set("Broken", "$nobody");
  set("Shared", "general", IPN::General);
  set("label", "not this one");
  for (const ExpandRow& row :
       std::vector<ExpandRow>{{"ci $options", 0, "ci $options"},  // Property names keep their case.
                              {"ci $Options $Unit", 1, "ci -q -x1.3 Engine.vcl"},
                              {"[$Empty]", 1, "[]"},
                              {"$Shared", 1, "general"},
                              {"$label", 1, "1.3"},  // Arguments come before properties.
                              {"$Broken $label", 0, "$Broken $label"}})
    checkRow(row.text, row.result, row.out);
}

TEST_F(ExpansionTest, AWholeValueIsExpandedBeforeItIsPutIn) {
  m_label = std::make_unique<CMLabel>("<$log>");
  checkRow("$label", 1, "<\"two words\">");
  m_label = std::make_unique<CMLabel>("(a?b:c)");
  checkRow("$label", 1, "b");
  m_label = std::make_unique<CMLabel>("lab");
  set("label", "joined");
  checkRow("$$label", 0, "$lab");  // What comes together by replacing is looked at again.
  set("lab", "found");
  checkRow("$$label", 1, "found");
}

TEST_F(ExpansionTest, AfterAFailedArgumentLaterArgumentsAreEmptyAndAPredefinedKeywordMakesGood) {
  m_label = std::make_unique<CMLabel>("<$nobody>");
  checkRow("$label|$log|$Unit", 0, "<$nobody>|$log|$Unit");
  // An argument that leaves no keyword behind, and still fails: its condition does.
  m_label = std::make_unique<CMLabel>("x($nobody?y:z)");
  checkRow("$label|$log|$Unit", 0, "x||");
  checkRow("$label|$log|$OMROOT|$log", 1, "x||/opt/veldra|\"two words\"");
  set("Options", "-q");
  checkRow("$label|$Options", 0, "x|-q");
}

TEST_F(ExpansionTest, EmptyTextSucceedsAndLeavesTheOutput) {
  for (const char* text : {"", "($Empty?a)"}) {
    set("Empty", "");
    m_out = "as it was";
    EXPECT_EQ(expand(text), 1);
    EXPECT_EQ(m_out, "as it was");
  }
}

TEST_F(ExpansionTest, PredefinedKeywords) {
  for (const ExpandRow& row :
       std::vector<ExpandRow>{{"$OMROOT/bin", 1, "/opt/veldra/bin"},
                              {"$omroot/bin", 1, "/opt/veldra/bin"},
                              // Predefined keywords are known without braces only.
                              {"${OMROOT}/bin", 0, "${OMROOT}/bin"},
                              {"$OMROOT}", 1, "/opt/veldra}"},
                              {"$ProjectName", 1, "Plant.vdy"},
                              {"$currentDirectory", 1, "/start"},
                              {"$vdrdirectory", 1, "/plan"},
                              {"$projectunitdirname", 1, "Plant_units"},
                              {"$temp", 1, "/tmp"}})
    checkRow(row.text, row.result, row.out);
  m_host.memoryEnvironment.rootKnown = false;
  checkRow("$temp", 0, "$temp");
}

TEST_F(ExpansionTest, ExpandPredefinedReplacesBothForms) {
  struct Row {
    const char* text;
    const char* out;
  };
  for (const Row& row : std::vector<Row>{{"$OMROOT", "/opt/veldra"},
                                         {"\\$omroot", "/opt/veldra"},
                                         {"\\$OMROOT $OMROOT", "/opt/veldra /opt/veldra"},
                                         {"$temp\\$TEMP", "/tmp/tmp"},
                                         {"$label", "$label"},
                                         {"", ""}}) {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(CMProperty::ExpandPredefined(row.text, m_out), 1);
    EXPECT_EQ(m_out, row.out);
  }
  m_host.memoryEnvironment.rootKnown = false;
  EXPECT_EQ(CMProperty::ExpandPredefined("$OMROOT $temp", m_out), 0);
  EXPECT_EQ(m_out, "$OMROOT /tmp");
  m_model.setActiveProject(nullptr);
  const std::string project = "$projectname $currentdirectory $vdrdirectory $projectunitdirname";
  CMProperty::ExpandPredefined(project, m_out);
  EXPECT_EQ(m_out, project);
}

TEST_F(ExpansionTest, TracesOfOneExpansionInOrder) {
  set("Options", "-q");
  expand("(a?$Options $label:n)");
  EXPECT_THAT(windowLines(""),
              ElementsAre("+++ Expanding '(a?$Options $label:n)'",
                          "+++ if: 'a' Then: '$Options $label' Else: 'n'", "+++ Expanding 'a'",
                          "+++ Expanding '$Options $label'", "+++ Expanding property 'Options'",
                          "+++ Expanding '-q'", "+++ 'Options' expanded to '-q'",
                          "+++ Expanding '1.3'", "+++ after condition expansion: '-q 1.3'"));
  expand("");
  EXPECT_THAT(windowLines(""), ElementsAre("+++ Expanding ''", "+++ nothing the expand"));
  expand("(?a)");
  EXPECT_THAT(window(), HasSubstr("+++ nothing the more expand\n"));
  expand("(a");
  EXPECT_THAT(window(), HasSubstr("+++ could not find the then part\n"));
  expand("(a?b");
  EXPECT_THAT(window(), HasSubstr("+++ could not find the condition end after the then part\n"));
  expand("(a?b:c");
  EXPECT_THAT(window(), HasSubstr("+++ could not find the condition end after the else part\n"));
  expand("$nobody");
  EXPECT_THAT(window(), AllOf(HasSubstr("+++ could not find the property 'nobody' for Tool\n"),
                              HasSubstr("+++ Expanding (predefined?) '\\$nobody'\n")));
}

TEST_F(ExpansionTest, DebugLinesNeedTheExactWord) {
  for (const char* value : {"true", "TRUE ", "1", ""}) {
    m_host.memoryEnvironment.settings[{"General", "DEBUG_CM"}] = value;
    expand("$label");
    EXPECT_EQ(window(), "") << value;
  }
}

TEST_F(ExpansionTest, ProviderMetaclassReachesPropertyReferencesButNotNestedParts) {
  useProvider("Vaultrix");
  set("Where", "provider's own", "Vaultrix");
  set("Where", "scc", IPN::SCC);
  set("Outer", "$Where", "Vaultrix");
  m_label = std::make_unique<CMLabel>("$Where");
  std::string extra;
  const auto expandForProvider = [&](const char* text) {
    CMProperty::Expand(text, arguments(), m_out, extra, true);
    return m_out;
  };
  EXPECT_EQ(expandForProvider("$Where"), "provider's own");
  EXPECT_EQ(expandForProvider("$Outer"), "provider's own");
  EXPECT_EQ(expandForProvider("(a?$Where)"), "scc");
  EXPECT_EQ(expandForProvider("$label"), "scc");
}

TEST_F(ExpansionTest, ExpandPropertyTellsMissingFromEmpty) {
  std::string extra;
  m_out = "as it was";
  EXPECT_EQ(CMProperty::ExpandProperty("Missing", {}, m_out, extra), 0);
  EXPECT_EQ(m_out, "as it was");
  set("There", "");
  EXPECT_EQ(CMProperty::ExpandProperty("There", {}, m_out, extra), 1);
  EXPECT_EQ(m_out, "as it was");
  set("There", "$OMROOT");
  EXPECT_EQ(CMProperty::ExpandProperty("There", {}, m_out, extra), 1);
  EXPECT_EQ(m_out, "/opt/veldra");
}

}  // namespace
}  // namespace veldra::test
