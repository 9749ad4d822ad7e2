#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QPushButton>
#include <functional>
#include <memory>

#include "cm/core/CMArchiveItemList.h"
#include "cm/ui/CCMDialog.h"
#include "cm/ui/Translations.h"
#include "cm/ui/archive/CCMArcCoDlg.h"
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
#include "cm/ui/synchronize/CMSyncDlg.h"
#include "cm/ui/synchronize/QuestionWindow.h"
#include "host/ReferenceHost.h"
#include "tests/cm/ui/WidgetChecks.h"

namespace veldra::test {
namespace {

using MadeWindow = std::unique_ptr<QDialog>;

template <class Window>
MadeWindow withPresets() {
  OptionPresets presets;
  presets.saysReserved = true;
  return std::make_unique<Window>(presets);
}

template <class Window>
MadeWindow alone() {
  return std::make_unique<Window>();
}

MadeWindow mainWindow(bool flat) {
  auto window = std::make_unique<CCMDialog>();
  window->setView(flat);
  return window;
}

struct WindowRow {
  const char* name;
  std::function<MadeWindow()> make;
};

const WindowRow Windows[] = {
    {"tree", [] { return mainWindow(false); }},
    {"list", [] { return mainWindow(true); }},
    {"archive", [] { return std::make_unique<CCMArcCoDlg>(CMArchiveItemList{}); }},
    {"synchronize", alone<CMSyncDlg>},
    {"check in", withPresets<CCMCiInfoDlg>},
    {"check out", withPresets<CCMCoInfoDlg>},
    {"provider", withPresets<CCMSccInfoDlg>},
    {"lock", withPresets<CCMLockInfoDlg>},
    {"connect", alone<CCMConnectToArc>},
    {"fetch", alone<CCMFetchDlg>},
    {"versions", alone<CCMDiffDialog>},
    {"check out or fetch", alone<CCMFetchSelection>},
    {"unit's archive", [] { return std::make_unique<CCMUnitArchiveDlg>(nullptr); }},
    {"branch", alone<CCoBranch>},
    {"question", [] { return std::make_unique<QuestionWindow>("Load it?", "Boiler"); }},
};

/// Every window as people who speak that language see it.
class EveryWindowTest : public ::testing::TestWithParam<const char*> {
 protected:
  EveryWindowTest() {
    host::HostOptions options;
    options.installationRoot = VELDRA_SHARE;
    options.language = GetParam();
    m_host = std::make_unique<host::ReferenceHost>(options);
    installHost(m_host.get());
    EXPECT_EQ(m_host->open(VELDRA_SAMPLE), std::nullopt);
    loadDialogTranslations(QString::fromLatin1(GetParam()));
  }
  ~EveryWindowTest() override {
    loadDialogTranslations(QStringLiteral("en"));
    installHost(nullptr);
  }

  static void eachWidget(const LookAtWidget& look) {
    for (const WindowRow& row : Windows) {
      const MadeWindow window = row.make();
      window->show();
      eachVisibleWidget(*window, row.name, look);
    }
  }

 private:
  std::unique_ptr<host::ReferenceHost> m_host;
};

TEST_P(EveryWindowTest, EveryControlTellsItsNameAndPurposeToAScreenReader) {
  int controls = 0;
  eachWidget([&controls](QWidget& widget, const std::string& where) {
    if (!isControl(widget)) return;
    ++controls;
    expectNameAndPurpose(widget, where);
  });
  EXPECT_GT(controls, 60);
}

/// From right to left, too: the words stay, the layout is mirrored.
TEST_P(EveryWindowTest, NoTextIsCutOff) {
  int texts = 0;
  const auto look = [&texts](QWidget& widget, const std::string& where) {
    const int needed = neededWidth(widget);
    if (needed > 0) ++texts;
    EXPECT_LE(needed, widget.width()) << where;
    const QWidget& window = *widget.window();
    EXPECT_TRUE(window.rect().contains(QRect(widget.mapTo(&window, QPoint()), widget.size())) ||
                needed == 0)
        << where << " lies outside its window";
  };
  for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    QApplication::setLayoutDirection(direction);
    eachWidget(look);
  }
  QApplication::setLayoutDirection(Qt::LeftToRight);
  EXPECT_GT(texts, 120);
}

TEST_P(EveryWindowTest, TheToolkitSpeaksTheSameLanguage) {
  const bool isGerman = std::string_view(GetParam()) == "de";
  if (isGerman && !QFile::exists(QLibraryInfo::path(QLibraryInfo::TranslationsPath) +
                                 QStringLiteral("/qtbase_de.qm"))) {
    GTEST_SKIP() << "Qt's own translations are not installed";
  }
  const QMessageBox box(QMessageBox::Question, {}, {}, QMessageBox::Cancel);
  const QString text = box.button(QMessageBox::Cancel)->text().remove(QLatin1Char('&'));
  EXPECT_EQ(text, isGerman ? QStringLiteral("Abbrechen") : QStringLiteral("Cancel"));
}

INSTANTIATE_TEST_SUITE_P(Languages, EveryWindowTest, ::testing::Values("en", "de"));

}  // namespace
}  // namespace veldra::test
