#pragma once

#include "kestotool/gdi/CRenderContext.h"
#include "kestotool/platform/Export.h"

#include <string>
#include <vector>

namespace KestoGDI {

// A render context that draws nothing and logs every call, with the pen and brush selected at
// the time, as one line of text.
class KESTO_API CRecordingRenderContext : public CRenderContext {
public:
    explicit CRecordingRenderContext(double pixelScale = 1.0) : m_scale(pixelScale) {}

    double ScalePixels(double pixels) const override { return pixels * m_scale; }
    void Rectangle(const CRect& r) override;
    void Line(const CPoint& a, const CPoint& b) override;
    void Polyline(const K2DArrayPoint& points) override;
    void Curve(const Kesto2D::K2DCurve& curve) override;

    const std::vector<std::string>& Log() const { return m_log; }
    void Clear() { m_log.clear(); }

private:
    std::string Style() const;

    double m_scale;
    std::vector<std::string> m_log;
};

} // namespace KestoGDI
