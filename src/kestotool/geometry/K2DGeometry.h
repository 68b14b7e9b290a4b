#pragma once

#include "kestotool/platform/Export.h"

#include "kestotool/geometry/K2DDblPoint.h"
#include "kestotool/geometry/KCAngle.h"

// Angle and distance measures between points.
namespace Kesto2D::K2DGeometry {

// The rotation in [0, 36000), anticlockwise on screen, that takes the direction centre->a onto
// centre->b (the convention of KCAngle). 0 when a or b coincides with the centre.
KESTO_API KCAngle CalcAngle(const CPoint& a, const CPoint& centre, const CPoint& b);
KESTO_API KCAngle CalcAngle(const K2DDblPoint& a, const K2DDblPoint& centre, const K2DDblPoint& b);

// Euclidean distance, computed in doubles so that coordinates of any int size are safe.
KESTO_API double CalcDist(const CPoint& a, const CPoint& b);
// The same rounded half away from zero to an integer.
KESTO_API int IDist(const CPoint& a, const CPoint& b);

} // namespace Kesto2D::K2DGeometry
