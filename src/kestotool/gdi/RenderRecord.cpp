#include "kestotool/gdi/RenderRecord_p.h"

#include <cstdio>

namespace KestoGDI::RenderRecord {

std::string Point(const CPoint& p)
{
    return "(" + std::to_string(p.x) + "," + std::to_string(p.y) + ")";
}

std::string Rect(const CRect& r)
{
    return "[" + std::to_string(r.left) + "," + std::to_string(r.top) + "," + std::to_string(r.right) + "," +
           std::to_string(r.bottom) + "]";
}

std::string Pen(const std::optional<RenderPen>& pen)
{
    if (!pen)
        return "pen=none";
    char text[64];
    std::snprintf(text, sizeof text, "pen=%06X/%d/%g", static_cast<unsigned>(pen->colour), pen->alpha, pen->width);
    return text;
}

std::string Brush(const std::optional<RenderBrush>& brush)
{
    if (!brush)
        return "fill=none";
    char text[48];
    std::snprintf(text, sizeof text, "fill=%06X/%d", static_cast<unsigned>(brush->colour), brush->alpha);
    return text;
}

std::string Points(const K2DArrayPoint& points)
{
    std::string s;
    for (const CPoint& p : points)
        s += Point(p);
    return s;
}

std::string Curve(const Kesto2D::K2DCurve& curve)
{
    return "box" + Rect(curve.GetBBox());
}

} // namespace KestoGDI::RenderRecord
