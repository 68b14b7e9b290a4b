#include "Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace KestoDraw {

bool InstallTranslations(const QLocale& locale)
{
    // Kept for the process: an installed translator must outlive its use.
    static QTranslator qtTexts, ownTexts;
    QCoreApplication::removeTranslator(&qtTexts);
    QCoreApplication::removeTranslator(&ownTexts);
    if (qtTexts.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&qtTexts);
    // The program's own are built into it (translations/kestodraw_<language>.ts).
    const bool own =
        ownTexts.load(locale, QStringLiteral("kestodraw"), QStringLiteral("_"), QStringLiteral(":/translations"));
    if (own)
        QCoreApplication::installTranslator(&ownTexts);
    return own;
}

} // namespace KestoDraw
