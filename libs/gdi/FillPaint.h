#pragma once

#include "gdi/CFill.h"
#include "raster/Paint.h"

#include <optional>

namespace KestoGDI {

// Turns a fill or transparency into what the renderer paints: its kind's geometry from the
// control points (object space), its stops or corner colours as displayed (tint applied) with
// their alpha, and for a transparency its grey levels. A host prepares the paint once per
// committed fill (fills never change while shared) and renders it at each placement.
class FillPaint {
public:
    FillPaint() = delete;

    // The paint of fill. None answers a clear solid paint, a bitmap fill without a bitmap a
    // clear bitmap paint. The kinds the renderer does not paint yet (vector, discrete mesh)
    // answer nothing.
    static std::optional<KestoRaster::Paint> From(const CFill& fill);
};

} // namespace KestoGDI
