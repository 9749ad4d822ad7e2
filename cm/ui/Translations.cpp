#include "cm/ui/Translations.h"

#include <QCoreApplication>
#include <QTranslator>

namespace veldra {

namespace {

QString processLanguage() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const QString value = qEnvironmentVariable(name);
    if (!value.isEmpty()) return value.section(QLatin1Char('.'), 0, 0);
  }
  return QStringLiteral("en");
}

}  // namespace

void loadDialogTranslations(const QString& language) {
  static QTranslator* loaded = nullptr;
  if (loaded != nullptr) QCoreApplication::removeTranslator(loaded);
  delete loaded;
  loaded = new QTranslator(QCoreApplication::instance());
  const bool isGerman = language.startsWith(QLatin1String("de"));
  const QString name =
      isGerman ? QStringLiteral("veldra_cm_ui_de") : QStringLiteral("veldra_cm_ui_en");
  if (loaded->load(QStringLiteral(":/veldra-cm/translations/") + name)) {
    QCoreApplication::installTranslator(loaded);
  }
}

void loadDialogTranslationsOnce() {
  static bool isDone = false;
  if (!isDone) loadDialogTranslations(processLanguage());
  isDone = true;
}

}  // namespace veldra
