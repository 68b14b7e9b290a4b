#pragma once

#include <kestotool/gdi/IRenderTarget.h>

#include <cstdint>

// Paints what a tool draws onto an ARGB32 premultiplied pixel buffer, anti-aliased by the
// distance of each pixel centre from the shape, one pixel per target unit: pictures of a tool's
// lines and handles over its fill.
class PixelRenderTarget : public KestoGDI::IRenderTarget {
public:
    PixelRenderTarget(std::uint32_t* pixels, int width, int height) : m_pixels(pixels), m_width(width), m_height(height)
    {
    }

    double ScalePixels(double pixels) const override { return pixels; }
    void DrawDisc(const KestoPlatform::CPoint& centre, int radius, const KestoGDI::RenderBrush& fill,
                  const std::optional<KestoGDI::RenderPen>& outline) override;
    void DrawCircle(const KestoPlatform::CPoint& centre, int radius, const KestoGDI::RenderPen& pen) override;
    void DrawLine(const KestoPlatform::CPoint& a, const KestoPlatform::CPoint& b,
                  const KestoGDI::RenderPen& pen) override;
    void DrawPolyline(const Kesto2D::K2DArrayPoint& points, const KestoGDI::RenderPen& pen) override;
    void DrawCurve(const Kesto2D::K2DCurve& curve, const KestoGDI::RenderPen& pen) override;

private:
    // Paints every pixel within reach of the centre, blending colour by coverage(x, y) (0..1,
    // given the pixel centre).
    template <class Coverage>
    void Paint(double left, double top, double right, double bottom, KestoPlatform::COLORREF colour, int alpha,
               Coverage coverage);
    void Segment(double ax, double ay, double bx, double by, const KestoGDI::RenderPen& pen);
    void Ring(double cx, double cy, double radius, const KestoGDI::RenderPen& pen);

    std::uint32_t* m_pixels;
    int m_width;
    int m_height;
};
