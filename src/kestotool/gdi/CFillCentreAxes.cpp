#include "kestotool/gdi/CFillCentreAxes.h"

#include "kestotool/gdi/DefaultControls_p.h"

namespace KestoGDI {

KESTO_IMPLEMENT_DYNAMIC(CFillCentreAxes, CFillGradient)

CFillCentreAxes::CFillCentreAxes() : FillWithControls(DefaultStops(2, false), 2, -1) {}

void CFillCentreAxes::SetDefaultControls(const CRect& rect)
{
    const auto axes = DefaultControls::CentreAxes(rect);
    SetControls(axes.origin, axes.xEnd, axes.yEnd);
}

} // namespace KestoGDI
