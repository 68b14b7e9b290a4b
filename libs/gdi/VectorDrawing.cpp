#include "gdi/VectorDrawing.h"

#include "gdi/FillPaint.h"
#include "raster/Composite.h"
#include "raster/PreparedPaint.h"

#include <algorithm>
#include <cmath>

namespace KestoGDI {

namespace {

// Tiles of a few sizes are kept; a drawing shown at many zooms lets the oldest go.
constexpr std::size_t kKeptTiles = 8;

} // namespace

VectorDrawing::VectorDrawing(int width, int height) : m_width(std::max(width, 1)), m_height(std::max(height, 1))
{
}

void VectorDrawing::AddShape(KestoRaster::Path outline, RefPtr<const CFill> fill)
{
    m_shapes.push_back({std::move(outline), std::move(fill)});
}

RefPtr<const CLtBitmap> VectorDrawing::Tile(double scaleX, double scaleY) const
{
    if (!(std::isfinite(scaleX) && std::isfinite(scaleY) && scaleX > 0 && scaleY > 0))
        return {};
    const auto side = [](double v) { return static_cast<int>(std::clamp(std::round(v), 1.0, double(CLtBitmap::MaxSide))); };
    const std::pair<int, int> size{side(m_width * scaleX), side(m_height * scaleY)};
    {
        const std::lock_guard lock(m_tilesLock);
        if (const auto it = m_tiles.find(size); it != m_tiles.end())
            return it->second;
    }
    RefPtr<const CLtBitmap> tile = Paint(size.first, size.second);
    const std::lock_guard lock(m_tilesLock);
    if (m_tiles.size() >= kKeptTiles)
        m_tiles.erase(m_tiles.begin());
    return m_tiles.emplace(size, tile).first->second;
}

RefPtr<const CLtBitmap> VectorDrawing::Paint(int width, int height) const
{
    using namespace KestoRaster;
    const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    std::vector<std::uint32_t> canvas(count, 0), layer(count);
    std::vector<std::uint8_t> coverage(count);
    const Target target{canvas.data(), width, height, width * 4, Output::Argb32};
    const Target fillLayer{layer.data(), width, height, width * 4, Output::Argb32};
    const Target mask{coverage.data(), width, height, width, Output::Mask8};
    const Clip all{0, 0, width, height};
    const Affine place{static_cast<double>(width) / m_width, 0, 0, static_cast<double>(height) / m_height, 0, 0};
    for (const Shape& shape : m_shapes) {
        if (!shape.fill)
            continue;
        const std::optional<KestoRaster::Paint> paint = FillPaint::From(*shape.fill);
        if (!paint)
            continue;
        Render(PreparedPaint(*paint, place, Output::Argb32), fillLayer, all);
        RenderCoverage(shape.outline, place, mask, all);
        CompositeOver(target, fillLayer, &mask, all);
    }
    // The bitmap holds straight alpha.
    auto bitmap = Kernel::MakeRef<CLtBitmap>(width, height);
    std::uint32_t* bits = bitmap->GetBits();
    for (std::size_t i = 0; i < count; ++i)
        bits[i] = Straight(canvas[i]);
    return bitmap;
}

std::size_t VectorDrawing::Measure() const
{
    std::size_t bytes = sizeof(*this) + m_shapes.capacity() * sizeof(Shape);
    const std::lock_guard lock(m_tilesLock);
    for (const auto& [size, tile] : m_tiles)
        bytes += tile->Measure();
    return bytes;
}

} // namespace KestoGDI
