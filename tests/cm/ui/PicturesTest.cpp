#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QPalette>
#include <QTreeView>

#include "cm/core/CMArchiveItem.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/ui/CCMDialog.h"
#include "cm/ui/Icons.h"
#include "cm/ui/archive/CCMArcCoDlg.h"
#include "cm/ui/options/CCMCiInfoDlg.h"
#include "cm/ui/options/CCMCoInfoDlg.h"
#include "cm/ui/options/CCMConnectToArc.h"
#include "cm/ui/synchronize/CMSyncDlg.h"
#include "cm/ui/synchronize/QuestionWindow.h"
#include "cm/ui/widgets/Control.h"
#include "host/ReferenceHost.h"
#include "tests/cm/ui/DialogTest.h"

namespace veldra::test {
namespace {

QPalette darkPalette() {
  QPalette palette(QColor(0x2b, 0x2d, 0x31));
  palette.setColor(QPalette::Window, QColor(0x2b, 0x2d, 0x31));
  palette.setColor(QPalette::Base, QColor(0x1f, 0x20, 0x24));
  palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2c));
  palette.setColor(QPalette::Highlight, QColor(0x4c, 0x9a, 0xff));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, QColor(0xe6, 0xe6, 0xe6));
  }
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, QColor(0x78, 0x7a, 0x80));
  }
  return palette;
}

/// Draws the windows as users see them. With VELDRA_PICTURES naming a folder the drawings stay
/// there, to be looked at.
class PicturesTest : public ::testing::TestWithParam<bool> {
 protected:
  PicturesTest() {
    if (GetParam()) QApplication::setPalette(darkPalette());
    forgetIcons();
    host::HostOptions options;
    options.installationRoot = VELDRA_SHARE;
    m_host = std::make_unique<host::ReferenceHost>(options);
    installHost(m_host.get());
    EXPECT_EQ(m_host->open(VELDRA_SAMPLE), std::nullopt);
  }
  ~PicturesTest() override {
    installHost(nullptr);
    QApplication::setPalette(m_former);
  }

  static void keep(QWidget& window, const QString& name) {
    window.show();
    QCoreApplication::processEvents();
    const QImage picture = window.grab().toImage();
    ASSERT_FALSE(picture.isNull());
    bool hasContent = false;
    for (int y = 0; y < picture.height() && !hasContent; y += 3) {
      for (int x = 0; x < picture.width(); x += 3) {
        hasContent = hasContent || picture.pixel(x, y) != picture.pixel(1, 1);
      }
    }
    EXPECT_TRUE(hasContent) << name.toStdString() << " is empty";
    const QString folder = qEnvironmentVariable("VELDRA_PICTURES");
    if (folder.isEmpty()) return;
    const QString theme = GetParam() ? QStringLiteral("dark") : QStringLiteral("light");
    picture.save(QStringLiteral("%1/%2-%3.png").arg(folder, name, theme));
  }

  QPalette m_former = QApplication::palette();
  std::unique_ptr<host::ReferenceHost> m_host;
};

TEST_P(PicturesTest, EveryWindowIsDrawn) {
  CCMDialog dialog;
  dialog.setView(false);
  keep(dialog, QStringLiteral("tree"));
  dialog.setView(true);
  findControl<QTreeView>(dialog, ControlId::FlatList)->selectAll();
  keep(dialog, QStringLiteral("flat"));
  OptionPresets presets;
  presets.command = DialogCommand::CheckIn;
  presets.window = OptionWindow::CheckIn;
  CCMCiInfoDlg checkIn(presets);
  keep(checkIn, QStringLiteral("check-in"));
  presets.command = DialogCommand::CheckOut;
  presets.window = OptionWindow::CheckOut;
  presets.mode = true;
  CCMCoInfoDlg checkOut(presets);
  keep(checkOut, QStringLiteral("check-out"));
  CCMConnectToArc connectTo;
  keep(connectTo, QStringLiteral("connect"));
}

TEST_P(PicturesTest, ArchiveAndSynchronize) {
  CMArchiveItemListWrapper items;
  for (const char* name : {"Brewing/Grinder.vcmp", "Milk/Milk.vpkg", "docs/requirements.md"}) {
    items.addTail(new CMArchiveItem(name, "12", CMArchiveItem::ReadOnly, "alice", {}));
  }
  CCMArcCoDlg archive(items.list());
  archive.list()->selectAll();
  keep(archive, QStringLiteral("archive"));
  CMSyncDlg synchronize;
  keep(synchronize, QStringLiteral("synchronize"));
  QuestionWindow question(formatMessage(MessageId::LoadCheckedOutUnit, {}), "Frother");
  keep(question, QStringLiteral("question"));
  for (QWidget* window : std::initializer_list<QWidget*>{&archive, &synchronize, &question}) {
    for (const QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
      if (button->isHidden() || button->text().isEmpty()) continue;
      const QString text = button->text().remove(QLatin1Char('&'));
      EXPECT_GE(button->width(), button->fontMetrics().horizontalAdvance(text))
          << text.toStdString() << " is cut off";
    }
  }
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, PicturesTest, ::testing::Bool());

}  // namespace
}  // namespace veldra::test
