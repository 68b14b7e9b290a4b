#include "kestotool/gdi/CColourIntPair.h"

#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/geometry/Rounding.h"

#include <utility>

namespace KestoGDI {

CColourIntPair::CColourIntPair() = default;

CColourIntPair::CColourIntPair(const CColour& colour, int value, CSpline spline) : m_value(value), m_spline(spline)
{
    SetColour(colour);
}

const CColour& CColourIntPair::GetColour() const
{
    if (const auto* mono = std::get_if<CMonoColour>(&m_colour))
        return *mono;
    return std::get<CRGBColour>(m_colour);
}

CColour& CColourIntPair::GetColour()
{
    return const_cast<CColour&>(std::as_const(*this).GetColour());
}

void CColourIntPair::SetColour(const CColour& colour)
{
    if (const auto* mono = dynamic_cast<const CMonoColour*>(&colour))
        m_colour = *mono;
    else if (const auto* rgb = dynamic_cast<const CRGBColour*>(&colour))
        m_colour = *rgb;
    else
        m_colour = CRGBColour(colour.GetRGB(), nullptr, 0, static_cast<short>(colour.GetAlpha()));
}

CPoint CColourIntPair::GetValue(const CPoint& start, const CPoint& end) const
{
    const auto along = [this](int from, int to) {
        return from + Kesto2D::MulDivWide(static_cast<std::int64_t>(to) - from, m_value, 10000);
    };
    return Kesto2D::SaturatePoint(along(start.x, end.x), along(start.y, end.y));
}

bool operator==(const CColourIntPair& a, const CColourIntPair& b)
{
    return a.m_value == b.m_value && a.m_spline == b.m_spline && a.GetColour().IsEqual(b.GetColour());
}

} // namespace KestoGDI
