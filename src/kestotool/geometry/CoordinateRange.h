#pragma once

#include "kestotool/geometry/K2DDblPoint.h"
#include "kestotool/platform/CPoint.h"
#include "kestotool/platform/Export.h"

namespace Kesto2D {

// The coordinate range of documents: integer coordinates within ±2^30 units (a large poster in
// fine units). Arithmetic on points that can leave the range (differences of two points,
// offsets, rotations, MulDiv positions, handle boxes) is done in 64 bits or doubles and brought
// back with these helpers where it is stored, so that no expression overflows and every stored
// point stays editable.
inline constexpr int CoordinateLimit = 1 << 30;

// v clamped into [-CoordinateLimit, CoordinateLimit].
constexpr int SaturateCoordinate(long long v)
{
    return v < -CoordinateLimit ? -CoordinateLimit : v > CoordinateLimit ? CoordinateLimit : static_cast<int>(v);
}
constexpr KestoPlatform::CPoint SaturatePoint(long long x, long long y)
{
    return {SaturateCoordinate(x), SaturateCoordinate(y)};
}
// p moved by (dx, dy), saturated.
constexpr KestoPlatform::CPoint OffsetPoint(const KestoPlatform::CPoint& p, long long dx, long long dy)
{
    return SaturatePoint(p.x + dx, p.y + dy);
}
// p moved as far as from moves to reach to, saturated.
constexpr KestoPlatform::CPoint OffsetPoint(const KestoPlatform::CPoint& p, const KestoPlatform::CPoint& from,
                                            const KestoPlatform::CPoint& to)
{
    return OffsetPoint(p, static_cast<long long>(to.x) - from.x, static_cast<long long>(to.y) - from.y);
}
// A double point clamped into the range: infinities go to the limits, NaN to 0.
KESTO_API K2DDblPoint SaturateToRange(const K2DDblPoint& p);
// A double point brought into the range and rounded half away from zero to integers (a pointer
// position mapped from a window into the document, for example).
KESTO_API KestoPlatform::CPoint RoundToRange(const K2DDblPoint& p);

} // namespace Kesto2D
