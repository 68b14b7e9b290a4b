#include "kestotool/geometry/Rounding.h"

#include <cmath>
#include <cstdint>
#include <limits>

namespace Kesto2D {

int ClampToInt(double x)
{
    if (std::isnan(x))
        return 0;
    constexpr double lo = std::numeric_limits<int>::min();
    constexpr double hi = std::numeric_limits<int>::max();
    if (x <= lo)
        return std::numeric_limits<int>::min();
    if (x >= hi)
        return std::numeric_limits<int>::max();
    return static_cast<int>(x);
}

int RoundHalfUp(double x)
{
    return ClampToInt(std::floor(x + 0.5));
}

int AddHalfAndTruncate(double x)
{
    return ClampToInt(x + 0.5);
}

int RoundHalfAwayFromZero(double x)
{
    return ClampToInt(x < 0 ? -std::floor(-x + 0.5) : std::floor(x + 0.5));
}

std::int64_t MulDivWide(std::int64_t number, int numerator, int denominator)
{
    if (denominator == 0)
        return 0;
    const std::int64_t product = number * numerator;
    std::int64_t magnitude = product < 0 ? -product : product;
    const std::int64_t divisor = denominator < 0 ? -static_cast<std::int64_t>(denominator) : denominator;
    magnitude = (magnitude + divisor / 2) / divisor;
    const bool negative = (product < 0) != (denominator < 0);
    return negative ? -magnitude : magnitude;
}

int MulDiv(int number, int numerator, int denominator)
{
    if (denominator == 0)
        return -1;
    const std::int64_t result = MulDivWide(number, numerator, denominator);
    if (result > std::numeric_limits<int>::max() || result < std::numeric_limits<int>::min())
        return -1;
    return static_cast<int>(result);
}

} // namespace Kesto2D
