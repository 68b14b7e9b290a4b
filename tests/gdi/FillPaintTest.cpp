#include "kestotool/gdi/CFillDiscreteMesh.h"
#include "kestotool/gdi/CFillFourColour.h"
#include "kestotool/gdi/CFillFractal.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillThreeColour.h"
#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/CTransparencyLinear.h"
#include "kestotool/gdi/FillPaint.h"

#include <gtest/gtest.h>

using namespace KestoGDI;
using KestoRaster::Paint;
using KestoRaster::Rgba;

TEST(FillPaint, ControlPointsStopsAndColoursAsDisplayed)
{
    CFillLinear linear;
    linear.SetControls(K2DDblPoint(10, 20), K2DDblPoint(300, 20));
    ColourIntPairs stops;
    CRGBColour tinted(KestoPlatform::RGB(100, 0, 200), nullptr, 50, 128);
    stops.Add(tinted, 0);
    stops.Add(CRGBColour(KestoPlatform::RGB(0, 255, 0)), 10000);
    linear.SetColourIntPairs(stops);
    const auto paint = FillPaint::From(linear);
    ASSERT_TRUE(paint);
    EXPECT_EQ(paint->kind, Paint::Kind::Linear);
    EXPECT_FALSE(paint->transparency);
    ASSERT_EQ(paint->points.size(), 2u);
    EXPECT_EQ(paint->points[1].x, 300);
    ASSERT_EQ(paint->stops.size(), 2u);
    const COLORREF shown = tinted.GetRGB();
    EXPECT_EQ(paint->stops[0].colour, (Rgba{static_cast<std::uint8_t>(KestoPlatform::GetRValue(shown)),
                                            static_cast<std::uint8_t>(KestoPlatform::GetGValue(shown)),
                                            static_cast<std::uint8_t>(KestoPlatform::GetBValue(shown)), 128}));
    EXPECT_EQ(paint->stops[1].position, 10000);
}

TEST(FillPaint, TransparenciesPaintTheirLevelsAndCornerKindsTheirCorners)
{
    CTransparencyLinear transparency;
    const auto levels = FillPaint::From(transparency);
    ASSERT_TRUE(levels);
    EXPECT_TRUE(levels->transparency);
    EXPECT_EQ(levels->stops.back().colour.r, 255); // the default ends clear

    const auto corners = FillPaint::From(CFillThreeColour());
    ASSERT_TRUE(corners);
    EXPECT_EQ(corners->kind, Paint::Kind::ThreeColour);
    EXPECT_EQ(corners->colours.size(), 3u);
    EXPECT_TRUE(corners->stops.empty());

    // A four-colour list goes round the figure (P0, P1, P3, P2); the paint is in point order.
    CFillFourColour four;
    KestoGDI::ColourIntPairs round;
    for (int i = 0; i < 4; ++i)
        round.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(10 * i, 0, 0)), 0);
    four.SetColourIntPairs(round);
    const auto quad = FillPaint::From(four);
    ASSERT_TRUE(quad);
    EXPECT_EQ(quad->colours[2].r, 30); // P2's colour is the list's last entry
    EXPECT_EQ(quad->colours[3].r, 20); // P3's is entry 2, its handle's

    CFillFractal plasma;
    plasma.SetSeed(42);
    plasma.SetTileInverted(false);
    const auto fractal = FillPaint::From(plasma);
    ASSERT_TRUE(fractal);
    EXPECT_EQ(fractal->kind, Paint::Kind::Plasma);
    EXPECT_EQ(fractal->plasma.seed, 42u);
    EXPECT_FALSE(fractal->mirroredTiles);

    EXPECT_FALSE(FillPaint::From(CFillDiscreteMesh())) << "not painted yet";
}
