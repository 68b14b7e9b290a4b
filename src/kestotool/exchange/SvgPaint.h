#pragma once

#include "kestotool/platform/Export.h"
#include "kestotool/raster/Paint.h"

#include <optional>
#include <string>
#include <vector>

namespace KestoTool {

// A paint as SVG says it where SVG has the kind: linear and radial gradients, and elliptical ones
// as a radial gradient whose transform carries the two axes (skew included). Coordinates are the
// paint's own, in user space; the spread is pad, as the renderer pads. A transparency's paint
// is written as the content of a mask (grey levels for luminance).
class KESTO_API SvgPaint {
public:
    SvgPaint() = delete;

    // What paints an area: definitions (gradients) for the document's defs, and the elements
    // that cover the area with the paint, for the caller to clip to its shape.
    struct Fill {
        std::string defs;
        std::string elements;
    };
    // The paint over the area [x0, x1] x [y0, y1], ids starting with id: a solid colour and the
    // gradient kinds as a rectangle of their colour or gradient; a square (diamond) paint
    // exactly, as four wedges from its centre, each a linear gradient along its axis. Nothing
    // for a kind not written natively.
    static std::optional<Fill> Area(const KestoRaster::Paint& paint, const std::string& id, double x0, double y0,
                                    double x1, double y1);

    // The gradient element with the id; nothing for a kind SVG has no gradient for, or a paint
    // without its points.
    static std::optional<std::string> Gradient(const KestoRaster::Paint& paint, const std::string& id);
    // A ramp's stops as SVG stop elements. SVG blends straight between stops; a blend curve of
    // the ramp is sampled with stops in between, so that SVG's straight blend stays within half
    // a level of it. A transparency's levels become the grey of a mask's luminance (white where
    // it lets everything through).
    static std::string Stops(const std::vector<KestoRaster::RampStop>& stops, bool levels = false);
};

} // namespace KestoTool
