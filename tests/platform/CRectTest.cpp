#include "kestotool/platform/CRect.h"

#include <gtest/gtest.h>

using KestoPlatform::CPoint;
using KestoPlatform::CRect;
using KestoPlatform::CSize;

struct PtInRectRow {
    const char* name;
    CPoint point;
    bool inside;
};

TEST(CRect, PtInRectIncludesLeftTopAndExcludesRightBottom)
{
    const CRect r(10, 20, 30, 40);
    const PtInRectRow rows[] = {
        {"top-left corner", {10, 20}, true}, {"inside", {15, 25}, true},       {"last column", {29, 39}, true},
        {"right edge", {30, 25}, false},     {"bottom edge", {15, 40}, false}, {"left of left", {9, 25}, false},
        {"above top", {15, 19}, false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(r.PtInRect(row.point), row.inside) << row.name;
}

TEST(CRect, InvertedRectHasNegativeSizeIsEmptyAndNormalises)
{
    CRect r(30, 40, 10, 20);
    EXPECT_EQ(r.Width(), -20);
    EXPECT_EQ(r.Height(), -20);
    EXPECT_TRUE(r.IsRectEmpty());
    EXPECT_FALSE(r.PtInRect({15, 25}));
    r.NormalizeRect();
    EXPECT_EQ(r, CRect(10, 20, 30, 40));
    EXPECT_FALSE(r.IsRectEmpty());
}

TEST(CRect, InflateAndDeflate)
{
    CRect r(10, 20, 30, 40);
    r.InflateRect(CSize(7, 3));
    EXPECT_EQ(r, CRect(3, 17, 37, 43));
    r.DeflateRect(7, 3);
    EXPECT_EQ(r, CRect(10, 20, 30, 40));
    r.InflateRect(1, 2, 3, 4);
    EXPECT_EQ(r, CRect(9, 18, 33, 44));
}

TEST(CRect, CenterPointUsesIntegerDivisionAndSurvivesHugeCoordinates)
{
    EXPECT_EQ(CRect(0, 0, 5, 7).CenterPoint(), CPoint(2, 3));
    EXPECT_EQ(CRect(-5, -7, 0, 0).CenterPoint(), CPoint(-2, -3));
    constexpr int big = 1 << 30;
    EXPECT_EQ(CRect(big, big, big + (big - 1), big).CenterPoint(), CPoint(big + (big - 1) / 2, big));
}

TEST(CRect, UnionIgnoresEmptyRectsAndIntersectionReportsNoOverlap)
{
    CRect u;
    EXPECT_TRUE(u.UnionRect(CRect(0, 0, 10, 10), CRect(5, -5, 20, 3)));
    EXPECT_EQ(u, CRect(0, -5, 20, 10));
    EXPECT_TRUE(u.UnionRect(CRect(), CRect(1, 2, 3, 4)));
    EXPECT_EQ(u, CRect(1, 2, 3, 4));

    CRect i;
    EXPECT_TRUE(i.IntersectRect(CRect(0, 0, 10, 10), CRect(5, 5, 20, 20)));
    EXPECT_EQ(i, CRect(5, 5, 10, 10));
    EXPECT_FALSE(i.IntersectRect(CRect(0, 0, 10, 10), CRect(10, 0, 20, 10)));
    EXPECT_TRUE(i.IsRectNull());
}
