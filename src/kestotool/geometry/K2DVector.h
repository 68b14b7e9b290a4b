#pragma once

#include <cmath>

namespace Kesto2D {

// A displacement in double precision.
class K2DVector {
public:
    double dx = 0;
    double dy = 0;

    constexpr K2DVector() = default;
    constexpr K2DVector(double x, double y) : dx(x), dy(y) {}

    double Length() const { return std::hypot(dx, dy); }
    constexpr double Dot(const K2DVector& v) const { return dx * v.dx + dy * v.dy; }
    // Positive when v lies clockwise of this on screen (the plain y-down cross product).
    constexpr double Cross(const K2DVector& v) const { return dx * v.dy - dy * v.dx; }
    constexpr bool IsZero() const { return dx == 0 && dy == 0; }
    // This turned a right angle anticlockwise on screen.
    constexpr K2DVector Perpendicular() const { return {dy, -dx}; }
    // Unit length in the same direction; the zero vector stays zero.
    [[nodiscard]] K2DVector Normalized() const
    {
        const double len = Length();
        return len > 0 ? K2DVector{dx / len, dy / len} : K2DVector{};
    }

    constexpr K2DVector& operator+=(const K2DVector& v)
    {
        dx += v.dx;
        dy += v.dy;
        return *this;
    }
    constexpr K2DVector& operator-=(const K2DVector& v)
    {
        dx -= v.dx;
        dy -= v.dy;
        return *this;
    }
    constexpr K2DVector& operator*=(double s)
    {
        dx *= s;
        dy *= s;
        return *this;
    }
    constexpr K2DVector operator-() const { return {-dx, -dy}; }
    friend constexpr K2DVector operator+(K2DVector a, const K2DVector& b) { return a += b; }
    friend constexpr K2DVector operator-(K2DVector a, const K2DVector& b) { return a -= b; }
    friend constexpr K2DVector operator*(K2DVector a, double s) { return a *= s; }
    friend constexpr K2DVector operator*(double s, K2DVector a) { return a *= s; }
    friend constexpr bool operator==(const K2DVector& a, const K2DVector& b) { return a.dx == b.dx && a.dy == b.dy; }
};

} // namespace Kesto2D
