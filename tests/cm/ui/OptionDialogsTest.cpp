#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include "cm/templates/CMProperty.h"
#include "cm/ui/options/CCMCiInfoDlg.h"
#include "cm/ui/options/CCMCoInfoDlg.h"
#include "cm/ui/options/CCMConnectToArc.h"
#include "cm/ui/options/CCMDiffDialog.h"
#include "cm/ui/options/CCMFetchDlg.h"
#include "cm/ui/options/CCMFetchSelection.h"
#include "cm/ui/options/CCMLockInfoDlg.h"
#include "cm/ui/options/CCMSccInfoDlg.h"
#include "cm/ui/options/CCMUnitArchiveDlg.h"
#include "cm/ui/options/CCoBranch.h"
#include "tests/cm/ui/DialogTest.h"

namespace veldra::test {
namespace {

using OptionDialogsTest = DialogTest;

void expectControls(const QWidget& window, std::initializer_list<int> ids) {
  for (const int id : ids) EXPECT_NE(findControl(window, id), nullptr) << id;
}

TEST_F(OptionDialogsTest, EachHasItsControls) {
  const OptionPresets presets;
  expectControls(CCMCiInfoDlg(presets), {201, 202, 203, 217, 5319});
  expectControls(CCMCoInfoDlg(presets), {924, 927, 928, 964});
  expectControls(CCMSccInfoDlg(presets), {239, 238, 5317, 5318, 40002});
  expectControls(CCMLockInfoDlg(presets), {213, 222, 965});
  expectControls(CCMConnectToArc(), {214, 215});
  expectControls(CCMFetchDlg(), {231, 923});
  expectControls(CCMDiffDialog(), {234, 233, 923});
  expectControls(CCMFetchSelection(), {42409});
  expectControls(CCMUnitArchiveDlg(&m_class), {981, 982, 983, 984});
  expectControls(CCoBranch(), {ControlId::BranchName});
}

TEST_F(OptionDialogsTest, PresetsAreShown) {
  OptionPresets presets;
  presets.mode = true;
  presets.saysReserved = true;
  presets.offersDescendants = false;
  presets.withDescendants = true;
  presets.offersInformationFiles = false;
  const CCMCoInfoDlg window(presets);
  EXPECT_EQ(at<QCheckBox>(window, 927).text(), QStringLiteral("Reserved"));
  EXPECT_FALSE(at(window, 928).isEnabled());
  EXPECT_TRUE(at(window, 964).isHidden());
  EXPECT_TRUE(window.options().mode);
  EXPECT_FALSE(window.options().withDescendants) << "what is not offered is not chosen";
  presets.takesComment = false;
  EXPECT_FALSE(at(CCMSccInfoDlg(presets), 239).isEnabled());
}

TEST_F(OptionDialogsTest, EachChoiceClosesWithOk) {
  CCMFetchSelection window;
  at<QPushButton>(window, ControlId::FetchSelectionFetch).click();
  EXPECT_EQ(window.result(), QDialog::Accepted);
  EXPECT_EQ(window.choice(), CCMFetchSelection::Choice::Fetch);
}

TEST_F(OptionDialogsTest, CancelPutsAUnitsArchiveBack) {
  m_class.record.sccProject = "old";
  CCMUnitArchiveDlg window(&m_class);
  at<QLineEdit>(window, ControlId::UnitArchivePath).setText(QStringLiteral("new"));
  at<QPushButton>(window, ControlId::UnitArchiveAssociate).click();
  EXPECT_EQ(m_class.record.sccProject, "new");
  EXPECT_TRUE(CMProperty::getIsConnected());
  window.reject();
  EXPECT_EQ(m_class.record.sccProject, "old");
  EXPECT_FALSE(CMProperty::getIsConnected());
}

TEST_F(OptionDialogsTest, AnArchiveMustBeNamed) {
  CCMConnectToArc window;
  at<QLineEdit>(window, 214).setText(QStringLiteral("  "));
  window.accept();
  EXPECT_NE(window.result(), QDialog::Accepted);
  EXPECT_EQ(m_host.memoryMessages.asked.back().text.substr(0, 5), "60535");
}

}  // namespace
}  // namespace veldra::test
