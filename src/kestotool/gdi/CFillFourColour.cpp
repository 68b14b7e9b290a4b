#include "kestotool/gdi/CFillFourColour.h"

#include "kestotool/gdi/DefaultControls_p.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CFillFourColour, CFillGradient)

CFillFourColour::CFillFourColour() : FillWithControls(DefaultStops(4, false), 4, 4) {}

void CFillFourColour::SetDefaultControls(const CRect& rect)
{
    const auto axes = DefaultControls::CornerAxes(rect);
    SetControls(axes.origin, axes.xEnd, axes.yEnd, axes.xEnd + (axes.yEnd - axes.origin));
}

} // namespace KestoGDI
