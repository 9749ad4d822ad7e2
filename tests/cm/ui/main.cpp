#include <gmock/gmock.h>

#include <QApplication>
#include <QTemporaryDir>

// Tests of windows need no screen, and must leave nobody's settings changed.
int main(int argc, char** argv) {
  const QTemporaryDir settings;
  qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleMock(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
