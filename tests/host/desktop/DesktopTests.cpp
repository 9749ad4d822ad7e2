// The desktop tests need an application object, and settings that are not the user's.

#include <gmock/gmock.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QTemporaryDir home;
  for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME"}) {
    qputenv(variable, home.path().toUtf8());
  }
  QApplication::setApplicationName("Veldra");
  QSettings::setDefaultFormat(QSettings::IniFormat);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
