#include "cm/host/MessageIds.h"
#include "cm/ui/logic/BackEndMode.h"
#include "cm/ui/logic/BatchResults.h"
#include "cm/ui/logic/ButtonRules.h"
#include "cm/ui/logic/OptionRules.h"
#include "cm/ui/logic/ProgressText.h"
#include "cm/ui/logic/SelectionRules.h"
#include "cm/ui/logic/ViewState.h"
#include "tests/support/HostTest.h"

namespace veldra::test {
namespace {

class RulesTest : public HostTest {
 protected:
  std::string asked() {
    std::string ids;
    for (const auto& shown : m_host.memoryMessages.asked) {
      ids += shown.text.substr(0, 5) + (shown.flags == MessageBox::IconWarning ? "w " : " ");
    }
    m_host.memoryMessages.asked.clear();
    return ids;
  }
  std::string shownButtons() {
    std::string ids;
    for (const ButtonRow& row : buttonTable()) {
      if (ButtonRules::isShown(row.command)) ids += std::to_string(row.controlId) + ' ';
    }
    return ids;
  }
};

TEST_F(RulesTest, SelectionRulesWarnInTheirOwnWords) {
  const struct {
    SelectionRule rule;
    const char* warnings;  ///< For none, one and two selected rows; "-" for none.
  } rows[] = {{SelectionRule::Any, "---"},
              {SelectionRule::AtLeastOne, "60400w --"},
              {SelectionRule::OnlyOne, "60400w -60401w "},
              {SelectionRule::OneAndOnlyOne, "60401w -60401w "}};
  for (const auto& row : rows) {
    std::string warnings;
    for (std::size_t count = 0; count < 3; ++count) {
      warnings += allowsSelection(row.rule, count) ? "-" : asked();
    }
    EXPECT_EQ(warnings, row.warnings);
  }
}

TEST_F(RulesTest, ButtonsAreShownByBackEnd) {
  const std::string always = "910 911 920 917 943 ";
  const std::string users = "931 932 933 934 941 940 ";
  EXPECT_EQ(shownButtons(), always + "913 915 916 918 919 " + users);
  set("CMTool", "vaultrix", "General");
  EXPECT_EQ(shownButtons(), always + "913 914 915 916 921 " + users);
  set("EnableCheckoutBranch", "True", "General");
  EXPECT_NE(shownButtons().find("923"), std::string::npos);
  useProvider("Any");
  set("EnableCheckoutBranch", "False", "General");
  EXPECT_EQ(shownButtons(), always + "912 913 914 915 916 921 922 " + users);
  m_project.showsStatus = true;
  EXPECT_EQ(shownButtons(), "910 911 920 917 963 943 912 913 914 915 916 921 922 " + users);
}

TEST_F(RulesTest, TitlesOfUserCommandsAreTrimmedAndOthersHaveADefault) {
  set("UserDefCommand_2_Title", "  Build \t", "General");
  EXPECT_EQ(ButtonRules::tooltip(DialogCommand::UserCommand2), "Build");
  EXPECT_EQ(ButtonRules::tooltip(DialogCommand::UserCommand1).substr(0, 5), "60461");
  EXPECT_EQ(ButtonRules::tooltip(DialogCommand::RunTool).substr(0, 5), "60467");
  set("RunCMToolCommand", "gui", "General");
  EXPECT_EQ(ButtonRules::tooltip(DialogCommand::RunTool).substr(0, 5), "60450");
}

TEST_F(RulesTest, ButtonsStandSideBySide) {
  const int widths[] = {30, 40};
  const ButtonPlaces fallback(nullptr, nullptr, 20);
  EXPECT_EQ(fallback.ofLine(1, widths)[1].x, 13 + 30 + 3);
  EXPECT_EQ(fallback.ofLine(1, widths)[0].y, 22);
  EXPECT_EQ(fallback.ofLine(2, widths)[0].y, 22 + 20 + 25);
  const Place first{5, 6};
  const Place second{7, 80};
  const ButtonPlaces given(&first, &second, 20);
  EXPECT_EQ(given.firstLine.y, 9);
  EXPECT_EQ(given.ofLine(2, widths)[0].x, 7);
  EXPECT_EQ(given.secondLine.y, 83);
}

TEST_F(RulesTest, DescendantsAreOfferedAlwaysUnlessSwitchedOff) {
  auto& settings = m_host.memoryEnvironment.settings;
  const std::pair<std::string, std::string> name{"General", "AlwaysEnableWithDescendentsOption"};
  EXPECT_TRUE(OptionRules::offersDescendants(false));
  settings[name] = "yes";
  EXPECT_TRUE(OptionRules::offersDescendants(false));
  settings[name] = "FALSE";
  EXPECT_FALSE(OptionRules::offersDescendants(false));
  EXPECT_TRUE(OptionRules::offersDescendants(true));
}

TEST_F(RulesTest, CommentsAreChecked) {
  OptionPresets presets;
  presets.command = DialogCommand::CheckIn;
  presets.window = OptionWindow::CheckIn;
  CommandOptions options;
  options.comment = "a; b";
  EXPECT_EQ(OptionRules::objection(presets, options), "");
  set("InValidCharactersInRevisionDescription", " ; ");
  EXPECT_EQ(OptionRules::objection(presets, options).substr(0, 5), "60405");
  options.comment = "a b";
  EXPECT_EQ(OptionRules::objection(presets, options), "") << "blanks around do not count";
  options.comment = ";";
  set("CMTool", "None", "General");
  EXPECT_EQ(OptionRules::objection(presets, options), "") << "nothing runs without a tool";
  useProvider("Any");
  presets.window = OptionWindow::Provider;
  options.comment.clear();
  EXPECT_EQ(OptionRules::objection(presets, options), "");
  set("CommentsRequiredForCheckIn", "True", "SCC");
  EXPECT_EQ(OptionRules::objection(presets, options).substr(0, 5), "60406");
}

TEST_F(RulesTest, AProvidersWindowOffersTheModeToCommandsThatPassIt) {
  useProvider("Any");
  std::string takers;
  for (const CommandRow& row : commandTable()) {
    if (row.provider.window != OptionWindow::Provider) continue;
    if (OptionRules::presets(row, {}).takesMode) takers += std::to_string(row.controlId) + ' ';
  }
  EXPECT_EQ(takers, "913 915 ");
}

TEST_F(RulesTest, TitlesNameTheCommandAsTheSettingSays) {
  OptionPresets presets;
  presets.command = DialogCommand::UndoCheckOut;
  presets.window = OptionWindow::Provider;
  useProvider("Any");
  EXPECT_EQ(OptionRules::title(presets).substr(0, 5), "60520");
  set("UseSCCCommandTitles", "True", "SCC");
  EXPECT_EQ(OptionRules::title(presets).substr(0, 5), "60532");
  presets.command = DialogCommand::Lock;
  presets.window = OptionWindow::Lock;
  EXPECT_EQ(OptionRules::title(presets).substr(0, 5), "60432");
}

TEST_F(RulesTest, TheFirstViewComesFromTheSettingsAndIsNotReadAgain) {
  EXPECT_EQ(ViewState::sortColumn(), 1);
  set("GUI", "Flat", "General");
  ViewState::initialize();
  EXPECT_TRUE(ViewState::isFlat());
  ViewState::setViewMode("Tree");
  ViewState::initialize();
  EXPECT_FALSE(ViewState::isFlat());
  ViewState::setViewMode("flat");
  EXPECT_FALSE(ViewState::isFlat()) << "case counts";
}

TEST_F(RulesTest, TheBranchToolRefusesProjectsWithControlledFiles) {
  std::string message = "untouched";
  EXPECT_FALSE(ConnectingToVaultrixWithControlledFiles(message));
  set("CMTool", "Vaultrix", "General");
  EXPECT_FALSE(ConnectingToVaultrixWithControlledFiles(message));
  EXPECT_EQ(message, "untouched");
  m_model.addEmbeddedFile("docs/Notes.txt").record.saveUnit = &m_project;
  EXPECT_TRUE(ConnectingToVaultrixWithControlledFiles(message));
  EXPECT_EQ(message, "60403: Notes.txt Plant");
}

TEST(BatchResultsTest, OfAToolsWordsTheFirstLinesCount) {
  EXPECT_EQ(firstLines("\n  \r\n  svn: E1: no \r\n\nmore\nrest", 2), "svn: E1: no\nmore");
  EXPECT_EQ(firstLines(" \n", 2), "");
}

TEST(ProgressTextTest, ThePaceSoFarTellsTheRest) {
  EXPECT_EQ(secondsLeft(1, 10, 5000), std::nullopt);
  EXPECT_EQ(secondsLeft(3, 10, 900), std::nullopt);
  EXPECT_EQ(secondsLeft(3, 10, 4000), 16);
  EXPECT_EQ(secondsLeft(10, 10, 9900), 2);
  EXPECT_EQ(secondsLeft(11, 10, 1000), std::nullopt);
}

}  // namespace
}  // namespace veldra::test
