#include "kestotool/geometry/K2DStraightLine.h"

#include <gtest/gtest.h>

#include <numbers>

using namespace Kesto2D;

namespace {

void ExpectNear(const K2DDblPoint& actual, const K2DDblPoint& expected)
{
    EXPECT_NEAR(actual.x, expected.x, 1e-9);
    EXPECT_NEAR(actual.y, expected.y, 1e-9);
}

} // namespace

struct ClosestRow {
    const char* name;
    K2DDblPoint p;
    K2DDblPoint finite;
    K2DDblPoint infinite;
};

TEST(K2DStraightLine, ClosestPointClampsToTheSegmentOnlyWhenFinite)
{
    K2DStraightLine segment;
    K2DStraightLine line;
    ASSERT_TRUE(segment.SetFinite({0, 0}, {100, 0}));
    ASSERT_TRUE(line.SetInfinite({0, 0}, {100, 0}));
    const ClosestRow rows[] = {
        {"above the middle", {40, -30}, {40, 0}, {40, 0}},
        {"past the end", {150, 10}, {100, 0}, {150, 0}},
        {"before the start", {-20, 5}, {0, 0}, {-20, 0}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        ExpectNear(segment.ClosestPointOnLine(row.p), row.finite);
        ExpectNear(line.ClosestPointOnLine(row.p), row.infinite);
        ExpectNear(segment.IntersectPerp(row.p), row.infinite);
    }
}

TEST(K2DStraightLine, PointOnFiniteLineUsesTheTolerance)
{
    K2DStraightLine diagonal;
    ASSERT_TRUE(diagonal.SetFinite({0, 0}, {100, 100}));
    EXPECT_TRUE(diagonal.IsPointOnLine({50, 53}, 3.0));    // 2.12 away
    EXPECT_FALSE(diagonal.IsPointOnLine({50, 56}, 3.0));   // 4.24 away
    EXPECT_FALSE(diagonal.IsPointOnLine({104, 104}, 3.0)); // beyond the end
    EXPECT_TRUE(diagonal.IsPointOnLine({102, 102}, 3.0));
}

TEST(K2DStraightLine, IntersectionOfSegmentsHonoursTheTolerance)
{
    K2DStraightLine a, b, shortB;
    a.SetFinite({0, 0}, {100, 0});
    b.SetFinite({50, -50}, {50, 50});
    shortB.SetFinite({50, -50}, {50, -2});
    K2DDblPoint where;
    ASSERT_TRUE(a.Intersect(b, where, 0));
    ExpectNear(where, {50, 0});
    EXPECT_FALSE(a.Intersect(shortB, where, 1.0));
    EXPECT_TRUE(a.Intersect(shortB, where, 2.5));
    ExpectNear(where, {50, 0});
}

TEST(K2DStraightLine, InfiniteLinesMeetOutsideTheirDefiningPoints)
{
    K2DStraightLine a, b;
    a.SetInfinite({0, 0}, {1, 1});
    b.SetInfinite({10, 0}, {11, -1});
    K2DDblPoint where;
    ASSERT_TRUE(a.Intersect(b, where, 0));
    ExpectNear(where, {5, 5});
}

TEST(K2DStraightLine, ParallelLinesDoNotMeet)
{
    K2DStraightLine a, b, same;
    a.SetInfinite({0, 0}, {10, 0});
    b.SetInfinite({0, 5}, {10, 5});
    same.SetInfinite({3, 0}, {7, 0});
    K2DDblPoint where(-1, -1);
    EXPECT_FALSE(a.Intersect(b, where, 100));
    EXPECT_FALSE(a.Intersect(same, where, 100));
    EXPECT_EQ(where, K2DDblPoint(-1, -1));
}

TEST(K2DStraightLine, ZeroLengthSegmentIsNoLineAndActsAsItsPoint)
{
    K2DStraightLine none;
    EXPECT_FALSE(none.SetFinite({5, 5}, {5, 5}));
    EXPECT_FALSE(none.IsValid());
    EXPECT_EQ(none.ClosestPointOnLine({100, 100}), K2DDblPoint(5, 5));
    EXPECT_EQ(none.IntersectPerp({100, 100}), K2DDblPoint(5, 5));
    EXPECT_TRUE(none.IsPointOnLine({6, 5}, 1.0));
    EXPECT_FALSE(none.IsPointOnLine({7, 5}, 1.0));
    K2DStraightLine other;
    other.SetInfinite({0, 0}, {10, 10});
    K2DDblPoint where;
    EXPECT_FALSE(none.Intersect(other, where, 10));
    EXPECT_EQ(none.GetAngle(other), 0.0);
    EXPECT_EQ(none.PointAtPerpendicularDistance({5, 5}, 10), K2DDblPoint(5, 5));
}

TEST(K2DStraightLine, PositivePerpendicularDistanceIsLeftOfTheDirectionOnScreen)
{
    K2DStraightLine rightwards;
    rightwards.SetFinite({0, 0}, {100, 0});
    ExpectNear(rightwards.PointAtPerpendicularDistance({0, 0}, 10), {0, -10}); // up on screen
    ExpectNear(rightwards.PointAtPerpendicularDistance({100, 0}, -10), {100, 10});
    K2DStraightLine down;
    down.SetFinite({0, 0}, {0, 30});
    ExpectNear(down.PointAtPerpendicularDistance({0, 30}, 5), {5, 30});
    EXPECT_NEAR(down.GetAngle(rightwards), std::numbers::pi / 2, 1e-12);
}
