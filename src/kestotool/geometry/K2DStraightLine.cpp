#include "kestotool/geometry/K2DStraightLine.h"

#include <algorithm>
#include <cmath>

namespace Kesto2D {

bool K2DStraightLine::Set(const K2DDblPoint& a, const K2DDblPoint& b, bool finite)
{
    m_start = a;
    m_end = b;
    m_finite = finite;
    m_valid = !(a == b) && std::isfinite(a.x) && std::isfinite(a.y) && std::isfinite(b.x) && std::isfinite(b.y);
    return m_valid;
}

double K2DStraightLine::ParameterOf(const K2DDblPoint& p) const
{
    const K2DVector d = Direction();
    return (p - m_start).Dot(d) / d.Dot(d);
}

K2DDblPoint K2DStraightLine::IntersectPerp(const K2DDblPoint& p) const
{
    if (!m_valid)
        return m_start;
    return m_start + Direction() * ParameterOf(p);
}

K2DDblPoint K2DStraightLine::ClosestPointOnLine(const K2DDblPoint& p) const
{
    if (!m_valid)
        return m_start;
    double t = ParameterOf(p);
    if (m_finite)
        t = std::clamp(t, 0.0, 1.0);
    return m_start + Direction() * t;
}

bool K2DStraightLine::Intersect(const K2DStraightLine& other, K2DDblPoint& where, double tolerance) const
{
    if (!m_valid || !other.m_valid)
        return false;
    const K2DVector d1 = Direction();
    const K2DVector d2 = other.Direction();
    const double denom = d1.Cross(d2);
    // Parallel within rounding of the two directions' magnitudes.
    if (std::abs(denom) <= 1e-12 * d1.Length() * d2.Length())
        return false;
    const K2DVector w = other.m_start - m_start;
    const double t = w.Cross(d2) / denom;
    const double u = w.Cross(d1) / denom;
    const double slack1 = tolerance / d1.Length();
    const double slack2 = tolerance / d2.Length();
    if (m_finite && (t < -slack1 || t > 1 + slack1))
        return false;
    if (other.m_finite && (u < -slack2 || u > 1 + slack2))
        return false;
    where = m_start + d1 * t;
    return true;
}

K2DDblPoint K2DStraightLine::PointAtPerpendicularDistance(const K2DDblPoint& at, double distance) const
{
    if (!m_valid)
        return at;
    return at + Direction().Perpendicular().Normalized() * distance;
}

double K2DStraightLine::GetAngle(const K2DStraightLine& other) const
{
    if (!m_valid || !other.m_valid)
        return 0;
    const K2DVector a = Direction();
    const K2DVector b = other.Direction();
    return std::abs(std::atan2(a.Cross(b), a.Dot(b)));
}

} // namespace Kesto2D
