#include "gdi/FillPaint.h"

#include "gdi/CFillBitmap.h"
#include "gdi/CFillConical.h"
#include "gdi/CFillDiscreteMesh.h"
#include "gdi/CFillEllipse.h"
#include "gdi/CFillFourColour.h"
#include "gdi/CFillFractal.h"
#include "gdi/CFillLinear.h"
#include "gdi/CFillNone.h"
#include "gdi/CFillRadial.h"
#include "gdi/CFillSolid.h"
#include "gdi/CFillSquare.h"
#include "gdi/CFillThreeColour.h"
#include "gdi/CFillVector.h"

#include <utility>

namespace KestoGDI {

namespace {

using KestoRaster::Paint;

KestoRaster::Rgba ToRgba(const CColour& colour)
{
    const COLORREF rgb = colour.GetRGB();
    return {static_cast<std::uint8_t>(Platform::GetRValue(rgb)), static_cast<std::uint8_t>(Platform::GetGValue(rgb)),
            static_cast<std::uint8_t>(Platform::GetBValue(rgb)), static_cast<std::uint8_t>(colour.GetAlpha())};
}

class PaintOfKind final : public ConstFillVisitor {
public:
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
        if (const CLtBitmap* bitmap = fill.GetBitmapForFill(); bitmap && !bitmap->IsEmpty()) {
            auto image = std::make_shared<Paint::Image>();
            image->width = bitmap->GetWidth();
            image->height = bitmap->GetHeight();
            image->argb.assign(bitmap->GetBits(), bitmap->GetBits() + static_cast<std::size_t>(image->width) * image->height);
            p.image = std::move(image);
        }
    }
    void Visit(const CFillDiscreteMesh&) override {}
    void Visit(const CFillVector&) override {}

private:
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

} // namespace

std::optional<KestoRaster::Paint> FillPaint::From(const CFill& fill)
{
    PaintOfKind visitor;
    fill.Accept(visitor);
    return std::move(visitor.paint);
}

} // namespace KestoGDI
