#include "kestotool/gdi/CFillThreeColour.h"

#include "kestotool/gdi/DefaultControls_p.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CFillThreeColour, CFillGradient)

CFillThreeColour::CFillThreeColour() : FillWithControls(DefaultStops(3, false), 3, 3) {}

void CFillThreeColour::SetDefaultControls(const CRect& rect)
{
    const auto axes = DefaultControls::CornerAxes(rect);
    SetControls(axes.origin, axes.xEnd, axes.yEnd);
}

} // namespace KestoGDI
