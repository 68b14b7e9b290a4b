#pragma once

#include "kestotool/gdi/IRenderTarget.h"

class QPainter;
class QPainterPath;

namespace KestoToolQt {

// The tools' drawing path over a QPainter, anti-aliased: handles and control lines onto a
// widget, a QImage or any other paint device. Points are in the painter's coordinates. On a
// device of two or more device pixels per pixel, lines are drawn aliased (handles are not).
class QtRenderTarget : public KestoGDI::IRenderTarget {
public:
    // pixelScale: painter units per device pixel.
    explicit QtRenderTarget(QPainter& painter, double pixelScale = 1.0);

    double ScalePixels(double pixels) const override { return pixels * m_scale; }
    void DrawDisc(const KestoPlatform::CPoint& centre, int radius, const KestoGDI::RenderBrush& fill,
                  const std::optional<KestoGDI::RenderPen>& outline) override;
    void DrawCircle(const KestoPlatform::CPoint& centre, int radius, const KestoGDI::RenderPen& pen) override;
    void DrawLine(const KestoPlatform::CPoint& a, const KestoPlatform::CPoint& b,
                  const KestoGDI::RenderPen& pen) override;
    void DrawPolyline(const Kesto2D::K2DArrayPoint& points, const KestoGDI::RenderPen& pen) override;
    void DrawCurve(const Kesto2D::K2DCurve& curve, const KestoGDI::RenderPen& pen) override;

private:
    // Strokes a line, a polyline or a circle (in the painter's coordinates) with the pen.
    void Stroke(const QPainterPath& path, const KestoGDI::RenderPen& pen);

    QPainter& m_painter;
    double m_scale;
    bool m_highDensity;
};

} // namespace KestoToolQt
