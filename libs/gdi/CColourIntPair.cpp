#include "gdi/CColourIntPair.h"

#include "gdi/CRGBColour.h"
#include "geometry/Rounding.h"

namespace KestoGDI {

CColourIntPair::CColourIntPair() : m_colour(std::make_unique<CRGBColour>(0))
{
}

CColourIntPair::CColourIntPair(const CColour& colour, int value, CSpline spline)
    : m_colour(colour.Clone()), m_value(value), m_spline(spline)
{
}

CColourIntPair::CColourIntPair(const CColourIntPair& other)
    : m_colour(other.m_colour->Clone()), m_value(other.m_value), m_spline(other.m_spline)
{
}

CColourIntPair& CColourIntPair::operator=(const CColourIntPair& other)
{
    if (this != &other) {
        m_colour = other.m_colour->Clone();
        m_value = other.m_value;
        m_spline = other.m_spline;
    }
    return *this;
}

CColourIntPair::~CColourIntPair() = default;

CPoint CColourIntPair::GetValue(const CPoint& start, const CPoint& end) const
{
    return {start.x + Kesto2D::MulDiv(end.x - start.x, m_value, 10000),
            start.y + Kesto2D::MulDiv(end.y - start.y, m_value, 10000)};
}

bool operator==(const CColourIntPair& a, const CColourIntPair& b)
{
    return a.m_value == b.m_value && a.m_spline == b.m_spline && a.m_colour->IsEqual(*b.m_colour);
}

} // namespace KestoGDI
