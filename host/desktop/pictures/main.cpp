// Makes the pictures of the guides from the real windows: veldra-pictures PROJECT FOLDER.

#include <QApplication>
#include <QDir>
#include <QStandardPaths>
#include <QTest>
#include <QTreeView>
#include <cstdio>

#include "host/desktop/Appearance.h"
#include "host/desktop/window/MainWindow.h"

namespace {

using namespace veldra::host::desktop;

bool isWritten(QWidget& widget, const QString& file) {
  QTest::qWait(50);
  if (widget.grab().save(file)) return true;
  std::fprintf(stderr, "The picture %s cannot be written.\n", qPrintable(file));
  return false;
}

bool makePictures(const QString& project, const QDir& folder, const QString& suffix) {
  MessageBoxes questions;
  DesktopSession session(questions);
  MainWindow window(session);
  window.resize(1180, 760);
  window.show();
  bool isFine = isWritten(window, folder.filePath("welcome" + suffix));
  window.openProject(project);
  window.selectUnits({"Brewing/Grinder.vcmp"});
  isFine &= isWritten(window, folder.filePath("main-window" + suffix));
  window.selectUnits({"Brewing/Extraction.vdgm"});
  isFine &= isWritten(window, folder.filePath("diagram" + suffix));
  return isFine;
}

}  // namespace

int main(int argc, char** argv) {
  QStandardPaths::setTestModeEnabled(true);
  QApplication::setApplicationName("Veldra");
  QApplication application(argc, argv);
  if (argc != 3) {
    std::fprintf(stderr, "usage: veldra-pictures PROJECT FOLDER\n");
    return 2;
  }
  const QDir folder(argv[2]);
  setAppearance(Appearance::Light);
  const bool isLightFine = makePictures(argv[1], folder, ".png");
  setAppearance(Appearance::Dark);
  return makePictures(argv[1], folder, "-dark.png") && isLightFine ? 0 : 1;
}
