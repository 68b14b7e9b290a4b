#include "kestotool/geometry/K2DDblPoint.h"

#include "kestotool/geometry/Rounding.h"

namespace Kesto2D {

CPoint K2DDblPoint::Round() const
{
    return {RoundHalfAwayFromZero(x), RoundHalfAwayFromZero(y)};
}

double K2DDblPoint::NormaliseFast()
{
    const double len = K2DVector(x, y).Length();
    if (len > 0) {
        x /= len;
        y /= len;
    }
    return len;
}

} // namespace Kesto2D
