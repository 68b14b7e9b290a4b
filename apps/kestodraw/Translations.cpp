#include "Translations.h"

#include <kestotool/tool/Module.h>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <filesystem>

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
    // The library's texts (hints, command names and tooltips): its localised resource module
    // for the language, beside the library; its built-in English once a module was taken.
    static bool localised = false;
    const std::filesystem::path module = std::filesystem::path(KestoTool::Module::GetLibraryPath()).parent_path() /
                                         ("libKestoToolLoc_" + locale.name().section('_', 0, 0).toStdString() + ".so");
    if (std::filesystem::exists(module) && KestoTool::Module::Get().UseLocalisedModule(module.string())) {
        localised = true;
    } else if (localised) {
        KestoTool::Module::Get().UseBuiltInResources();
        localised = false;
    }
    return own;
}

} // namespace KestoDraw
