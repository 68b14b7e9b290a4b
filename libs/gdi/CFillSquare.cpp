#include "gdi/CFillSquare.h"

#include "gdi/DefaultControls_p.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CFillSquare, CFillGradient)

CFillSquare::CFillSquare() : FillWithControls(DefaultStops(2, false), 2, -1)
{
}

void CFillSquare::SetDefaultControls(const CRect& rect)
{
    const auto axes = DefaultControls::CentreAxes(rect);
    SetControls(axes.origin, axes.xEnd, axes.yEnd);
}

} // namespace KestoGDI
