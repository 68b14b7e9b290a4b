#pragma once

#include "kestotool/platform/CPoint.h"
#include "kestotool/platform/Export.h"

#include <limits>

namespace KestoPlatform {

// An integer rectangle with the classic semantics: it contains its left and top edges but not
// its right and bottom ones, its width and height are signed (an inverted rectangle has negative
// ones) and it is empty when either is not positive.
class KESTO_API CRect {
public:
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    constexpr CRect() = default;
    constexpr CRect(int l, int t, int r, int b) : left(l), top(t), right(r), bottom(b) {}
    constexpr CRect(const CPoint& topLeft, const CPoint& bottomRight)
        : left(topLeft.x), top(topLeft.y), right(bottomRight.x), bottom(bottomRight.y)
    {
    }
    constexpr CRect(const CPoint& topLeft, const CSize& size)
        : left(topLeft.x), top(topLeft.y), right(topLeft.x + size.cx), bottom(topLeft.y + size.cy)
    {
    }

    // Computed wide and saturated to the int range, so that huge coordinates do not overflow.
    constexpr int Width() const { return Span(left, right); }
    constexpr int Height() const { return Span(top, bottom); }
    constexpr CSize Size() const { return {Width(), Height()}; }
    constexpr CPoint TopLeft() const { return {left, top}; }
    constexpr CPoint BottomRight() const { return {right, bottom}; }
    // Integer halves of the edge sums, computed wide so that huge coordinates do not overflow.
    constexpr CPoint CenterPoint() const
    {
        return {static_cast<int>((static_cast<long long>(left) + right) / 2),
                static_cast<int>((static_cast<long long>(top) + bottom) / 2)};
    }

    constexpr bool IsRectEmpty() const { return Width() <= 0 || Height() <= 0; }
    constexpr bool IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    constexpr bool PtInRect(const CPoint& p) const { return p.x >= left && p.x < right && p.y >= top && p.y < bottom; }

    constexpr void SetRect(int l, int t, int r, int b)
    {
        left = l;
        top = t;
        right = r;
        bottom = b;
    }
    constexpr void SetRectEmpty() { SetRect(0, 0, 0, 0); }
    void NormalizeRect();
    constexpr void InflateRect(int dx, int dy) { InflateRect(dx, dy, dx, dy); }
    constexpr void InflateRect(const SIZE& s) { InflateRect(s.cx, s.cy); }
    constexpr void InflateRect(int l, int t, int r, int b)
    {
        left -= l;
        top -= t;
        right += r;
        bottom += b;
    }
    constexpr void DeflateRect(int dx, int dy) { InflateRect(-dx, -dy); }
    constexpr void OffsetRect(int dx, int dy)
    {
        left += dx;
        right += dx;
        top += dy;
        bottom += dy;
    }
    constexpr void OffsetRect(const CSize& s) { OffsetRect(s.cx, s.cy); }

    // Sets this to the smallest rectangle holding both; an empty rectangle adds nothing.
    // Answers false when the result is empty.
    bool UnionRect(const CRect& a, const CRect& b);
    // Sets this to the overlap of both; answers false (and sets an all-zero rectangle) when
    // they do not overlap.
    bool IntersectRect(const CRect& a, const CRect& b);

    [[nodiscard]] CRect Normalized() const
    {
        CRect r = *this;
        r.NormalizeRect();
        return r;
    }

    friend constexpr bool operator==(const CRect& a, const CRect& b)
    {
        return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
    }

private:
    static constexpr int Span(int from, int to)
    {
        const long long d = static_cast<long long>(to) - from;
        return d > std::numeric_limits<int>::max()   ? std::numeric_limits<int>::max()
               : d < std::numeric_limits<int>::min() ? std::numeric_limits<int>::min()
                                                     : static_cast<int>(d);
    }
};

} // namespace KestoPlatform
