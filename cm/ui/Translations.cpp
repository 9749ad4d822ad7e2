#include "cm/ui/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <memory>

namespace veldra {

namespace {

bool isChosen = false;

QString processLanguage() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const QString value = qEnvironmentVariable(name);
    if (!value.isEmpty()) return value.section(QLatin1Char('.'), 0, 0);
  }
  return QStringLiteral("en");
}

/// Nothing stays installed when there is no such file.
void install(std::unique_ptr<QTranslator>& translator, const QString& file) {
  translator = std::make_unique<QTranslator>();
  if (translator->load(file)) QCoreApplication::installTranslator(translator.get());
}

}  // namespace

void loadDialogTranslations(const QString& language) {
  isChosen = true;
  static std::unique_ptr<QTranslator> toolkit;
  static std::unique_ptr<QTranslator> dialogs;
  const bool isGerman = language.startsWith(QLatin1String("de"));
  const QString name =
      isGerman ? QStringLiteral("veldra_cm_ui_de") : QStringLiteral("veldra_cm_ui_en");
  toolkit.reset();
  // Qt's own English words need no file, and its others come in a package of their own.
  if (isGerman) {
    install(toolkit,
            QLibraryInfo::path(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_de.qm"));
  }
  install(dialogs, QStringLiteral(":/veldra-cm/translations/") + name);
}

void loadDialogTranslationsOnce() {
  if (!isChosen) loadDialogTranslations(processLanguage());
}

}  // namespace veldra
