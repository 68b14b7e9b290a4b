#pragma once

#include "kestotool/gdi/CFill.h"
#include "kestotool/gdi/CLtBitmap.h"
#include "kestotool/kernel/CRefCount.h"
#include "kestotool/kernel/RefPtr.h"
#include "kestotool/platform/Export.h"
#include "kestotool/raster/Path.h"

#include <atomic>
#include <cstdint>
#include <map>
#include <mutex>
#include <span>
#include <utility>
#include <vector>

namespace KestoGDI {

// A small drawing of our own making: shapes of lines and cubic curves, each filled with a fill
// of this model (solid, or any kind the renderer paints, placed in the drawing's coordinates),
// painted in order over a clear background. Its coordinates run from (0, 0) to (width, height),
// y down. It is what a vector fill repeats; it never changes once built, so fills share it.
class KESTO_API VectorDrawing : public KestoKernel::CRefCount {
public:
    struct Shape {
        KestoRaster::Path outline;
        RefPtr<const CFill> fill;
    };

    // A side below 1 counts as 1.
    VectorDrawing(int width, int height);

    int GetWidth() const { return m_width; }
    int GetHeight() const { return m_height; }
    // A shape without a fill, or with one the renderer cannot paint, is ignored when painted.
    void AddShape(KestoRaster::Path outline, RefPtr<const CFill> fill);
    const std::vector<Shape>& GetShapes() const { return m_shapes; }

    // The drawing painted into a bitmap of round(width x scaleX) by round(height x scaleY)
    // pixels (at least 1 x 1, at most CLtBitmap::MaxSide a side), anti-aliased. Tiles are kept
    // per size, so that a fill drawn again at the same scale reuses its tile; null for a scale
    // that is not finite and positive.
    RefPtr<const CLtBitmap> Tile(double scaleX, double scaleY) const;
    // A width x height tile of a grid whose cell holds several instances of the drawing, each
    // under its own map from the drawing's coordinates to tile pixels (in order, later over
    // earlier). What an instance puts outside the tile comes in again from the other side, so
    // that the tile repeats without seams. Kept per size and maps like the tiles above; null
    // for a side outside 1..CLtBitmap::MaxSide or a map that is not finite.
    RefPtr<const CLtBitmap> Tile(int width, int height, std::span<const KestoRaster::Affine> instances) const;

    std::size_t Measure() const override;
    // Pixels rendered into tiles so far, each copy of a shape counting the area it was painted
    // over: the measure of what the drawing's tiles have cost.
    std::int64_t PaintedPixels() const { return m_paintedPixels; }

private:
    RefPtr<const CLtBitmap> Paint(int width, int height, std::span<const KestoRaster::Affine> instances) const;

    int m_width;
    int m_height;
    std::vector<Shape> m_shapes;
    mutable std::mutex m_tilesLock;
    // Keyed by the tile's size and its instances' maps.
    mutable std::map<std::vector<double>, RefPtr<const CLtBitmap>> m_tiles;
    mutable std::atomic<std::int64_t> m_paintedPixels = 0;
};

} // namespace KestoGDI
