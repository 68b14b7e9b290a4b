#include "kestotool/qt/QtRenderContext.h"

#include "kestotool/qt/QtConvert.h"

#include <QPainter>
#include <QPolygonF>

namespace KestoToolQt {

QtRenderContext::QtRenderContext(QPainter& painter, double pixelScale) : m_painter(painter), m_scale(pixelScale)
{
    m_painter.setRenderHint(QPainter::Antialiasing);
}

void QtRenderContext::Select()
{
    m_painter.setPen(GetPen() ? ToQPen(*GetPen()) : QPen(Qt::NoPen));
    m_painter.setBrush(GetBrush() ? QBrush(ToQColor(*GetBrush())) : QBrush(Qt::NoBrush));
}

void QtRenderContext::Rectangle(const KestoPlatform::CRect& r)
{
    Select();
    m_painter.drawRect(QRectF(r.left, r.top, r.Width(), r.Height()));
}

void QtRenderContext::Line(const KestoPlatform::CPoint& a, const KestoPlatform::CPoint& b)
{
    Select();
    m_painter.drawLine(QPointF(a.x, a.y), QPointF(b.x, b.y));
}

void QtRenderContext::Polyline(const Kesto2D::K2DArrayPoint& points)
{
    Select();
    m_painter.drawPolyline(ToQPolygon(points));
}

void QtRenderContext::Curve(const Kesto2D::K2DCurve& curve)
{
    Select();
    for (const QPolygonF& line : ToQPolygons(curve, ScalePixels(0.25)))
        m_painter.drawPolyline(line);
}

} // namespace KestoToolQt
