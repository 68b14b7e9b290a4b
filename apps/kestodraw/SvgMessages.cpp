#include "SvgMessages.h"

#include <QCoreApplication>

namespace KestoDraw {

namespace {

// The reader's patterns (SvgReader::Patterns()), written out so that Qt's translation tools
// find them; a test checks that each has a translation.
[[maybe_unused]] constexpr const char* kPatterns[] = {
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "the file is %1 MB; SVG files up to %2 MB are read"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "the file is not well-formed XML (%1 at byte %2)"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "the file declares XML entities, which are not read"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "the file is XML but not SVG (its outermost element is <%1>)"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "the page is %1 x %2 units; pages from 1 to %3 units a side are read"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "the file has more than %1 shapes"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "a path has more than %1 segments"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "the file has more than %1 path segments"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "more"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "attribute %1 \"%2\""),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "gradient stops past %1"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "viewBox \"%1\""),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "fills with more stops than a fill takes"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "groups nested deeper than %1"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "<%1>"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "transform \"%1\""),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "stroke"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "filter"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "fill-rule evenodd (read as nonzero)"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "masks other than one gradient or colour"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "shapes outside the coordinate range"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "<%1> paint"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "paint url(#%1)"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "fill \"%1\""),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "spreadMethod %1 (read as pad)"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "gradientTransform \"%1\""),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "radial gradients' focal points (read as centred)"),
    QT_TRANSLATE_NOOP("KestoTool::SvgReader", "clip-path (the clipped shapes are read whole)"),
};

} // namespace

QString SvgMessageText(const KestoTool::SvgReader::Message& message)
{
    const QString pattern = QCoreApplication::translate("KestoTool::SvgReader", std::string(message.pattern).c_str());
    return QString::fromStdString(message.Text(pattern.toStdString()));
}

} // namespace KestoDraw
