#include "kestotool/geometry/CoordinateRange.h"

#include "kestotool/geometry/Rounding.h"

#include <algorithm>
#include <cmath>

namespace Kesto2D {

namespace {

double Saturate(double v)
{
    if (!std::isfinite(v))
        return std::isnan(v) ? 0.0 : std::copysign(CoordinateLimit, v);
    return std::clamp(v, -static_cast<double>(CoordinateLimit), static_cast<double>(CoordinateLimit));
}

} // namespace

K2DDblPoint SaturateToRange(const K2DDblPoint& p)
{
    return {Saturate(p.x), Saturate(p.y)};
}

KestoPlatform::CPoint RoundToRange(const K2DDblPoint& p)
{
    const K2DDblPoint q = SaturateToRange(p);
    return {RoundHalfAwayFromZero(q.x), RoundHalfAwayFromZero(q.y)};
}

} // namespace Kesto2D
