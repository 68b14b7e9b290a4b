#pragma once

#include "kestotool/platform/Export.h"

#include <cstdint>

// The one set of rounding rules that every part of the system uses. Code never writes an ad-hoc
// int(x + 0.5): it names the rule it means.
namespace Kesto2D {

// Truncates toward zero into the int range: NaN gives 0, values past either end saturate.
KESTO_API int ClampToInt(double x);

// floor(x + 0.5): halves go up, also for negative x (-2.5 gives -2).
KESTO_API int RoundHalfUp(double x);

// x + 0.5 truncated toward zero, saturating: the classic int(x + 0.5). Halves go up for x >= 0;
// for negative x it is not a rounding (-0.7 gives 0). Only where that exact rule is the
// observable one; new code uses RoundHalfUp.
KESTO_API int AddHalfAndTruncate(double x);

// Halves go away from zero (-2.5 gives -3). The rule for turning double points into integer points.
KESTO_API int RoundHalfAwayFromZero(double x);

// number * numerator / denominator with a 64-bit product and the quotient rounded half away
// from zero. As on the classic platform it answers -1 when the denominator is zero or the
// result does not fit in an int.
KESTO_API int MulDiv(int number, int numerator, int denominator);
// The same rule on a wide number (within ±2^32, so that the product fits in 64 bits), for
// positions between two points of the coordinate range; 0 for a zero denominator.
KESTO_API std::int64_t MulDivWide(std::int64_t number, int numerator, int denominator);

} // namespace Kesto2D
