#include "kestotool/gdi/CFillLinear.h"

#include "kestotool/gdi/DefaultControls_p.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CFillLinear, CFillGradient)

CFillLinear::CFillLinear() : FillWithControls(DefaultStops(2, false), 2, -1) {}

void CFillLinear::SetDefaultControls(const CRect& rect)
{
    const auto axes = DefaultControls::CentreAxes(rect);
    const K2DVector half = axes.xEnd - axes.origin;
    SetControls(axes.origin - half, axes.xEnd);
}

} // namespace KestoGDI
