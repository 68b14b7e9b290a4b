#pragma once

#include "kestotool/gdi/CFill.h"
#include "kestotool/gdi/CFillVector.h"
#include "kestotool/platform/Export.h"
#include "kestotool/raster/Paint.h"

#include <optional>
#include <vector>

namespace KestoGDI {

// Turns a fill or transparency into what the renderer paints: its kind's geometry from the
// control points (object space), its stops or corner colours as displayed (tint applied) with
// their alpha, and for a transparency its grey levels. A host prepares the paint once per
// committed fill (fills never change while shared) and renders it at each placement.
class KESTO_API FillPaint {
public:
    FillPaint() = delete;

    // The paint of fill. None answers a clear solid paint, a bitmap fill without a bitmap (or a
    // vector fill without a drawing) a clear bitmap paint. A vector fill is painted as a bitmap
    // tile of its grid's cell, drawn at pixelsPerUnit device pixels per unit of the fill's
    // space. The discrete mesh, which the renderer does not paint, answers nothing.
    static std::optional<KestoRaster::Paint> From(const CFill& fill, double pixelsPerUnit = 1);

    // The grid a vector fill repeats, as its paint tiles it: one cell from origin along the
    // steps a and b (the fill's space), width x height pixels at pixelsPerUnit, holding the
    // drawing under each map of instances (drawing to cell pixels, later over earlier; what
    // one puts outside the cell comes in again from the other side). Nothing for a fill without
    // a drawing, a degenerate grid or a scale that is not positive.
    struct VectorGrid {
        KestoRaster::Point origin, a, b;
        int width = 0, height = 0;
        std::vector<KestoRaster::Affine> instances;
    };
    static std::optional<VectorGrid> GridOf(const CFillVector& fill, double pixelsPerUnit);

    // Shows fill over what canvas (an Argb32 target) holds inside clip, placed by fillToDevice
    // at pixelsPerUnit: a fill composited over it, a transparency as the dark blue it would let
    // through. False, painting nothing, for a fill the renderer does not paint.
    static bool PaintOver(const CFill& fill, const KestoRaster::Affine& fillToDevice, double pixelsPerUnit,
                          const KestoRaster::Target& canvas, const KestoRaster::Clip& clip);
};

} // namespace KestoGDI
