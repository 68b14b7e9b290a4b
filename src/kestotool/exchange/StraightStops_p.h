#pragma once

#include "kestotool/raster/Paint.h"

#include <vector>

namespace KestoTool {

// A ramp's stops as exchange formats take them, blending straight from one to the next: where
// the ramp blends along a curve, stops are put in between (on the ramp's own whole positions,
// so that reading them back gives the same ramp) until the straight blend strays less than
// half a level from the curve.
std::vector<KestoRaster::RampStop> StraightStops(const std::vector<KestoRaster::RampStop>& stops);

} // namespace KestoTool
