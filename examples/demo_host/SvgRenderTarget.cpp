#include "SvgRenderTarget.h"

#include <cstdio>

std::string SvgColour(KestoPlatform::COLORREF c)
{
    char text[8];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", KestoPlatform::GetRValue(c), KestoPlatform::GetGValue(c),
                  KestoPlatform::GetBValue(c));
    return text;
}

namespace {

std::string Stroke(const KestoGDI::RenderPen& pen)
{
    char text[96];
    std::snprintf(text, sizeof text, " stroke=\"%s\" stroke-opacity=\"%.3f\" stroke-width=\"%g\"",
                  SvgColour(pen.colour).c_str(), pen.alpha / 255.0, pen.width);
    return text;
}

std::string Points(const Kesto2D::K2DArrayPoint& points)
{
    std::string s;
    for (const KestoPlatform::CPoint& p : points)
        s += std::to_string(p.x) + "," + std::to_string(p.y) + " ";
    return s;
}

} // namespace

void SvgRenderTarget::DrawDisc(const KestoPlatform::CPoint& centre, int radius, const KestoGDI::RenderBrush& fill,
                               const std::optional<KestoGDI::RenderPen>& outline)
{
    char text[160];
    std::snprintf(text, sizeof text, "<circle cx=\"%d\" cy=\"%d\" r=\"%d\" fill=\"%s\" fill-opacity=\"%.3f\"", centre.x,
                  centre.y, radius, SvgColour(fill.colour).c_str(), fill.alpha / 255.0);
    m_svg += text + (outline ? Stroke(*outline) : std::string()) + "/>\n";
}

void SvgRenderTarget::DrawCircle(const KestoPlatform::CPoint& centre, int radius, const KestoGDI::RenderPen& pen)
{
    m_svg += "<circle cx=\"" + std::to_string(centre.x) + "\" cy=\"" + std::to_string(centre.y) + "\" r=\"" +
             std::to_string(radius) + "\" fill=\"none\"" + Stroke(pen) + "/>\n";
}

void SvgRenderTarget::DrawLine(const KestoPlatform::CPoint& a, const KestoPlatform::CPoint& b,
                               const KestoGDI::RenderPen& pen)
{
    m_svg += "<line x1=\"" + std::to_string(a.x) + "\" y1=\"" + std::to_string(a.y) + "\" x2=\"" + std::to_string(b.x) +
             "\" y2=\"" + std::to_string(b.y) + "\"" + Stroke(pen) + " stroke-linecap=\"round\"/>\n";
}

void SvgRenderTarget::DrawPolyline(const Kesto2D::K2DArrayPoint& points, const KestoGDI::RenderPen& pen)
{
    m_svg += "<polyline points=\"" + Points(points) + "\" fill=\"none\"" + Stroke(pen) + "/>\n";
}

void SvgRenderTarget::DrawCurve(const Kesto2D::K2DCurve& curve, const KestoGDI::RenderPen& pen)
{
    for (const auto& line : curve.Flatten(0.5)) {
        Kesto2D::K2DArrayPoint points;
        for (const Kesto2D::K2DDblPoint& p : line)
            points.Add(p.Round());
        DrawPolyline(points, pen);
    }
}
