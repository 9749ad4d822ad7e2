#include "host/desktop/Words.h"

#include <QApplication>
#include <QTranslator>
#include <memory>

#include "cm/ui/Translations.h"

namespace veldra::host::desktop {

void installWords(const QLocale& locale) {
  // Those of the dialogs and of the toolkit.
  loadDialogTranslations(locale.name());
  static std::unique_ptr<QTranslator> words;
  words = std::make_unique<QTranslator>();
  // English words need one too, for "1 unit" and "2 units".
  if (words->load(locale, "desktop", "_", ":/veldra/translations") ||
      words->load(":/veldra/translations/desktop_en.qm")) {
    QApplication::installTranslator(words.get());
  }
}

}  // namespace veldra::host::desktop
