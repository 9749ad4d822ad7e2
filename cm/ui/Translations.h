#pragma once

#include <QString>

#include "cm/ui/Export.h"

namespace veldra {

/// Loads the dialogs' words of a language, for example "de_DE", and those of the toolkit ("Cancel")
/// into the running application; an unknown one leaves them in English. Unless the host has chosen
/// one, the first dialog does it with the language of the process.
VELDRA_CM_UI_EXPORT void loadDialogTranslations(const QString& language);
/// The same once, with LC_ALL, LC_MESSAGES or LANG, which the host's own texts follow too.
VELDRA_CM_UI_EXPORT void loadDialogTranslationsOnce();

}  // namespace veldra
