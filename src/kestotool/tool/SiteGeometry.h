#pragma once

#include "kestotool/platform/Export.h"
#include "kestotool/tool/KestoToolImports.h"

namespace KestoTool {

// The grid snap and angle constraint that a host's IToolSite usually answers with, for hosts
// that have a plain grid and a fixed angle step. Wide arithmetic throughout: points may lie at
// opposite ends of the coordinate range, and the answers are saturated to it.
class KESTO_API SiteGeometry {
public:
    SiteGeometry() = delete;

    // The grid point nearest to point (halves away from zero); point itself for a grid of 0 or less.
    static CPoint SnapToGrid(const CPoint& point, int grid);
    // point turned about origin onto the nearest multiple of step (hundredths of a degree,
    // counter-clockwise on screen, halves away from zero), keeping its distance; point itself
    // for a step of 0 or less.
    static CPoint ConstrainToAngleStep(const CPoint& origin, const CPoint& point, int step);
};

} // namespace KestoTool
