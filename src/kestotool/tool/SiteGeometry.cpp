#include "kestotool/tool/SiteGeometry.h"

#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/geometry/KCAngle.h"
#include "kestotool/geometry/Rounding.h"

#include <cmath>

namespace KestoTool {

CPoint SiteGeometry::SnapToGrid(const CPoint& point, int grid)
{
    if (grid <= 0)
        return point;
    const auto toGrid = [grid](int v) {
        return static_cast<long long>(Kesto2D::RoundHalfAwayFromZero(static_cast<double>(v) / grid)) * grid;
    };
    return Kesto2D::SaturatePoint(toGrid(point.x), toGrid(point.y));
}

CPoint SiteGeometry::ConstrainToAngleStep(const CPoint& origin, const CPoint& point, int step)
{
    if (step <= 0)
        return point;
    const double dx = static_cast<double>(point.x) - origin.x;
    const double dy = static_cast<double>(point.y) - origin.y;
    const int angle = Kesto2D::KCAngle::DirectionOf(dx, dy);
    const int snapped = Kesto2D::RoundHalfAwayFromZero(static_cast<double>(angle) / step) * step;
    double s = 0, c = 1;
    Kesto2D::KCAngle(snapped).SinCos(s, c);
    const double d = std::hypot(dx, dy);
    return Kesto2D::SaturatePoint(origin.x + std::llround(d * c), origin.y - std::llround(d * s));
}

} // namespace KestoTool
