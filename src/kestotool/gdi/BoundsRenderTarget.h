#pragma once

#include "kestotool/gdi/IRenderTarget.h"
#include "kestotool/platform/CRect.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// A render target that draws nothing and keeps the bounds of every mark a drawing would make:
// shapes, widened by half their pen and by a unit for anti-aliasing. A host that draws a tool's
// handles over its canvas asks it where they are, to repaint that much and no more.
class KESTO_API BoundsRenderTarget : public IRenderTarget {
public:
    // pixelScale: target units per screen pixel.
    explicit BoundsRenderTarget(double pixelScale = 1.0) : m_scale(pixelScale) {}

    double ScalePixels(double pixels) const override { return pixels * m_scale; }
    void DrawDisc(const CPoint& centre, int radius, const RenderBrush& fill,
                  const std::optional<RenderPen>& outline) override;
    void DrawCircle(const CPoint& centre, int radius, const RenderPen& pen) override;
    void DrawLine(const CPoint& a, const CPoint& b, const RenderPen& pen) override;
    void DrawPolyline(const K2DArrayPoint& points, const RenderPen& pen) override;
    void DrawCurve(const Kesto2D::K2DCurve& curve, const RenderPen& pen) override;

    // Empty when nothing was drawn; right and bottom are exclusive.
    const CRect& Bounds() const { return m_bounds; }

private:
    void Add(CRect box, const RenderPen* pen);

    double m_scale;
    CRect m_bounds;
};

} // namespace KestoGDI
