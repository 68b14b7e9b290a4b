#pragma once

#include "kestotool/platform/Export.h"
#include "kestotool/raster/Paint.h"

#include <optional>
#include <string>
#include <vector>

namespace KestoTool {

// A paint as SVG says it where SVG has the kind: linear and radial gradients, and elliptical ones
// as a radial gradient whose transform carries the two axes (skew included). Coordinates are the
// paint's own, in user space; the spread is pad, as the renderer pads.
class KESTO_API SvgPaint {
public:
    SvgPaint() = delete;

    // The gradient element with the id; nothing for a kind SVG has no gradient for, or a paint
    // without its points.
    static std::optional<std::string> Gradient(const KestoRaster::Paint& paint, const std::string& id);
    // A ramp's stops as SVG stop elements. SVG blends straight between stops; a blend curve of
    // the ramp is sampled with stops in between, so that SVG's straight blend stays within half
    // a level of it.
    static std::string Stops(const std::vector<KestoRaster::RampStop>& stops);
};

} // namespace KestoTool
