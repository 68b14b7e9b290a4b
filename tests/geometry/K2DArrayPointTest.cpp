#include "kestotool/geometry/K2DArrayPoint.h"
#include "kestotool/kernel/VerifyReporter.h"

#include <gtest/gtest.h>

using namespace Kesto2D;

TEST(K2DArrayPoint, AddCloseRepeatsTheStartOnlyWhenOpen)
{
    K2DArrayPoint a;
    a.Add({0, 0});
    a.Add({10, 0});
    a.Add({10, 10});
    a.AddClose(0);
    ASSERT_EQ(a.GetSize(), 4);
    EXPECT_EQ(a.GetAt(3), CPoint(0, 0));
    a.AddClose(0);
    EXPECT_EQ(a.GetSize(), 4);
    K2DArrayPoint empty;
    empty.AddClose(0);
    EXPECT_TRUE(empty.IsEmpty());
}

TEST(K2DArrayPoint, BoundingBoxSpansTheExtremePoints)
{
    K2DArrayPoint a;
    a.Add({5, -3});
    a.Add({-7, 12});
    a.Add({2, 2});
    EXPECT_EQ(a.GetBBox(), CRect(-7, -3, 5, 12));
    EXPECT_EQ(K2DArrayPoint().GetBBox(), CRect());
}

TEST(K2DArrayPoint, EllipseIsClosedAndTouchesItsBox)
{
    K2DArrayPoint a;
    a.AppendEllipse({100, 100}, 100, 50);
    EXPECT_EQ(a.GetSize(), 65);
    EXPECT_EQ(a.GetAt(0), CPoint(200, 100));
    EXPECT_EQ(a.GetAt(16), CPoint(100, 50)); // a quarter turn anticlockwise: up on screen
    EXPECT_EQ(a.GetBBox(), CRect(0, 50, 200, 150));
}

TEST(K2DArrayPoint, OutOfRangeAccessIsReportedAndHarmless)
{
    int reports = 0;
    KestoKernel::ScopedVerifyHandler handler([&](const KestoKernel::VerifyReport&) { ++reports; });
    K2DArrayPoint a(2);
    EXPECT_EQ(a.GetAt(2), CPoint());
    EXPECT_EQ(a.GetAt(-1), CPoint());
    a.SetAt(5, {1, 1});
    EXPECT_EQ(reports, 3);
    EXPECT_EQ(a, K2DArrayPoint(2));
    EXPECT_EQ(K2DArrayPoint(-4).GetSize(), 0);
}
