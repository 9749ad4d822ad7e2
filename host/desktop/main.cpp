#include <QApplication>
#include <QCommandLineParser>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

#include "host/desktop/Appearance.h"
#include "host/desktop/window/MainWindow.h"

int main(int argc, char** argv) {
  using namespace veldra::host::desktop;
  QApplication::setApplicationName("Veldra");
  QApplication::setApplicationVersion(VELDRA_VERSION);
  QApplication::setOrganizationName("veldra-cm");
  QSettings::setDefaultFormat(QSettings::IniFormat);
  QApplication application(argc, argv);

  QTranslator toolkit;
  if (toolkit.load(QLocale(), "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&toolkit);
  }
  QTranslator words;
  if (words.load(QLocale(), "desktop", "_", ":/veldra/translations")) {
    QApplication::installTranslator(&words);
  }

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
