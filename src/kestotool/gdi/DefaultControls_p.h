#pragma once

// How the shaped fills lay their control points over a rectangle by default. Internal to the
// fill model; the rectangle is normalised first.
#include "kestotool/gdi/KestoGDIImports.h"

namespace KestoGDI::DefaultControls {

struct Axes {
    K2DDblPoint origin;
    K2DDblPoint xEnd;
    K2DDblPoint yEnd;
};

// Origin at the centre, x axis to the middle of the right edge, y axis to the middle of the top.
inline Axes CentreAxes(CRect r)
{
    r.NormalizeRect();
    const double cx = (static_cast<double>(r.left) + r.right) / 2;
    const double cy = (static_cast<double>(r.top) + r.bottom) / 2;
    return {{cx, cy}, {static_cast<double>(r.right), cy}, {cx, static_cast<double>(r.top)}};
}

// Origin at the top-left corner, x axis along the top edge, y axis down the left edge.
inline Axes CornerAxes(CRect r)
{
    r.NormalizeRect();
    return {{static_cast<double>(r.left), static_cast<double>(r.top)},
            {static_cast<double>(r.right), static_cast<double>(r.top)},
            {static_cast<double>(r.left), static_cast<double>(r.bottom)}};
}

} // namespace KestoGDI::DefaultControls
