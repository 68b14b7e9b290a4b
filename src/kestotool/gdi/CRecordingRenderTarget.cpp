#include "kestotool/gdi/CRecordingRenderTarget.h"

#include "kestotool/gdi/RenderRecord_p.h"

namespace KestoGDI {

using namespace RenderRecord;

void CRecordingRenderTarget::DrawDisc(const CPoint& centre, int radius, const RenderBrush& fill,
                                      const std::optional<RenderPen>& outline)
{
    m_log.push_back("disc " + Point(centre) + " r=" + std::to_string(radius) + " " + Brush(fill) + " " + Pen(outline));
}

void CRecordingRenderTarget::DrawCircle(const CPoint& centre, int radius, const RenderPen& pen)
{
    m_log.push_back("circle " + Point(centre) + " r=" + std::to_string(radius) + " " + Pen(pen));
}

void CRecordingRenderTarget::DrawLine(const CPoint& a, const CPoint& b, const RenderPen& pen)
{
    m_log.push_back("line " + Point(a) + Point(b) + " " + Pen(pen));
}

void CRecordingRenderTarget::DrawPolyline(const K2DArrayPoint& points, const RenderPen& pen)
{
    m_log.push_back("polyline " + Points(points) + " " + Pen(pen));
}

void CRecordingRenderTarget::DrawCurve(const Kesto2D::K2DCurve& curve, const RenderPen& pen)
{
    m_log.push_back("curve " + Curve(curve) + " " + Pen(pen));
}

} // namespace KestoGDI
