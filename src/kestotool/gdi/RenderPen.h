#pragma once

#include "kestotool/gdi/KestoGDIImports.h"

namespace KestoGDI {

// How a line or outline is stroked: an RGB colour, an alpha (0..255) and a width in target units.
struct RenderPen {
    COLORREF colour = 0;
    int alpha = 255;
    double width = 1;
    friend bool operator==(const RenderPen&, const RenderPen&) = default;
};

} // namespace KestoGDI
