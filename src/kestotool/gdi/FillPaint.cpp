#include "kestotool/gdi/FillPaint.h"

#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/CFillConical.h"
#include "kestotool/gdi/CFillDiscreteMesh.h"
#include "kestotool/gdi/CFillEllipse.h"
#include "kestotool/gdi/CFillFourColour.h"
#include "kestotool/gdi/CFillFractal.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillNone.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CFillSquare.h"
#include "kestotool/gdi/CFillThreeColour.h"
#include "kestotool/gdi/CFillVector.h"
#include "kestotool/raster/Composite.h"
#include "kestotool/raster/PreparedPaint.h"

#include <algorithm>
#include <cmath>
#include <mutex>
#include <numbers>
#include <utility>

namespace KestoGDI {

namespace {

using Kesto2D::K2DDblPoint;
using Kesto2D::K2DLtGeneral;
using Kesto2D::K2DVector;
using KestoRaster::Paint;

// A vector fill's cell is painted at most this many pixels a side.
constexpr int kMaxTileSide = 2048;

KestoRaster::Rgba ToRgba(const CColour& colour)
{
    const COLORREF rgb = colour.GetRGB();
    return {static_cast<std::uint8_t>(KestoPlatform::GetRValue(rgb)),
            static_cast<std::uint8_t>(KestoPlatform::GetGValue(rgb)),
            static_cast<std::uint8_t>(KestoPlatform::GetBValue(rgb)), static_cast<std::uint8_t>(colour.GetAlpha())};
}

// A bitmap's pixels as the renderer takes them, made once per bitmap for as long as a paint
// holds them: fills that share a bitmap (and the many fills a drag makes) share one copy. An
// entry keeps its bitmap, so that no other bitmap can take its address while the entry lives.
std::shared_ptr<const Paint::Image> ImageOf(const CLtBitmap& bitmap)
{
    struct Entry {
        RefPtr<const CLtBitmap> bitmap;
        std::weak_ptr<const Paint::Image> image;
    };
    static std::mutex guard;
    static std::vector<Entry> made;
    const std::lock_guard lock(guard);
    std::erase_if(made, [](const Entry& e) { return e.image.expired(); });
    for (const Entry& e : made)
        if (e.bitmap.get() == &bitmap)
            if (std::shared_ptr<const Paint::Image> image = e.image.lock())
                return image;
    auto image = std::make_shared<Paint::Image>();
    image->width = bitmap.GetWidth();
    image->height = bitmap.GetHeight();
    image->argb.assign(bitmap.GetBits(), bitmap.GetBits() + static_cast<std::size_t>(image->width) * image->height);
    made.push_back({RefPtr<const CLtBitmap>(&bitmap), image});
    return image;
}

class PaintOfKind final : public ConstFillVisitor {
public:
    explicit PaintOfKind(double pixelsPerUnit) : m_pixelsPerUnit(pixelsPerUnit) {}

    std::optional<Paint> paint;

    void Visit(const CFillNone& fill) override { Solid(fill, {0, 0, 0, 0}); }
    void Visit(const CFillSolid& fill) override { Solid(fill, ToRgba(fill.GetColour())); }
    void Visit(const CFillLinear& fill) override { Ramp(Paint::Kind::Linear, fill); }
    void Visit(const CFillRadial& fill) override { Ramp(Paint::Kind::Radial, fill); }
    void Visit(const CFillEllipse& fill) override { Ramp(Paint::Kind::Elliptical, fill); }
    void Visit(const CFillConical& fill) override { Ramp(Paint::Kind::Conical, fill); }
    void Visit(const CFillSquare& fill) override { Ramp(Paint::Kind::Square, fill); }
    void Visit(const CFillThreeColour& fill) override { Corners(Paint::Kind::ThreeColour, fill); }
    void Visit(const CFillFourColour& fill) override { Corners(Paint::Kind::FourColour, fill); }
    void Visit(const CFillFractal& fill) override
    {
        Ramp(Paint::Kind::Plasma, fill);
        paint->plasma = {fill.GetSeed(), fill.GetGrain(), fill.GetResolution()};
        paint->mirroredTiles = fill.GetTileInverted();
    }
    void Visit(const CFillBitmap& fill) override
    {
        Paint& p = Start(Paint::Kind::Bitmap, fill);
        Stops(fill);
        p.mirroredTiles = fill.WantInvertedTiling();
        p.recolour = fill.GetGradientRecolour();
        if (const CLtBitmap* bitmap = fill.GetBitmapForFill(); bitmap && !bitmap->IsEmpty())
            p.image = ImageOf(*bitmap);
    }
    void Visit(const CFillDiscreteMesh&) override {}
    void Visit(const CFillVector& fill) override;

private:
    double m_pixelsPerUnit;

