#include "kestotool/gdi/VectorDrawing.h"

#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CRGBColour.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace KestoGDI;

namespace {

KestoRaster::Path Box(double x0, double y0, double x1, double y1)
{
    return KestoRaster::Path::Rectangle({x0, y0}, {x1, y1});
}

RefPtr<const CFill> Solid(KestoPlatform::COLORREF c)
{
    return KestoKernel::MakeRef<CFillSolid>(CRGBColour(c), true);
}

} // namespace

TEST(VectorDrawing, ShapesArePaintedInOrderIntoATileOfTheScaledSize)
{
    VectorDrawing drawing(10, 10);
    drawing.AddShape(Box(0, 0, 10, 10), Solid(KestoPlatform::RGB(0, 0, 255)));
    drawing.AddShape(Box(5, 0, 10, 5), Solid(KestoPlatform::RGB(255, 0, 0)));
    drawing.AddShape(Box(0, 5, 5, 10), nullptr); // no fill: left out
    const RefPtr<const CLtBitmap> tile = drawing.Tile(2, 3);
    ASSERT_TRUE(tile);
    EXPECT_EQ(tile->GetWidth(), 20);
    EXPECT_EQ(tile->GetHeight(), 30);
    EXPECT_EQ(tile->GetPixel(2, 25), 0xFF0000FFu);
    EXPECT_EQ(tile->GetPixel(15, 5), 0xFFFF0000u);
    EXPECT_EQ(tile->GetPixel(15, 25), 0xFF0000FFu);
}

TEST(VectorDrawing, ATileIsKeptPerSizeAndBadScalesGiveNone)
{
    VectorDrawing drawing(16, 8);
    CFillLinear ramp; // black to white across the drawing
    ramp.SetControls({0, 0}, {16, 0});
    drawing.AddShape(Box(0, 0, 16, 8), ramp.Clone());
    const RefPtr<const CLtBitmap> once = drawing.Tile(1, 1);
    ASSERT_TRUE(once);
    EXPECT_EQ(drawing.Tile(1, 1).get(), once.get());
    EXPECT_LT(once->GetPixel(0, 4) & 0xFF, 32u);
    EXPECT_GT(once->GetPixel(15, 4) & 0xFF, 224u);
    EXPECT_NE(drawing.Tile(2, 1).get(), once.get());
    EXPECT_FALSE(drawing.Tile(0, 1));
    EXPECT_FALSE(drawing.Tile(1, std::nan("")));
}

// A tile's cost is what its shapes' copies reach, not shapes times copies times the tile: fifty
// small shapes in four turned instances over a 200 x 200 tile.
TEST(VectorDrawing, ATilePaintsEachCopyOfAShapeOnlyOverThePixelsItReaches)
{
    VectorDrawing drawing(100, 100);
    for (int i = 0; i < 50; ++i) {
        const double x = (i % 10) * 10, y = (i / 10) * 20;
        drawing.AddShape(Box(x, y, x + 4, y + 4), Solid(KestoPlatform::RGB(0, 0, 255)));
    }
    const double c = std::cos(0.7), s = std::sin(0.7);
    const KestoRaster::Affine instances[] = {
        {c, s, -s, c, 0, 0}, {c, s, -s, c, 100, 0}, {c, s, -s, c, 0, 100}, {c, s, -s, c, 100, 100}};
    ASSERT_TRUE(drawing.Tile(200, 200, instances));
    // A turned 4 x 4 box spans under 6 x 6 pixels, 8 x 8 with its anti-aliasing rim; a copy
    // that wraps round the tile's edge is painted twice at most each way.
    const std::int64_t copies = 4 * 50;
    EXPECT_GE(drawing.PaintedPixels(), copies * 16);
    EXPECT_LE(drawing.PaintedPixels(), copies * 8 * 8 * 2);
    drawing.Tile(200, 200, instances);
    EXPECT_LE(drawing.PaintedPixels(), copies * 8 * 8 * 2); // the kept tile costs nothing again
}

// A cell sheared so that every copy of every shape spans the whole tile would cost copies times
// shapes times the tile; the painting stops at its budget (4 million pixels for a small tile).
TEST(VectorDrawing, ATileWhoseCopiesEachSpanItStopsAtItsBudget)
{
    VectorDrawing drawing(10, 10);
    for (int i = 0; i < 200; ++i)
        drawing.AddShape(Box(0, 0, 10, 10), Solid(KestoPlatform::RGB(0, 0, 255)));
    const KestoRaster::Affine sheared{30, 0, 30, 30, 0, 0};
    const RefPtr<const CLtBitmap> tile = drawing.Tile(64, 64, std::span(&sheared, 1));
    ASSERT_TRUE(tile);
    EXPECT_EQ(tile->GetPixel(32, 32), 0xFF0000FFu);
    EXPECT_GT(drawing.PaintedPixels(), 1 << 21);
    EXPECT_LE(drawing.PaintedPixels(), (1 << 22) + 64 * 64);
}
