#pragma once

namespace Kesto2D {

// A scaling step about the origin.
struct K2DLtScale {
    double sx = 1;
    double sy = 1;
    constexpr K2DLtScale(double x, double y) : sx(x), sy(y) {}
};

} // namespace Kesto2D
