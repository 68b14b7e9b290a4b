#pragma once

#include "kestotool/gdi/RenderBrush.h"
#include "kestotool/gdi/RenderPen.h"
#include "kestotool/geometry/K2DCurve.h"
#include "kestotool/platform/Export.h"

#include <optional>

namespace KestoGDI {

// The current drawing path: anti-aliased shapes in target units (the points arrive already
// mapped into the target's space).
class KESTO_API IRenderTarget {
public:
    virtual ~IRenderTarget() = default;

    // The length in target units of a length in screen pixels.
    virtual double ScalePixels(double pixels) const = 0;

    // A filled disc, outlined when a pen is given.
    virtual void DrawDisc(const CPoint& centre, int radius, const RenderBrush& fill,
                          const std::optional<RenderPen>& outline) = 0;
    // A circle outline, not filled.
    virtual void DrawCircle(const CPoint& centre, int radius, const RenderPen& pen) = 0;
    virtual void DrawLine(const CPoint& a, const CPoint& b, const RenderPen& pen) = 0;
    virtual void DrawPolyline(const K2DArrayPoint& points, const RenderPen& pen) = 0;
    virtual void DrawCurve(const Kesto2D::K2DCurve& curve, const RenderPen& pen) = 0;
};

} // namespace KestoGDI
