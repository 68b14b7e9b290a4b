#include "kestotool/gdi/CFillWithStops.h"

#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/geometry/Rounding.h"

namespace KestoGDI {

KESTO_IMPLEMENT_DYNAMIC(CFillWithStops, CFill)

CFillWithStops::CFillWithStops(ColourIntPairs stops, int minStops, int maxStops)
    : m_stops(std::move(stops)), m_minStops(minStops), m_maxStops(maxStops)
{
}

bool CFillWithStops::SetColourIntPairs(const ColourIntPairs& stops)
{
    const int n = stops.GetSize();
    if (n < m_minStops || (m_maxStops >= 0 && n > m_maxStops))
        return false;
    m_stops = stops;
    return true;
}

ColourIntPairs CFillWithStops::DefaultStops(int count, bool transparency)
{
    ColourIntPairs stops;
    if (count <= 0)
        return stops;
    const COLORREF corners[] = {KestoPlatform::RGB(255, 0, 0), KestoPlatform::RGB(0, 255, 0),
                                KestoPlatform::RGB(0, 0, 255), KestoPlatform::RGB(255, 255, 0)};
    for (int i = 0; i < count; ++i) {
        const int value = count == 1 ? 0 : Kesto2D::MulDiv(i, 10000, count - 1);
        const int level = count == 1 ? 0 : Kesto2D::MulDiv(i, 255, count - 1);
        if (transparency)
            stops.Add(CMonoColour(level), value);
        else if (count == 3 || count == 4)
            stops.Add(CRGBColour(corners[i]), value);
        else
            stops.Add(CRGBColour(KestoPlatform::RGB(level, level, level)), value);
    }
    return stops;
}

bool CFillWithStops::IsEqualData(const CFill& other) const
{
    return CFill::IsEqualData(other) && m_stops == static_cast<const CFillWithStops&>(other).m_stops;
}

} // namespace KestoGDI
