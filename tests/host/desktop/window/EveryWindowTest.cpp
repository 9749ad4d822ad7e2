// Every window of the program as people who speak a language see it, or hear it.

#include <gtest/gtest.h>

#include <QAction>
#include <QDialog>

#include "host/desktop/Words.h"
#include "host/desktop/window/ConnectDialog.h"
#include "host/desktop/window/MainWindow.h"
#include "host/desktop/window/NewProjectDialog.h"
#include "host/desktop/window/NewUnitDialog.h"
#include "host/desktop/window/ProgressPopup.h"
#include "host/desktop/window/ProviderNotice.h"
#include "host/desktop/window/SettingsDialog.h"
#include "tests/cm/ui/WidgetChecks.h"
#include "tests/host/desktop/SampleProject.h"
#include "tests/host/desktop/ScriptedQuestions.h"

namespace veldra::host::desktop {
namespace {

using test::LookAtWidget;

HostOptions speaking(const char* language) {
  HostOptions options;
  options.language = language;
  return options;
}

class EveryDesktopWindowTest : public testing::TestWithParam<const char*> {
 protected:
  EveryDesktopWindowTest() { installWords(QLocale(QString::fromLatin1(GetParam()))); }
  ~EveryDesktopWindowTest() override { installWords(QLocale(QLocale::English)); }

  void eachWidget(const LookAtWidget& look) {
    ScriptedQuestions questions;
    DesktopSession session(questions, speaking(GetParam()));
    MainWindow window(session);
    const auto lookAt = [&look](QWidget& seen, const char* name) {
      seen.show();
      test::eachVisibleWidget(seen, name, look);
    };
    lookAt(window, "start");
    ASSERT_TRUE(window.openProject(QString::fromStdString(m_sample.folder())));
    for (const char* unit : {"Brewing/Grinder.vcmp", "Brewing/Extraction.vdgm"}) {
      window.selectUnits({unit});
      lookAt(window, unit);
    }
    m_sample.makeReadOnly("Brewing/Grinder.vcmp");
    window.lookAtDisk();
    window.selectUnits({"Brewing/Grinder.vcmp"});
    lookAt(window, "read-only");
    SettingsDialog settings(session, nullptr, &window);
    lookAt(settings, "settings");
    const PropertyLayers& layers = session.host().properties();
    ConnectDialog connection(layers, "Subversion", {}, &window);
    lookAt(connection, "connect");
    NewProjectDialog project(layers, questions, &window);
    lookAt(project, "new project");
    NewUnitDialog unit(&window);
    lookAt(unit, "new unit");
    ProgressPopup progress(session.work(), &window);
    lookAt(progress, "progress");
    ProviderNotice notice(session.work(), &window);
    emit session.work().providerHangs("SccGet", 12);
    lookAt(notice, "notice");
  }

  SampleProject m_sample;
};

TEST_P(EveryDesktopWindowTest, EveryControlTellsItsNameAndPurposeToAScreenReader) {
  int controls = 0;
  eachWidget([&controls](QWidget& widget, const std::string& where) {
    if (!test::isControl(widget) || widget.objectName().startsWith("qt_")) return;
    ++controls;
    test::expectNameAndPurpose(widget, where);
  });
  EXPECT_GT(controls, 50);
}

TEST_P(EveryDesktopWindowTest, NoTextIsCutOff) {
  int texts = 0;
  eachWidget([&texts](QWidget& widget, const std::string& where) {
    const int needed = test::neededWidth(widget);
    if (needed > 0) ++texts;
    EXPECT_LE(needed, widget.width()) << where;
    const bool isButton = needed > 0 && qobject_cast<const QAbstractButton*>(&widget) != nullptr;
    const int height = widget.hasHeightForWidth() ? widget.heightForWidth(widget.width())
                                                  : widget.minimumSizeHint().height();
    if (isButton) {
      EXPECT_LE(height, widget.height()) << where;
    }
  });
  EXPECT_GT(texts, 80);
}

TEST_P(EveryDesktopWindowTest, CommandsAreNamedInTheLanguage) {
  ScriptedQuestions questions;
  DesktopSession session(questions, speaking(GetParam()));
  const MainWindow window(session);
  const QString name = window.findChild<QAction*>("undo-check-out")->text();
  const bool isGerman = std::string_view(GetParam()) == "de";
  EXPECT_EQ(name.toStdString(), isGerman ? "Auschecken verwerfen" : "Undo Check Out");
}

INSTANTIATE_TEST_SUITE_P(Languages, EveryDesktopWindowTest, testing::Values("en", "de"));

}  // namespace
}  // namespace veldra::host::desktop
