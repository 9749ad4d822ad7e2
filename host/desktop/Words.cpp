#include "host/desktop/Words.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace veldra::host::desktop {

void installWords() {
  auto* toolkit = new QTranslator(QApplication::instance());
  if (toolkit->load(QLocale(), "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(toolkit);
  }
  auto* words = new QTranslator(QApplication::instance());
  // English words need one too, for "1 unit" and "2 units".
  if (words->load(QLocale(), "desktop", "_", ":/veldra/translations") ||
      words->load(":/veldra/translations/desktop_en.qm")) {
    QApplication::installTranslator(words);
  }
}

}  // namespace veldra::host::desktop
