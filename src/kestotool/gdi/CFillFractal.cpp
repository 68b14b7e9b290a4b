#include "kestotool/gdi/CFillFractal.h"

#include "kestotool/gdi/DefaultControls_p.h"

#include <algorithm>

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CFillFractal, CFillGradient)

CFillFractal::CFillFractal() : FillWithControls(DefaultStops(2, false), 2, -1) {}

void CFillFractal::SetDefaultControls(const CRect& rect)
{
    const auto axes = DefaultControls::CornerAxes(rect);
    SetControls(axes.origin, axes.xEnd, axes.yEnd);
}

void CFillFractal::SetGrain(int grain)
{
    m_grain = std::clamp(grain, 0, 100);
}

void CFillFractal::SetResolution(int resolution)
{
    m_resolution = std::clamp(resolution, MinResolution, MaxResolution);
}

bool CFillFractal::IsEqualData(const CFill& other) const
{
    const auto& o = static_cast<const CFillFractal&>(other);
    return FillWithControls::IsEqualData(other) && m_grain == o.m_grain && m_resolution == o.m_resolution &&
           m_seed == o.m_seed && m_tileInverted == o.m_tileInverted;
}

} // namespace KestoGDI
