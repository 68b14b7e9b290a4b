#pragma once

#include <kestotool/gdi/IRenderTarget.h>

#include <string>

// Draws what a tool draws into SVG elements, one pixel per target unit.
class SvgRenderTarget : public KestoGDI::IRenderTarget {
public:
    double ScalePixels(double pixels) const override { return pixels; }
    void DrawDisc(const KestoPlatform::CPoint& centre, int radius, const KestoGDI::RenderBrush& fill,
                  const std::optional<KestoGDI::RenderPen>& outline) override;
    void DrawCircle(const KestoPlatform::CPoint& centre, int radius, const KestoGDI::RenderPen& pen) override;
    void DrawLine(const KestoPlatform::CPoint& a, const KestoPlatform::CPoint& b,
                  const KestoGDI::RenderPen& pen) override;
    void DrawPolyline(const Kesto2D::K2DArrayPoint& points, const KestoGDI::RenderPen& pen) override;
    void DrawCurve(const Kesto2D::K2DCurve& curve, const KestoGDI::RenderPen& pen) override;

    const std::string& Elements() const { return m_svg; }

private:
    std::string m_svg;
};

// "#rrggbb" for a 0x00BBGGRR colour.
std::string SvgColour(KestoPlatform::COLORREF c);
