#pragma once

#include "kestotool/geometry/KCAngle.h"

namespace Kesto2D {

// A rotation step about the origin, anticlockwise on screen for a positive angle (see KCAngle).
struct K2DLtRotate {
    KCAngle angle;
    constexpr explicit K2DLtRotate(KCAngle a) : angle(a) {}
};

} // namespace Kesto2D
