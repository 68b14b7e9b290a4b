#pragma once

#include "kestotool/gdi/KestoGDIImports.h"

namespace KestoGDI {

// How an area is filled: an RGB colour and an alpha (0..255). A flat transparency is a brush
// with an alpha below 255.
struct RenderBrush {
    COLORREF colour = 0;
    int alpha = 255;
    friend bool operator==(const RenderBrush&, const RenderBrush&) = default;
};

} // namespace KestoGDI
