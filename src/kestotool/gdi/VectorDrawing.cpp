#include "kestotool/gdi/VectorDrawing.h"

#include "kestotool/gdi/FillPaint.h"
#include "kestotool/raster/Composite.h"
#include "kestotool/raster/PreparedPaint.h"

#include <algorithm>
#include <cmath>

namespace KestoGDI {

namespace {

// Tiles of a few sizes are kept; a drawing shown at many zooms lets the oldest go.
constexpr std::size_t kKeptTiles = 8;
// At most this many copies of an instance each way from the tile when it wraps round.
constexpr int kMaxCopies = 4;
// A tile's painting stops once its copies of shapes have covered this many times its area,
// within the floor and ceiling below (small tiles of many shapes; a second or so of work). A
// drawing costs about the sum of its shapes' boxes over its own area, twice for a turned tile;
// a cell sheared or turned so that each of its copies spans the whole tile, over and over,
// would otherwise cost copies times shapes times the tile, minutes for a large one.
constexpr std::int64_t kWorkPerPixel = 64;
constexpr std::int64_t kMinWork = std::int64_t(1) << 22;
constexpr std::int64_t kMaxWork = std::int64_t(1) << 27;

} // namespace

VectorDrawing::VectorDrawing(int width, int height) : m_width(std::max(width, 1)), m_height(std::max(height, 1)) {}

void VectorDrawing::AddShape(KestoRaster::Path outline, RefPtr<const CFill> fill)
{
    m_shapes.push_back({std::move(outline), std::move(fill)});
}

RefPtr<const CLtBitmap> VectorDrawing::Tile(double scaleX, double scaleY) const
{
    if (!(std::isfinite(scaleX) && std::isfinite(scaleY) && scaleX > 0 && scaleY > 0))
        return {};
    const auto side = [](double v) {
        return static_cast<int>(std::clamp(std::round(v), 1.0, double(CLtBitmap::MaxSide)));
    };
    const int width = side(m_width * scaleX);
    const int height = side(m_height * scaleY);
    const KestoRaster::Affine place{static_cast<double>(width) / m_width,   0, 0,
                                    static_cast<double>(height) / m_height, 0, 0};
    return Tile(width, height, std::span(&place, 1));
}

RefPtr<const CLtBitmap> VectorDrawing::Tile(int width, int height, std::span<const KestoRaster::Affine> instances) const
{
    if (width < 1 || height < 1 || width > CLtBitmap::MaxSide || height > CLtBitmap::MaxSide)
        return {};
    std::vector<double> key{static_cast<double>(width), static_cast<double>(height)};
    for (const KestoRaster::Affine& m : instances)
        key.insert(key.end(), {m.a, m.b, m.c, m.d, m.e, m.f});
    if (!std::all_of(key.begin(), key.end(), [](double v) { return std::isfinite(v); }))
        return {};
    {
        const std::lock_guard lock(m_tilesLock);
        if (const auto it = m_tiles.find(key); it != m_tiles.end())
            return it->second;
    }
    RefPtr<const CLtBitmap> tile = Paint(width, height, instances);
    const std::lock_guard lock(m_tilesLock);
    if (m_tiles.size() >= kKeptTiles)
        m_tiles.erase(m_tiles.begin());
    return m_tiles.emplace(std::move(key), tile).first->second;
}

RefPtr<const CLtBitmap> VectorDrawing::Paint(int width, int height,
                                             std::span<const KestoRaster::Affine> instances) const
{
    using namespace KestoRaster;
    const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    std::vector<std::uint32_t> canvas(count, 0), layer(count);
    std::vector<std::uint8_t> coverage(count);
    const Target target{canvas.data(), width, height, width * 4, Output::Argb32};
    const Target fillLayer{layer.data(), width, height, width * 4, Output::Argb32};
    const Target mask{coverage.data(), width, height, width, Output::Mask8};
    // Each shape's paint once, and the box of its outline (its points hold the curves), so that
    // a copy is painted over the pixels it can touch and not at all where it misses the tile.
    struct Painted {
        const Shape* shape;
        KestoRaster::Paint paint;
        Point low, high;
    };
    std::vector<Painted> painted;
    for (const Shape& shape : m_shapes) {
        std::optional<KestoRaster::Paint> paint = shape.fill ? FillPaint::From(*shape.fill) : std::nullopt;
        if (!paint || shape.outline.Points().empty())
            continue;
        Painted p{&shape, std::move(*paint), {INFINITY, INFINITY}, {-INFINITY, -INFINITY}};
        for (const Point q : shape.outline.Points()) {
            p.low = {std::min(p.low.x, q.x), std::min(p.low.y, q.y)};
            p.high = {std::max(p.high.x, q.x), std::max(p.high.y, q.y)};
        }
        painted.push_back(std::move(p));
    }
    const std::int64_t budget = std::clamp(kWorkPerPixel * static_cast<std::int64_t>(count), kMinWork, kMaxWork);
    std::int64_t work = 0;
    [&] {
        for (const Affine& instance : instances) {
            // The copies of the instance, one tile apart, that reach into the tile.
            double x0 = INFINITY, x1 = -INFINITY, y0 = INFINITY, y1 = -INFINITY;
            for (const Point corner : {Point{0, 0}, Point{double(m_width), 0}, Point{0, double(m_height)},
                                       Point{double(m_width), double(m_height)}}) {
                const Point p = instance.Apply(corner);
                x0 = std::min(x0, p.x), x1 = std::max(x1, p.x), y0 = std::min(y0, p.y), y1 = std::max(y1, p.y);
            }
            const auto copies = [](double lo, double hi, int side) {
                // A drawing many tiles across gets as many copies as fit a few tiles each way.
                return std::pair{std::max(-kMaxCopies, static_cast<int>(std::floor(-hi / side)) + 1),
                                 std::min(kMaxCopies, static_cast<int>(std::ceil((side - lo) / side)) - 1)};
            };
            const auto [i0, i1] = copies(x0, x1, width);
            const auto [j0, j1] = copies(y0, y1, height);
            for (int j = j0; j <= j1; ++j) {
                for (int i = i0; i <= i1; ++i) {
                    Affine place = instance;
                    place.e += static_cast<double>(i) * width;
                    place.f += static_cast<double>(j) * height;
                    for (const Painted& p : painted) {
                        double left = INFINITY, top = INFINITY, right = -INFINITY, bottom = -INFINITY;
                        for (const Point corner : {p.low, Point{p.high.x, p.low.y}, Point{p.low.x, p.high.y}, p.high}) {
                            const Point d = place.Apply(corner);
                            left = std::min(left, d.x), right = std::max(right, d.x);
                            top = std::min(top, d.y), bottom = std::max(bottom, d.y);
                        }
                        // Whole pixels, a pixel wider for anti-aliasing, inside the tile.
                        const Clip clip{static_cast<int>(std::clamp(std::floor(left) - 1, 0.0, double(width))),
                                        static_cast<int>(std::clamp(std::floor(top) - 1, 0.0, double(height))),
                                        static_cast<int>(std::clamp(std::ceil(right) + 1, 0.0, double(width))),
                                        static_cast<int>(std::clamp(std::ceil(bottom) + 1, 0.0, double(height)))};
                        if (clip.x1 <= clip.x0 || clip.y1 <= clip.y0)
                            continue;
                        if (work >= budget)
                            return;
                        const std::int64_t area = std::int64_t(clip.x1 - clip.x0) * (clip.y1 - clip.y0);
                        work += area;
                        m_paintedPixels += area;
                        Render(PreparedPaint(p.paint, place, Output::Argb32), fillLayer, clip);
                        RenderCoverage(p.shape->outline, place, mask, clip);
                        CompositeOver(target, fillLayer, &mask, clip);
                    }
                }
            }
        }
    }();
    // The bitmap holds straight alpha.
    auto bitmap = KestoKernel::MakeRef<CLtBitmap>(width, height);
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
