#include "kestotool/geometry/K2DGeometry.h"

#include "kestotool/geometry/Rounding.h"

namespace Kesto2D::K2DGeometry {

KCAngle CalcAngle(const K2DDblPoint& a, const K2DDblPoint& centre, const K2DDblPoint& b)
{
    const K2DVector u = a - centre;
    const K2DVector v = b - centre;
    return KCAngle::Between(u.dx, u.dy, v.dx, v.dy);
}

KCAngle CalcAngle(const CPoint& a, const CPoint& centre, const CPoint& b)
{
    return CalcAngle(K2DDblPoint(a), K2DDblPoint(centre), K2DDblPoint(b));
}

double CalcDist(const CPoint& a, const CPoint& b)
{
    return K2DDblPoint(a).Distance(K2DDblPoint(b));
}

int IDist(const CPoint& a, const CPoint& b)
{
    return RoundHalfAwayFromZero(CalcDist(a, b));
}

} // namespace Kesto2D::K2DGeometry
