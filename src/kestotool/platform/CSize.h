#pragma once

#include "kestotool/platform/Export.h"

namespace KestoPlatform {

// The plain record that interfaces take by reference (for example a size to convert in place).
struct SIZE {
    int cx = 0;
    int cy = 0;
};

class KESTO_API CSize : public SIZE {
public:
    constexpr CSize() = default;
    constexpr CSize(int x, int y) : SIZE{x, y} {}
    constexpr CSize(const SIZE& s) : SIZE(s) {}

    friend constexpr bool operator==(const CSize& a, const CSize& b) { return a.cx == b.cx && a.cy == b.cy; }
    friend constexpr CSize operator+(const CSize& a, const CSize& b) { return {a.cx + b.cx, a.cy + b.cy}; }
    friend constexpr CSize operator-(const CSize& a, const CSize& b) { return {a.cx - b.cx, a.cy - b.cy}; }
    constexpr CSize operator-() const { return {-cx, -cy}; }
};

} // namespace KestoPlatform
