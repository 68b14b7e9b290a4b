#pragma once

#include "kestotool/platform/Export.h"
#include "kestotool/raster/Paint.h"

#include <memory>
#include <vector>

namespace KestoRaster {

namespace Shading {
struct Geometry;
}

// A paint made ready for one placement and one output: the device -> paint map, the solved
// geometry and, for the ramp kinds, a colour table. Immutable and cheap to copy; the colour
// table is shared, so preparing the same paint at a new placement (a drag moving geometry)
// reuses it through Prepare's previous argument.
class KESTO_API PreparedPaint {
public:
    // Ramp kinds keep this many samples of their ramp, 0 .. 10000 evenly.
    static constexpr int TableSize = 256;

    // paint placed by paintToDevice, for output; previous, when given and its paint has the same
    // colours, lends its table.
    PreparedPaint(const Paint& paint, const Affine& paintToDevice, Output output,
                  const PreparedPaint* previous = nullptr);

    const Paint& GetPaint() const { return *m_paint; }
    Output GetOutput() const { return m_output; }
    const Affine& DeviceToPaint() const { return m_deviceToPaint; }
    // The solved geometry, for the renderer's own use.
    const Shading::Geometry& GetGeometry() const;
    bool IsRamp() const;
    // The table's words (ARGB output) or bytes (mask output); empty for non-ramp kinds.
    const std::vector<std::uint32_t>& Table() const { return *m_table; }
    bool SharesTableWith(const PreparedPaint& other) const { return m_table == other.m_table; }
    bool SharesTexelsWith(const PreparedPaint& other) const { return m_texels == other.m_texels; }
    // The plasma kind's tile; empty for other kinds.
    const std::vector<float>& PlasmaTile() const;
    // The tile's cells for bilinear sampling: (n + 1) x (n + 1) of them over the tile padded by
    // one sample on every side as the tiling continues, each the four samples around it as
    // 15-bit intensities (0 .. 32767, for signed 16-bit multiplies): bits 0-15 top left, 16-31
    // top right, 32-47 bottom left, 48-63 bottom right. One load gives a pixel all it blends.
    // Empty for other kinds.
    const std::vector<std::uint64_t>& PlasmaCells() const;
    // The bitmap kind's pixels as output values, padded by one texel on every side as the tiling
    // continues ((w + 2) x (h + 2)); empty for other kinds or without an image.
    const std::vector<std::uint32_t>& Texels() const { return *m_texels; }
    // A mask's texels as cells for bilinear sampling: (w + 1) x (h + 1) of them over the padded
    // texels, each the four around it, a byte each from the low one: top left, top right,
    // bottom left, bottom right. Empty for colour output and other kinds.
    const std::vector<std::uint32_t>& MaskCells() const { return *m_maskCells; }

private:
    std::shared_ptr<const Paint> m_paint;
    Output m_output;
    Affine m_deviceToPaint;
    std::shared_ptr<const Shading::Geometry> m_geometry;
    std::shared_ptr<const std::vector<std::uint32_t>> m_table;
    std::shared_ptr<const std::vector<float>> m_plasmaTile;
    std::shared_ptr<const std::vector<std::uint64_t>> m_plasmaCells;
    std::shared_ptr<const std::vector<std::uint32_t>> m_texels;
    std::shared_ptr<const std::vector<std::uint32_t>> m_maskCells;
};

// Paints every pixel of the clip (inside the target) with the prepared paint, sampling pixel
// centres, replacing what was there. Ramp kinds read their table; the others are computed
// per pixel.
KESTO_API void Render(const PreparedPaint& paint, const Target& target, const Clip& clip);

// The same by the definition, in double precision and without tables: the reference that
// Render is tested against.
KESTO_API void RenderReference(const Paint& paint, const Affine& paintToDevice, const Target& target, const Clip& clip);

} // namespace KestoRaster
