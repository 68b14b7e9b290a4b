#pragma once

#include "kestotool/platform/CSize.h"
#include "kestotool/platform/Export.h"

namespace KestoPlatform {

// An integer point in document (paper) units or in client pixels.
class KESTO_API CPoint {
public:
    int x = 0;
    int y = 0;

    constexpr CPoint() = default;
    constexpr CPoint(int px, int py) : x(px), y(py) {}

    constexpr void Offset(int dx, int dy)
    {
        x += dx;
        y += dy;
    }
    constexpr CPoint& operator+=(const CSize& s)
    {
        x += s.cx;
        y += s.cy;
        return *this;
    }
    constexpr CPoint& operator-=(const CSize& s)
    {
        x -= s.cx;
        y -= s.cy;
        return *this;
    }
    constexpr CPoint& operator+=(const CPoint& p)
    {
        x += p.x;
        y += p.y;
        return *this;
    }
    constexpr CPoint& operator-=(const CPoint& p)
    {
        x -= p.x;
        y -= p.y;
        return *this;
    }
    constexpr CPoint operator-() const { return {-x, -y}; }

    friend constexpr bool operator==(const CPoint& a, const CPoint& b) { return a.x == b.x && a.y == b.y; }
    friend constexpr CPoint operator+(CPoint a, const CSize& s) { return a += s; }
    friend constexpr CPoint operator-(CPoint a, const CSize& s) { return a -= s; }
    friend constexpr CPoint operator+(CPoint a, const CPoint& b) { return a += b; }
    // The difference of two points is the offset between them.
    friend constexpr CSize operator-(const CPoint& a, const CPoint& b) { return {a.x - b.x, a.y - b.y}; }
};

} // namespace KestoPlatform
