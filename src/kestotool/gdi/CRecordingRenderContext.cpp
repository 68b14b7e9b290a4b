#include "kestotool/gdi/CRecordingRenderContext.h"

#include "kestotool/gdi/RenderRecord_p.h"

namespace KestoGDI {

using namespace RenderRecord;

std::string CRecordingRenderContext::Style() const
{
    return Brush(GetBrush()) + " " + Pen(GetPen());
}

void CRecordingRenderContext::Rectangle(const CRect& r)
{
    m_log.push_back("rect " + Rect(r) + " " + Style());
}

void CRecordingRenderContext::Line(const CPoint& a, const CPoint& b)
{
    m_log.push_back("line " + Point(a) + Point(b) + " " + Pen(GetPen()));
}

void CRecordingRenderContext::Polyline(const K2DArrayPoint& points)
{
    m_log.push_back("polyline " + Points(points) + " " + Pen(GetPen()));
}

void CRecordingRenderContext::Curve(const Kesto2D::K2DCurve& curve)
{
    m_log.push_back("curve " + RenderRecord::Curve(curve) + " " + Pen(GetPen()));
}

} // namespace KestoGDI
