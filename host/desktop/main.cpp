#include <QApplication>
#include <QCommandLineParser>
#include <QSettings>

#include "host/desktop/Appearance.h"
#include "host/desktop/Words.h"
#include "host/desktop/window/MainWindow.h"
#include "host/platform/Program.h"

int main(int argc, char** argv) {
  using namespace veldra::host::desktop;
  veldra::host::addOwnFolderToPath();
  QApplication::setApplicationName("Veldra");
  QApplication::setApplicationVersion(VELDRA_VERSION);
  QApplication::setOrganizationName("veldra-cm");
  QSettings::setDefaultFormat(QSettings::IniFormat);
  QApplication application(argc, argv);

  installWords();

  QCommandLineParser parser;
  parser.setApplicationDescription(
      QApplication::translate("main", "Edits a model and puts it under version control."));
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument(
      "project", QApplication::translate("main", "A project file, or its folder."), "[project]");
  parser.process(application);

  setAppearance(savedAppearance());
  MessageBoxes questions;
  DesktopSession session(questions);
  MainWindow window(session);
  window.show();
  session.tell(session.host().problems(),
               QApplication::translate("main", "Some settings could not be read."));
  if (!parser.positionalArguments().isEmpty()) {
    window.openProject(parser.positionalArguments().first());
  }
  return QApplication::exec();
}
