#pragma once

#include "kestotool/gdi/RenderBrush.h"
#include "kestotool/gdi/RenderPen.h"
#include "kestotool/geometry/K2DArrayPoint.h"
#include "kestotool/geometry/K2DCurve.h"
#include "kestotool/platform/CListItems.h"
#include "kestotool/platform/CString.h"
#include "kestotool/platform/CXTPImageManager.h"
#include "kestotool/platform/ColourRef.h"
#include "kestotool/platform/WindowTypes.h"
#include "kestotool/raster/Path.h"

#include <QAbstractItemView>
#include <QColor>
#include <QComboBox>
#include <QIcon>
#include <QImage>
#include <QPainterPath>
#include <QPen>
#include <QPixmap>
#include <QPolygonF>
#include <QString>

#include <array>
#include <utility>
#include <vector>

// Conversions at the border between the library's types and Qt's.
namespace KestoToolQt {

// A command image as an icon; an empty image gives the null icon.
inline QPixmap ToQPixmap(const KestoPlatform::XTPImage& image)
{
    if (image.width <= 0 || image.height <= 0)
        return {};
    QImage picture(image.width, image.height, QImage::Format_ARGB32);
    for (int y = 0; y < image.height; ++y)
        for (int x = 0; x < image.width; ++x)
            picture.setPixel(x, y, image.argb[static_cast<std::size_t>(y) * image.width + x]);
    return QPixmap::fromImage(picture);
}

inline QIcon ToQIcon(const KestoPlatform::XTPImage& image)
{
    const QPixmap pixmap = ToQPixmap(image);
    return pixmap.isNull() ? QIcon() : QIcon(pixmap);
}

inline QString ToQString(const KestoPlatform::CString& text)
{
    return QString::fromStdWString(text.Str());
}

inline KestoPlatform::CString ToCString(const QString& text)
{
    return KestoPlatform::CString(text.toStdWString());
}

inline QColor ToQColor(KestoPlatform::COLORREF colour, int alpha = 255)
{
    return QColor(KestoPlatform::GetRValue(colour), KestoPlatform::GetGValue(colour), KestoPlatform::GetBValue(colour),
                  alpha);
}

// A pen as the tools mean it: round ends and joins, so that a handle's outline and a control
// line look the same at every angle.
inline QPen ToQPen(const KestoGDI::RenderPen& pen)
{
    return QPen(ToQColor(pen.colour, pen.alpha), pen.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

inline QColor ToQColor(const KestoGDI::RenderBrush& brush)
{
    return ToQColor(brush.colour, brush.alpha);
}

// Shows a drop-down list's items and selection in a combo box, leaving the box alone where it
// already shows them (rebuilding it would close an open list).
inline void ShowListItems(QComboBox& combo, const KestoPlatform::CListItems& items)
{
    QStringList texts;
    for (int i = 0; i < items.GetCount(); ++i)
        texts << ToQString(items.GetLBText(i));
    QStringList shown;
    for (int i = 0; i < combo.count(); ++i)
        shown << combo.itemText(i);
    if (texts != shown) {
        combo.clear();
        combo.addItems(texts);
    }
    if (combo.currentIndex() != items.GetCurSel())
        combo.setCurrentIndex(items.GetCurSel());
}

// Widens a combo box's drop-down list to its items, after they and their icons are set. The
// menu-style list of some styles (a check column beside each item) is only as wide as the box and
// rounds text widths down, so the longest name came out elided by a pixel or two.
inline void FitListToItems(QComboBox& combo)
{
    constexpr int kRoundingSlack = 4;
    combo.view()->window()->setMinimumWidth(combo.sizeHint().width() + kRoundingSlack);
}

inline QPolygonF ToQPolygon(const Kesto2D::K2DArrayPoint& points)
{
    QPolygonF polygon;
    for (const KestoPlatform::CPoint& p : points)
        polygon << QPointF(p.x, p.y);
    return polygon;
}

// An outline as the renderer takes it (a QPainterPath keeps a cubic as its end point's element
// followed by two data elements).
inline KestoRaster::Path ToRasterPath(const QPainterPath& outline)
{
    KestoRaster::Path path;
    for (int i = 0; i < outline.elementCount(); ++i) {
        const QPainterPath::Element e = outline.elementAt(i);
        switch (e.type) {
        case QPainterPath::MoveToElement: path.MoveTo({e.x, e.y}); break;
        case QPainterPath::LineToElement: path.LineTo({e.x, e.y}); break;
        case QPainterPath::CurveToElement: {
            const QPainterPath::Element c2 = outline.elementAt(i + 1), end = outline.elementAt(i + 2);
            path.CubicTo({e.x, e.y}, {c2.x, c2.y}, {end.x, end.y});
            i += 2;
            break;
        }
        case QPainterPath::CurveToDataElement: break;
        }
    }
    return path;
}

// A curve as polylines no farther than tolerance from it, one per piece.
inline std::vector<QPolygonF> ToQPolygons(const Kesto2D::K2DCurve& curve, double tolerance)
{
    std::vector<QPolygonF> polygons;
    for (const auto& line : curve.Flatten(tolerance)) {
        QPolygonF& polygon = polygons.emplace_back();
        for (const auto& p : line)
            polygon << QPointF(p.x, p.y);
    }
    return polygons;
}

// The keys that windows handle themselves: the window framework's code and Qt's.
inline constexpr std::array<std::pair<unsigned, Qt::Key>, 4> kVirtualKeys{{
    {KestoPlatform::VK_RETURN, Qt::Key_Return},
    {KestoPlatform::VK_RETURN, Qt::Key_Enter},
    {KestoPlatform::VK_BACK, Qt::Key_Backspace},
    {KestoPlatform::VK_DELETE, Qt::Key_Delete},
}};

// The framework's code of a Qt key; 0 for a key no window handles itself.
inline unsigned ToVirtualKey(int key)
{
    for (const auto& [code, qtKey] : kVirtualKeys)
        if (qtKey == key)
            return code;
    return 0;
}

inline Qt::Key ToQtKey(unsigned code)
{
    for (const auto& [virtualKey, qtKey] : kVirtualKeys)
        if (virtualKey == code)
            return qtKey;
    return Qt::Key_unknown;
}

} // namespace KestoToolQt
