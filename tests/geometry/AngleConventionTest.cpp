#include "kestotool/geometry/K2DGeometry.h"
#include "kestotool/geometry/K2DLtGeneral.h"
#include "kestotool/geometry/KCAngle.h"

#include <gtest/gtest.h>

#include <numbers>

using namespace Kesto2D;

namespace {

CPoint RotateAbout(const CPoint& p, const CPoint& c, KCAngle a)
{
    K2DLtGeneral t;
    t += K2DLtTranslate(-c.x, -c.y);
    t += K2DLtRotate(a);
    t += K2DLtTranslate(c.x, c.y);
    return t.ApplyTo(p);
}

} // namespace

TEST(AngleConvention, PositiveRotationTurnsAnticlockwiseOnScreen)
{
    // y grows downward, so "up" on screen is -y.
    EXPECT_EQ(K2DLtGeneral(K2DLtRotate(9000)).ApplyTo(CPoint(100, 0)), CPoint(0, -100));
    EXPECT_EQ(K2DLtGeneral(K2DLtRotate(-9000)).ApplyTo(CPoint(100, 0)), CPoint(0, 100));
    EXPECT_EQ(K2DLtGeneral(K2DLtRotate(18000)).ApplyTo(CPoint(100, 7)), CPoint(-100, -7));
}

TEST(AngleConvention, CalcAngleOfARotatedPointIsTheComplementOfTheRotation)
{
    const CPoint centre(1000, -2000);
    // Far enough out that rounding the rotated point to integers cannot move its angle.
    const CPoint r(1000 + 400000, -2000 + 123400);
    for (int theta = 100; theta < 36000; theta += 700) {
        const CPoint p = RotateAbout(r, centre, theta);
        EXPECT_EQ(K2DGeometry::CalcAngle(p, centre, r), 36000 - theta) << theta;
        EXPECT_EQ(K2DGeometry::CalcAngle(r, centre, p), theta) << theta;
    }
}

TEST(AngleConvention, CalcAngleNamedDirections)
{
    const CPoint c(0, 0);
    EXPECT_EQ(K2DGeometry::CalcAngle(CPoint(10, 0), c, CPoint(0, -10)), 9000); // right to up
    EXPECT_EQ(K2DGeometry::CalcAngle(CPoint(10, 0), c, CPoint(0, 10)), 27000); // right to down
    EXPECT_EQ(K2DGeometry::CalcAngle(CPoint(10, 0), c, CPoint(-10, 0)), 18000);
    EXPECT_EQ(K2DGeometry::CalcAngle(CPoint(10, 0), c, CPoint(20, 0)), 0);
}

TEST(AngleConvention, CoincidentPointsGiveZeroNotNaN)
{
    const CPoint c(5, 5);
    EXPECT_EQ(K2DGeometry::CalcAngle(c, c, CPoint(9, 9)), 0);
    EXPECT_EQ(K2DGeometry::CalcAngle(CPoint(9, 9), c, c), 0);
}

TEST(Distances, DoubleAndRoundedIntegerDistanceSurviveHugeCoordinates)
{
    EXPECT_DOUBLE_EQ(K2DGeometry::CalcDist(CPoint(0, 0), CPoint(3, 4)), 5.0);
    EXPECT_EQ(K2DGeometry::IDist(CPoint(0, 0), CPoint(1, 1)), 1);
    EXPECT_EQ(K2DGeometry::IDist(CPoint(0, 0), CPoint(2, 3)), 4); // 3.606
    constexpr int big = 1 << 30;
    EXPECT_EQ(K2DGeometry::IDist(CPoint(-big, 0), CPoint(big - 1, 0)), 2147483647);
}
