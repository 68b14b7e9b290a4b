#include "gdi/CFillEllipse.h"

#include "gdi/DefaultControls_p.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CFillEllipse, CFillGradient)

CFillEllipse::CFillEllipse() : FillWithControls(DefaultStops(2, false), 2, -1)
{
}

void CFillEllipse::SetDefaultControls(const CRect& rect)
{
    const auto axes = DefaultControls::CentreAxes(rect);
    SetControls(axes.origin, axes.xEnd, axes.yEnd);
}

} // namespace KestoGDI
