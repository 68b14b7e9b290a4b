#pragma once

#include <QLocale>

namespace KestoDraw {

// Installs the program's texts, Qt's own (its dialogs' buttons) and the library's (its
// localised resource module) in the language of locale, where there are translations for it;
// English stays where there are none. Answers whether the program's own texts were found.
// Called again, it replaces the translations it installed. Windows made before keep their texts.
bool InstallTranslations(const QLocale& locale);

} // namespace KestoDraw
