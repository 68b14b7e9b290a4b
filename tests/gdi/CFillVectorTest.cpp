#include "kestotool/gdi/CFillVector.h"

#include <gtest/gtest.h>

#include <numbers>

using KestoGDI::CFillVector;
using Kesto2D::K2DDblPoint;
using KestoPlatform::CPoint;
using KestoPlatform::CRect;

namespace {

CFillVector Vector()
{
    return CFillVector(KestoKernel::MakeRef<KestoGDI::VectorDrawing>(400, 200));
}

} // namespace

TEST(CFillVector, ScalingToTheDrawingKeepsTheOriginAndTheAxesDirections)
{
    const CFillVector fill = Vector();
    struct Case {
        bool yLeads, fitAspect;
        K2DDblPoint x, y;
    } cases[] = {
        {false, false, {0, -400}, {200, 0}}, // the drawing's own lengths
        {false, true, {0, -1000}, {500, 0}}, // x keeps its 1000
        {true, true, {0, -600}, {300, 0}},   // y keeps its 300
    };
    for (const Case& c : cases) {
        K2DDblPoint o(10, 10), x(10, -990), y(310, 10);
        fill.ScaleControlBoxToMetaInstance(o, x, y, c.yLeads, c.fitAspect);
        EXPECT_EQ(o, K2DDblPoint(10, 10));
        EXPECT_EQ(x, K2DDblPoint(10 + c.x.x, 10 + c.x.y));
        EXPECT_EQ(y, K2DDblPoint(10 + c.y.x, 10 + c.y.y));
    }
    K2DDblPoint o, x, y(0, 50); // an axis of no length stays
    fill.ScaleControlBoxToMetaInstance(o, x, y, false, true);
    EXPECT_EQ(y, K2DDblPoint(0, 50));
}

TEST(CFillVector, ADefaultBoxShowsTheDrawingAtItsSizeUntilAnEditScalesIt)
{
    CFillVector fill = Vector();
    fill.SetDefaultControls(CRect(0, 0, 1000, 1000));
    EXPECT_FALSE(fill.IsAlreadyScaled());
    const CFillVector::Box placed = fill.GetPlacedBox();
    EXPECT_EQ(placed.origin, K2DDblPoint(0, 1000)); // upright: the origin is the bottom-left corner
    EXPECT_EQ(placed.xEnd, K2DDblPoint(400, 1000));
    EXPECT_EQ(placed.yEnd, K2DDblPoint(0, 800));
    EXPECT_EQ(fill.GetWidthHeight(), CPoint(400, 200));
    EXPECT_EQ(fill.GetScale({0, 0}, {800, 0}, {0, -100}), K2DDblPoint(2, 0.5));
}

TEST(CFillVector, TileRotationIsZeroUprightPiUpsideDownAndNegativeLeftward)
{
    struct Case {
        K2DDblPoint yEnd;
        double rotation;
    } cases[] = {
        {{0, -100}, 0},
        {{0, 100}, std::numbers::pi},
        {{100, 0}, std::numbers::pi / 2},
        {{-100, 0}, -std::numbers::pi / 2},
        {{-100, -100}, -std::numbers::pi / 4},
    };
    for (const Case& c : cases)
        EXPECT_NEAR(CFillVector::MeasureTileRotation({0, 0}, c.yEnd), c.rotation, 1e-12);
}

TEST(CFillVector, OffsetSettersWriteTheSpacingVectorsTheHandlesShow)
{
    CFillVector fill = Vector();
    fill.SetAdditionalOffsetsX1Y2({5, 7});   // s2 = (5, 7)
    fill.SetAdditionalOffsetsX2Y1({-3, -4}); // s1 = (3, 4)
    EXPECT_EQ(fill.GetAdditionalOffset(), CPoint(3, -7));
    EXPECT_EQ(fill.GetAdditionalOffset2(), CPoint(-5, 4));
    fill.SetRawBox({{0, 0}, {400, 0}, {0, -200}}, true);
    const CFillVector::Neighbours n = fill.NeighbourOrigins(fill.GetPlacedBox(), {1, 1}, {});
    EXPECT_EQ(n.a, K2DDblPoint(403, 4));
    EXPECT_EQ(n.b, K2DDblPoint(5, -193));
}

TEST(CFillVector, MirroringFlipsAndAnIndependentTileOnlyMoves)
{
    CFillVector fill = Vector();
    fill.SetRawBox({{0, 0}, {400, 0}, {0, -200}}, true);
    CFillVector mirrored = fill;
    mirrored.Transform(Kesto2D::K2DLtGeneral(-1, 0, 0, 1, 0, 0));
    EXPECT_TRUE(mirrored.HFlipped());
    EXPECT_FALSE(mirrored.VFlipped());
    EXPECT_EQ(mirrored.GetRawBox().xEnd, K2DDblPoint(-400, 0));

    fill.SetScaleRotateIndependentOfObject(true, Kesto2D::K2DLtGeneral(2, 0, 0, 2, 0, 0));
    fill.Transform(Kesto2D::K2DLtGeneral(3, 0, 0, 3, 0, 0)); // the box's middle (200, -100) goes to (600, -300)
    EXPECT_EQ(fill.GetRawBox().origin, K2DDblPoint(400, -200));
    EXPECT_EQ(fill.GetRawBox().xEnd, K2DDblPoint(800, -200));
    // Shown at half size, as the object's own scale of 2 is undone about the middle.
    EXPECT_EQ(fill.ToSpread({800, -200}), K2DDblPoint(700, -250));
    EXPECT_EQ(fill.FromSpread({700, -250}), K2DDblPoint(800, -200));
    fill.ResetExtents();
    EXPECT_FALSE(fill.ScaleRotateIndependentOfObject());
    EXPECT_EQ(fill.GetRawBox().origin, K2DDblPoint(400, -200));
}
