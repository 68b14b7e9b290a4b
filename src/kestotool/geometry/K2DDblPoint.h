#pragma once

#include "kestotool/geometry/K2DVector.h"
#include "kestotool/geometry/Kesto2DImports.h"
#include "kestotool/platform/Export.h"

namespace Kesto2D {

// A point in double precision. Fills hold their control points this way; tools see them as
// integer points through Round.
class KESTO_API K2DDblPoint {
public:
    double x = 0;
    double y = 0;

    constexpr K2DDblPoint() = default;
    constexpr K2DDblPoint(double px, double py) : x(px), y(py) {}
    constexpr K2DDblPoint(const CPoint& p) : x(p.x), y(p.y) {}

    // The nearest integer point, halves away from zero, saturating at the int range.
    CPoint Round() const;
    double Distance(const K2DDblPoint& p) const { return (p - *this).Length(); }
    // Treats the point as a vector from the origin and scales it to unit length in place;
    // answers the length it had. The origin stays where it is and answers 0.
    double NormaliseFast();

    constexpr K2DDblPoint& operator+=(const K2DVector& v)
    {
        x += v.dx;
        y += v.dy;
        return *this;
    }
    constexpr K2DDblPoint& operator-=(const K2DVector& v)
    {
        x -= v.dx;
        y -= v.dy;
        return *this;
    }
    friend constexpr K2DDblPoint operator+(K2DDblPoint p, const K2DVector& v) { return p += v; }
    friend constexpr K2DDblPoint operator-(K2DDblPoint p, const K2DVector& v) { return p -= v; }
    friend constexpr K2DVector operator-(const K2DDblPoint& a, const K2DDblPoint& b) { return {a.x - b.x, a.y - b.y}; }
    friend constexpr bool operator==(const K2DDblPoint& a, const K2DDblPoint& b) { return a.x == b.x && a.y == b.y; }
};

} // namespace Kesto2D
