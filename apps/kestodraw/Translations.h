#pragma once

#include <QLocale>

namespace KestoDraw {

// Installs the program's texts and Qt's own (its dialogs' buttons) in the language of locale,
// where there are translations for it; English stays where there are none. Answers whether the
// program's own texts were found. Called again, it replaces the translations it installed.
bool InstallTranslations(const QLocale& locale);

} // namespace KestoDraw
