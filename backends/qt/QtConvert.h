#pragma once

#include "platform/CString.h"
#include "platform/ColourRef.h"
#include "gdi/RenderBrush.h"
#include "gdi/RenderPen.h"

#include <QColor>
#include <QPen>
#include <QString>

// Conversions at the border between the library's types and Qt's.
namespace KestoToolQt {

inline QString ToQString(const Platform::CString& text)
{
    return QString::fromStdWString(text.Str());
}

inline Platform::CString ToCString(const QString& text)
{
    return Platform::CString(text.toStdWString());
}

inline QColor ToQColor(Platform::COLORREF colour, int alpha = 255)
{
    return QColor(Platform::GetRValue(colour), Platform::GetGValue(colour), Platform::GetBValue(colour), alpha);
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

} // namespace KestoToolQt
