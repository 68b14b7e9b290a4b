#include "kestotool/gdi/CFillBitmap.h"

#include "kestotool/gdi/DefaultControls_p.h"

namespace KestoGDI {

KESTO_IMPLEMENT_FILL(CFillBitmap, CFillWithStops)

CFillBitmap::CFillBitmap() : FillWithControls(ColourIntPairs(), 0, -1) {}

CFillBitmap::CFillBitmap(RefPtr<const CLtBitmap> bitmap) : CFillBitmap()
{
    m_bitmap = std::move(bitmap);
}

void CFillBitmap::SetDefaultControls(const CRect& rect)
{
    const auto axes = DefaultControls::CornerAxes(rect);
    SetControls(axes.origin, axes.xEnd, axes.yEnd);
}

bool CFillBitmap::IsEqualData(const CFill& other) const
{
    const auto& o = static_cast<const CFillBitmap&>(other);
    const bool sameBitmap = m_bitmap == o.m_bitmap || (m_bitmap && o.m_bitmap && *m_bitmap == *o.m_bitmap);
    return FillWithControls::IsEqualData(other) && sameBitmap && m_invertedTiling == o.m_invertedTiling &&
           m_gradientRecolour == o.m_gradientRecolour;
}

std::size_t CFillBitmap::HeapBytes() const
{
    return FillWithControls::HeapBytes() + (m_bitmap ? m_bitmap->Measure() : 0);
}

} // namespace KestoGDI
