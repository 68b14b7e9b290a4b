#include "kestotool/qt/QtRenderTarget.h"

#include "kestotool/qt/QtConvert.h"

#include <QPainter>
#include <QPolygonF>

namespace KestoToolQt {

namespace {

QPointF ToQPointF(const KestoPlatform::CPoint& p)
{
    return {static_cast<double>(p.x), static_cast<double>(p.y)};
}

} // namespace

QtRenderTarget::QtRenderTarget(QPainter& painter, double pixelScale) : m_painter(painter), m_scale(pixelScale)
{
    m_painter.setRenderHint(QPainter::Antialiasing);
}

void QtRenderTarget::DrawDisc(const KestoPlatform::CPoint& centre, int radius, const KestoGDI::RenderBrush& fill,
                              const std::optional<KestoGDI::RenderPen>& outline)
{
    m_painter.setPen(outline ? ToQPen(*outline) : QPen(Qt::NoPen));
    m_painter.setBrush(ToQColor(fill));
    m_painter.drawEllipse(ToQPointF(centre), radius, radius);
}

void QtRenderTarget::DrawCircle(const KestoPlatform::CPoint& centre, int radius, const KestoGDI::RenderPen& pen)
{
    m_painter.setPen(ToQPen(pen));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawEllipse(ToQPointF(centre), radius, radius);
}

void QtRenderTarget::DrawLine(const KestoPlatform::CPoint& a, const KestoPlatform::CPoint& b,
                              const KestoGDI::RenderPen& pen)
{
    m_painter.setPen(ToQPen(pen));
    m_painter.drawLine(ToQPointF(a), ToQPointF(b));
}

void QtRenderTarget::DrawPolyline(const Kesto2D::K2DArrayPoint& points, const KestoGDI::RenderPen& pen)
{
    m_painter.setPen(ToQPen(pen));
    m_painter.drawPolyline(ToQPolygon(points));
}

void QtRenderTarget::DrawCurve(const Kesto2D::K2DCurve& curve, const KestoGDI::RenderPen& pen)
{
    m_painter.setPen(ToQPen(pen));
    for (const QPolygonF& line : ToQPolygons(curve, ScalePixels(0.25)))
        m_painter.drawPolyline(line);
}

} // namespace KestoToolQt
