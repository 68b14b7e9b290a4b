#include "kestotool/gdi/BoundsRenderTarget.h"

#include <cmath>

namespace KestoGDI {

void BoundsRenderTarget::Add(CRect box, const RenderPen* pen)
{
    // Half the pen on either side of the line, and the unit that anti-aliasing may touch.
    const int margin = static_cast<int>(std::ceil((pen ? pen->width / 2 : 0) + m_scale));
    box.InflateRect(margin, margin);
    box.right += 1;
    box.bottom += 1;
    if (m_bounds.IsRectEmpty())
        m_bounds = box;
    else
        m_bounds.UnionRect(m_bounds, box);
}

void BoundsRenderTarget::DrawDisc(const CPoint& centre, int radius, const RenderBrush&,
                                  const std::optional<RenderPen>& outline)
{
    Add(CRect(centre.x - radius, centre.y - radius, centre.x + radius, centre.y + radius),
        outline ? &*outline : nullptr);
}

void BoundsRenderTarget::DrawCircle(const CPoint& centre, int radius, const RenderPen& pen)
{
    Add(CRect(centre.x - radius, centre.y - radius, centre.x + radius, centre.y + radius), &pen);
}

void BoundsRenderTarget::DrawLine(const CPoint& a, const CPoint& b, const RenderPen& pen)
{
    Add(CRect(a, b).Normalized(), &pen);
}

void BoundsRenderTarget::DrawPolyline(const K2DArrayPoint& points, const RenderPen& pen)
{
    for (int i = 0; i < points.GetSize(); ++i)
        Add(CRect(points.GetAt(i), points.GetAt(i)), &pen);
}

void BoundsRenderTarget::DrawCurve(const Kesto2D::K2DCurve& curve, const RenderPen& pen)
{
    if (!curve.IsEmpty())
        Add(curve.GetBBox(), &pen);
}

} // namespace KestoGDI
