#include "host/tandel/window/ShowWindow.h"

#include <QApplication>
#include <QSettings>

#include "host/desktop/Appearance.h"
#include "host/desktop/Words.h"
#include "host/tandel/window/CompareWindow.h"

namespace veldra::host::tandel {

namespace {

bool hasDisplay() {
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    if (!qEnvironmentVariableIsEmpty(name)) return true;
  }
#ifdef Q_OS_WIN
  return true;
#else
  return false;
#endif
}

}  // namespace

ShowWindow windowsOfThisMachine(int argc, char** argv) {
  if (!hasDisplay()) return {};
  return [argc, argv](ReferenceHost& host, CompareSession& session, const TandelOptions& options) {
    // The names are those of the desktop program, so that both look alike.
    QApplication::setApplicationName(QStringLiteral("Veldra"));
    QApplication::setOrganizationName(QStringLiteral("veldra-cm"));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    int count = argc;
    const QApplication application(count, argv);
    desktop::installWords();
    desktop::setAppearance(desktop::savedAppearance());
    desktop::MessageBoxes questions;
    CompareWindow window(host, session, options, questions);
    window.show();
    QApplication::exec();
  };
}

}  // namespace veldra::host::tandel
