#pragma once

#include "kestotool/gdi/IRenderTarget.h"
#include "kestotool/platform/Export.h"

#include <string>
#include <vector>

namespace KestoGDI {

// A render target that draws nothing and logs every call as one line of text, for tests and
// for debugging what a tool draws.
class KESTO_API CRecordingRenderTarget : public IRenderTarget {
public:
    // pixelScale: target units per screen pixel.
    explicit CRecordingRenderTarget(double pixelScale = 1.0) : m_scale(pixelScale) {}

    double ScalePixels(double pixels) const override { return pixels * m_scale; }
    void DrawDisc(const CPoint& centre, int radius, const RenderBrush& fill,
                  const std::optional<RenderPen>& outline) override;
    void DrawCircle(const CPoint& centre, int radius, const RenderPen& pen) override;
    void DrawLine(const CPoint& a, const CPoint& b, const RenderPen& pen) override;
    void DrawPolyline(const K2DArrayPoint& points, const RenderPen& pen) override;
    void DrawCurve(const Kesto2D::K2DCurve& curve, const RenderPen& pen) override;

    const std::vector<std::string>& Log() const { return m_log; }
    void Clear() { m_log.clear(); }

private:
    double m_scale;
    std::vector<std::string> m_log;
};

} // namespace KestoGDI
