#include "kestotool/geometry/K2DCurve.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Kesto2D;

TEST(K2DCurve, CircleBoundingBox)
{
    EXPECT_EQ(K2DCurve::Circle({100, 200}, 50).GetBBox(), CRect(50, 150, 150, 250));
    EXPECT_EQ(K2DCurve().GetBBox(), CRect());
}

TEST(K2DCurve, HalfCircleSweepsAnticlockwiseFromItsStart)
{
    // Starting at +x and sweeping half a turn anticlockwise on screen covers the upper half.
    EXPECT_EQ(K2DCurve::Arc({0, 0}, 100, 0, 18000).GetBBox(), CRect(-100, -100, 100, 0));
    // A negative sweep runs clockwise: the lower half.
    EXPECT_EQ(K2DCurve::Arc({0, 0}, 100, 0, -18000).GetBBox(), CRect(-100, 0, 100, 100));
    // A quarter starting straight up goes to the left.
    EXPECT_EQ(K2DCurve::Arc({0, 0}, 100, 9000, 9000).GetBBox(), CRect(-100, -100, 0, 0));
}

TEST(K2DCurve, TransformedCircleIsTheExactEllipse)
{
    // The map that takes C + (100, 0) to E and C + (0, 100) to F turns a 100-unit circle into the
    // ellipse with conjugate radii C-E and C-F.
    const K2DDblPoint c(1000, 1000);
    K2DLtGeneral map;
    map += K2DLtTranslate(-c.x, -c.y);
    map += K2DLtScale(3, 1); // radii 300 and 100
    map += K2DLtRotate(9000);
    map += K2DLtTranslate(c.x, c.y);
    const CRect box = K2DCurve::Circle(c, 100).Transformed(map).GetBBox();
    EXPECT_EQ(box, CRect(900, 700, 1100, 1300));

    K2DLtGeneral skew(1, 0, 1, 1, 0, 0); // x' = x + y
    const CRect skewed = K2DCurve::Circle({0, 0}, 100).Transformed(skew).GetBBox();
    const int halfWidth = static_cast<int>(std::lround(100 * std::sqrt(2.0)));
    EXPECT_EQ(skewed, CRect(-halfWidth, -100, halfWidth, 100));
}

TEST(K2DCurve, FlattenStaysWithinTolerance)
{
    const double radius = 500;
    const auto lines = K2DCurve::Circle({0, 0}, radius).Flatten(0.5);
    ASSERT_EQ(lines.size(), 1u);
    const auto& pts = lines.front();
    ASSERT_GT(pts.size(), 8u);
    EXPECT_NEAR(pts.front().x, pts.back().x, 1e-9);
    EXPECT_NEAR(pts.front().y, pts.back().y, 1e-9);
    for (std::size_t i = 1; i < pts.size(); ++i) {
        const K2DDblPoint mid((pts[i - 1].x + pts[i].x) / 2, (pts[i - 1].y + pts[i].y) / 2);
        EXPECT_LE(radius - std::hypot(mid.x, mid.y), 0.5 + 1e-9);
    }
}
