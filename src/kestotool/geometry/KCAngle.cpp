#include "kestotool/geometry/KCAngle.h"

#include "kestotool/geometry/Rounding.h"

#include <cmath>
#include <numbers>

namespace Kesto2D {

KCAngle KCAngle::FromRadians(double radians)
{
    return RoundHalfAwayFromZero(radians * HalfCircle / std::numbers::pi);
}

double KCAngle::ToRadians() const
{
    return m_value * std::numbers::pi / HalfCircle;
}

void KCAngle::SinCos(double& sine, double& cosine) const
{
    const int a = Normalized();
    switch (a) {
    case 0:
        sine = 0;
        cosine = 1;
        return;
    case RightAngle:
        sine = 1;
        cosine = 0;
        return;
    case HalfCircle:
        sine = 0;
        cosine = -1;
        return;
    case HalfCircle + RightAngle:
        sine = -1;
        cosine = 0;
        return;
    default:
        sine = std::sin(ToRadians());
        cosine = std::cos(ToRadians());
        return;
    }
}

KCAngle KCAngle::DirectionOf(double dx, double dy)
{
    return Between(1, 0, dx, dy);
}

KCAngle KCAngle::Between(double ux, double uy, double vx, double vy)
{
    if ((ux == 0 && uy == 0) || (vx == 0 && vy == 0))
        return 0;
    // y grows downward, so the anticlockwise-on-screen turn is the negated y-down cross product.
    const double cross = -(ux * vy - uy * vx);
    const double dot = ux * vx + uy * vy;
    return FromRadians(std::atan2(cross, dot)).Normalized();
}

} // namespace Kesto2D