    Paint& Start(Paint::Kind kind, const CFill& fill)
    {
        paint.emplace();
        paint->kind = kind;
        paint->transparency = fill.IsTransparency();
        for (int i = 0; i < fill.GetControlCount(); ++i) {
            const K2DDblPoint p = fill.GetControlPoint(i);
            paint->points.push_back({p.x, p.y});
        }
        return *paint;
    }
    void Solid(const CFill& fill, KestoRaster::Rgba colour) { Start(Paint::Kind::Solid, fill).colours = {colour}; }
    void Ramp(Paint::Kind kind, const CFillGradient& fill)
    {
        Start(kind, fill);
        Stops(fill);
    }
    void Stops(const CFillWithStops& fill)
    {
        for (const CColourIntPair& stop : fill.GetColourIntPairs())
            paint->stops.push_back({static_cast<double>(stop.GetValue()), ToRgba(stop.GetColour()),
                                    stop.GetSpline().GetC1(), stop.GetSpline().GetC2()});
    }
    void Corners(Paint::Kind kind, const CFillGradient& fill)
    {
        Paint& p = Start(kind, fill);
        for (const CColourIntPair& stop : fill.GetColourIntPairs())
            p.colours.push_back(ToRgba(stop.GetColour()));
        // A four-colour list goes round the figure (P0, P1, P3, P2); the paint wants point order.
        if (kind == Paint::Kind::FourColour && p.colours.size() == 4)
            std::swap(p.colours[2], p.colours[3]);
    }
};

void PaintOfKind::Visit(const CFillVector& fill)
{
    Paint& p = Start(Paint::Kind::Bitmap, fill);
    p.points.clear();
    const std::optional<FillPaint::VectorGrid> grid = FillPaint::GridOf(fill, m_pixelsPerUnit);
    if (!grid)
        return;
    p.points = {grid->origin, {grid->origin.x + grid->a.x, grid->origin.y + grid->a.y},
                {grid->origin.x + grid->b.x, grid->origin.y + grid->b.y}};
    const RefPtr<const CLtBitmap> tile = fill.GetMetaInstance()->Tile(grid->width, grid->height, grid->instances);
    if (!tile || tile->IsEmpty())
        return;
    auto image = std::make_shared<Paint::Image>();
    image->width = tile->GetWidth();
    image->height = tile->GetHeight();
    image->argb.assign(tile->GetBits(), tile->GetBits() + static_cast<std::size_t>(image->width) * image->height);
    p.image = std::move(image);
}

} // namespace

// The grid of a vector fill repeats one cell, spanned from the tile's origin by the steps to
// its x and y neighbours; with turned neighbours it repeats every second instance, so the
// painted cell holds 2 x 2 instances.
std::optional<FillPaint::VectorGrid> FillPaint::GridOf(const CFillVector& fill, double pixelsPerUnit)
{
    const CFillVector::Box placed = fill.GetPlacedBox();
    const CFillVector::Box box{fill.ToSpread(placed.origin), fill.ToSpread(placed.xEnd), fill.ToSpread(placed.yEnd)};
    const CFillVector::Neighbours next = fill.NeighbourOrigins(
        box, {1, 1}, CFillVector::TileRotationTransform(CFillVector::MeasureTileRotation(box.origin, box.yEnd)));
    const bool turned = fill.GetAdditionalRotation() != 0 || fill.GetAdditionalRotation2() != 0;
    const int period = turned ? 2 : 1;
    const K2DVector a = (next.a - box.origin) * period;
    const K2DVector b = (next.b - box.origin) * period;
    const K2DVector x = box.xEnd - box.origin;
    const K2DVector y = box.yEnd - box.origin;
    if (!fill.GetMetaInstance() || a.Cross(b) == 0 || x.Cross(y) == 0 || !(pixelsPerUnit > 0))
        return std::nullopt;
    const auto side = [&](const K2DVector& v) {
        return static_cast<int>(std::clamp(std::round(v.Length() * pixelsPerUnit), 1.0, double(kMaxTileSide)));
    };
    VectorGrid grid{{box.origin.x, box.origin.y}, {a.dx, a.dy}, {b.dx, b.dy}, side(a), side(b), {}};
    // Spread space to tile pixels: the inverse of the cell's map.
    const K2DLtGeneral cell(a.dx / grid.width, a.dy / grid.width, b.dx / grid.height, b.dy / grid.height, box.origin.x,
                            box.origin.y);
    const K2DLtGeneral toTile = cell.GetInverse();
    const K2DLtGeneral place = fill.DrawingToBox(box);
    const K2DDblPoint centre = box.origin + (x + y) * 0.5;
    for (int j = 0; j < period; ++j) {
        for (int i = 0; i < period; ++i) {
            const double degrees = (i ? fill.GetAdditionalRotation2() : 0) + (j ? fill.GetAdditionalRotation() : 0);
            // A tile's turn is measured clockwise on screen, as its rotation handle measures it.
            const K2DLtGeneral turn = K2DLtGeneral::About(
                centre, Kesto2D::K2DLtRotate(Kesto2D::KCAngle::FromScreenRadians(degrees * std::numbers::pi / 180)));
            const K2DLtGeneral m =
                place.Then(turn)
                    .Then(Kesto2D::K2DLtTranslate((next.a - box.origin).dx * i + (next.b - box.origin).dx * j,
                                                  (next.a - box.origin).dy * i + (next.b - box.origin).dy * j))
                    .Then(toTile);
            grid.instances.push_back(
                {m.GetM11(), m.GetM12(), m.GetM21(), m.GetM22(), m.GetTranslation().dx, m.GetTranslation().dy});
        }
    }
    return grid;
}

std::optional<KestoRaster::Paint> FillPaint::From(const CFill& fill, double pixelsPerUnit)
{
    PaintOfKind visitor(pixelsPerUnit);
    fill.Accept(visitor);
    return std::move(visitor.paint);
}

bool FillPaint::PaintOver(const CFill& fill, const KestoRaster::Affine& fillToDevice, double pixelsPerUnit,
                          const KestoRaster::Target& canvas, const KestoRaster::Clip& clip)
{
    using namespace KestoRaster;
    const std::optional<Paint> paint = From(fill, pixelsPerUnit);
    if (!paint)
        return false;
    const auto pixelCount = static_cast<std::size_t>(canvas.width) * static_cast<std::size_t>(canvas.height);
    std::vector<std::uint32_t> layer(pixelCount, 0);
    const Target fillTarget{layer.data(), canvas.width, canvas.height, canvas.width * 4, Output::Argb32};
    if (!fill.IsTransparency()) {
        Render(PreparedPaint(*paint, fillToDevice, Output::Argb32), fillTarget, clip);
        CompositeOver(canvas, fillTarget, nullptr, clip);
        return true;
    }
    std::vector<std::uint8_t> mask(pixelCount, 0);
    const Target maskTarget{mask.data(), canvas.width, canvas.height, canvas.width, Output::Mask8};
    Render(PreparedPaint(*paint, fillToDevice, Output::Mask8), maskTarget, clip);
    Paint shaped;
    shaped.colours = {{30, 60, 160, 255}};
    Render(PreparedPaint(shaped, {}, Output::Argb32), fillTarget, clip);
    CompositeOver(canvas, fillTarget, &maskTarget, clip);
    return true;
}

} // namespace KestoGDI
