#pragma once

namespace Kesto2D {

// A translation step, appended to a K2DLtGeneral with +=.
struct K2DLtTranslate {
    double dx = 0;
    double dy = 0;
    constexpr K2DLtTranslate(double x, double y) : dx(x), dy(y) {}
};

} // namespace Kesto2D
