#pragma once

#include <QLocale>

namespace veldra::host::desktop {

/// Lets all windows speak a language, the user's by default; English where there is no translation.
/// There must be an application. Another call chooses another language.
void installWords(const QLocale& locale = QLocale());

}  // namespace veldra::host::desktop
