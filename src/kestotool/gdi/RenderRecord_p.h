#pragma once

// Text forms of drawing calls, shared by the two recording renderers so that their logs read
// alike: "disc (10,20) r=9 fill=FFFFFF/192 pen=000000/255/1".
#include "kestotool/gdi/RenderBrush.h"
#include "kestotool/gdi/RenderPen.h"
#include "kestotool/geometry/K2DCurve.h"

#include <optional>
#include <string>

namespace KestoGDI::RenderRecord {

std::string Point(const CPoint& p);
std::string Rect(const CRect& r);
std::string Pen(const std::optional<RenderPen>& pen);
std::string Brush(const std::optional<RenderBrush>& brush);
std::string Points(const K2DArrayPoint& points);
// A curve is logged by its bounding box.
std::string Curve(const Kesto2D::K2DCurve& curve);

} // namespace KestoGDI::RenderRecord
