#include "kestotool/gdi/CFillConical.h"

#include "kestotool/gdi/DefaultControls_p.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CFillConical, CFillGradient)

CFillConical::CFillConical() : FillWithControls(DefaultStops(2, false), 2, -1) {}

void CFillConical::SetDefaultControls(const CRect& rect)
{
    const auto axes = DefaultControls::CentreAxes(rect);
    SetControls(axes.origin, axes.xEnd);
}

} // namespace KestoGDI
