#pragma once

#include "kestotool/gdi/CRenderContext.h"

class QPainter;

namespace KestoToolQt {

// The tools' older drawing path over a QPainter: rectangles, lines and curves with the selected
// pen and brush (no pen or no brush leaves that part undrawn), anti-aliased.
class QtRenderContext : public KestoGDI::CRenderContext {
public:
    // pixelScale: painter units per device pixel.
    explicit QtRenderContext(QPainter& painter, double pixelScale = 1.0);

    double ScalePixels(double pixels) const override { return pixels * m_scale; }
    void Rectangle(const KestoPlatform::CRect& r) override;
    void Line(const KestoPlatform::CPoint& a, const KestoPlatform::CPoint& b) override;
    void Polyline(const Kesto2D::K2DArrayPoint& points) override;
    void Curve(const Kesto2D::K2DCurve& curve) override;

private:
    // Selects the current pen and brush into the painter.
    void Select();

    QPainter& m_painter;
    double m_scale;
};

} // namespace KestoToolQt
