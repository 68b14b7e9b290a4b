#include "PixelRenderTarget.h"

#include <algorithm>
#include <cmath>

namespace {

double Cover(double halfWidth, double distance)
{
    return std::clamp(halfWidth + 0.5 - distance, 0.0, 1.0);
}

} // namespace

template <class Coverage>
void PixelRenderTarget::Paint(double left, double top, double right, double bottom, KestoPlatform::COLORREF colour,
                              int alpha, Coverage coverage)
{
    const int x0 = std::max(0, static_cast<int>(std::floor(left)) - 1);
    const int y0 = std::max(0, static_cast<int>(std::floor(top)) - 1);
    const int x1 = std::min(m_width, static_cast<int>(std::ceil(right)) + 1);
    const int y1 = std::min(m_height, static_cast<int>(std::ceil(bottom)) + 1);
    const double channels[3] = {static_cast<double>(KestoPlatform::GetRValue(colour)),
                                static_cast<double>(KestoPlatform::GetGValue(colour)),
                                static_cast<double>(KestoPlatform::GetBValue(colour))};
    for (int y = y0; y < y1; ++y) {
        for (int x = x0; x < x1; ++x) {
            const double a = alpha / 255.0 * coverage(x + 0.5, y + 0.5);
            if (a <= 0)
                continue;
            std::uint32_t& p = m_pixels[static_cast<std::size_t>(y) * m_width + x];
            const auto over = [&](int shift, double source) {
                const double dst = (p >> shift) & 0xFF;
                return static_cast<std::uint32_t>(std::lround(source * a + dst * (1 - a))) << shift;
            };
            p = over(24, 255) | over(16, channels[0]) | over(8, channels[1]) | over(0, channels[2]);
        }
    }
}

void PixelRenderTarget::Segment(double ax, double ay, double bx, double by, const KestoGDI::RenderPen& pen)
{
    const double half = pen.width / 2;
    const double dx = bx - ax, dy = by - ay;
    const double length2 = dx * dx + dy * dy;
    Paint(std::min(ax, bx) - half, std::min(ay, by) - half, std::max(ax, bx) + half, std::max(ay, by) + half,
          pen.colour, pen.alpha, [&](double x, double y) {
              const double t = length2 > 0 ? std::clamp(((x - ax) * dx + (y - ay) * dy) / length2, 0.0, 1.0) : 0.0;
              return Cover(half, std::hypot(x - (ax + t * dx), y - (ay + t * dy)));
          });
}

void PixelRenderTarget::Ring(double cx, double cy, double radius, const KestoGDI::RenderPen& pen)
{
    const double reach = radius + pen.width;
    Paint(cx - reach, cy - reach, cx + reach, cy + reach, pen.colour, pen.alpha,
          [&](double x, double y) { return Cover(pen.width / 2, std::abs(std::hypot(x - cx, y - cy) - radius)); });
}

void PixelRenderTarget::DrawDisc(const KestoPlatform::CPoint& centre, int radius, const KestoGDI::RenderBrush& fill,
                                 const std::optional<KestoGDI::RenderPen>& outline)
{
    const double cx = centre.x, cy = centre.y, r = radius;
    Paint(cx - r, cy - r, cx + r, cy + r, fill.colour, fill.alpha,
          [&](double x, double y) { return Cover(r, std::hypot(x - cx, y - cy)); });
    if (outline)
        Ring(cx, cy, r, *outline);
}

void PixelRenderTarget::DrawCircle(const KestoPlatform::CPoint& centre, int radius, const KestoGDI::RenderPen& pen)
{
    Ring(centre.x, centre.y, radius, pen);
}

void PixelRenderTarget::DrawLine(const KestoPlatform::CPoint& a, const KestoPlatform::CPoint& b,
                                 const KestoGDI::RenderPen& pen)
{
    Segment(a.x, a.y, b.x, b.y, pen);
}

void PixelRenderTarget::DrawPolyline(const Kesto2D::K2DArrayPoint& points, const KestoGDI::RenderPen& pen)
{
    for (int i = 1; i < points.GetSize(); ++i)
        DrawLine(points.GetAt(i - 1), points.GetAt(i), pen);
}

void PixelRenderTarget::DrawCurve(const Kesto2D::K2DCurve& curve, const KestoGDI::RenderPen& pen)
{
    for (const auto& line : curve.Flatten(0.25))
        for (std::size_t i = 1; i < line.size(); ++i)
            Segment(line[i - 1].x, line[i - 1].y, line[i].x, line[i].y, pen);
}
