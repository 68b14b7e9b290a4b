#include "kestotool/gdi/CFillRadial.h"

#include "kestotool/gdi/DefaultControls_p.h"

#include <algorithm>

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CFillRadial, CFillGradient)

CFillRadial::CFillRadial() : FillWithControls(DefaultStops(2, false), 2, -1) {}

void CFillRadial::SetDefaultControls(const CRect& rect)
{
    const auto axes = DefaultControls::CentreAxes(rect);
    const double radius = std::max(axes.xEnd.x - axes.origin.x, axes.origin.y - axes.yEnd.y);
    SetControls(axes.origin, axes.origin + K2DVector(radius, 0));
}

} // namespace KestoGDI
