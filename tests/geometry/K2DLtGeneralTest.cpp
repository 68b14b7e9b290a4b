#include "kestotool/geometry/K2DLtGeneral.h"
#include "kestotool/kernel/VerifyReporter.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Kesto2D;

TEST(K2DLtGeneral, StepsApplyInTheOrderAdded)
{
    K2DLtGeneral translateThenScale;
    translateThenScale += K2DLtTranslate(10, 0);
    translateThenScale += K2DLtScale(2, 3);
    EXPECT_EQ(translateThenScale.ApplyTo(CPoint(1, 1)), CPoint(22, 3));

    K2DLtGeneral scaleThenTranslate;
    scaleThenTranslate += K2DLtScale(2, 3);
    scaleThenTranslate += K2DLtTranslate(10, 0);
    EXPECT_EQ(scaleThenTranslate.ApplyTo(CPoint(1, 1)), CPoint(12, 3));
}

TEST(K2DLtGeneral, RotationAboutACentreLeavesTheCentreFixed)
{
    const CPoint c(300, 400);
    K2DLtGeneral t;
    t += K2DLtTranslate(-c.x, -c.y);
    t += K2DLtRotate(9000);
    t += K2DLtTranslate(c.x, c.y);
    EXPECT_EQ(t.ApplyTo(c), c);
    EXPECT_EQ(t.ApplyTo(CPoint(310, 400)), CPoint(300, 390));
    EXPECT_EQ(t.GetM11(), 0.0); // quarter turns are exact
    EXPECT_EQ(t.GetM22(), 0.0);
}

TEST(K2DLtGeneral, InverseUndoesAComposedTransform)
{
    K2DLtGeneral t;
    t += K2DLtTranslate(-17, 42);
    t += K2DLtRotate(3333);
    t += K2DLtScale(2.5, -0.75);
    t += K2DLtTranslate(1000, -2000);
    ASSERT_TRUE(t.HasInverse());
    const K2DLtGeneral inverse = t.GetInverse();
    for (const K2DDblPoint p : {K2DDblPoint(0, 0), K2DDblPoint(123.5, -77.25), K2DDblPoint(-1e6, 3e5)}) {
        const K2DDblPoint back = inverse.ApplyTo(t.ApplyTo(p));
        EXPECT_NEAR(back.x, p.x, 1e-6 * (1 + std::abs(p.x)));
        EXPECT_NEAR(back.y, p.y, 1e-6 * (1 + std::abs(p.y)));
    }
    K2DLtGeneral both = t;
    both += inverse;
    EXPECT_NEAR(both.GetM11(), 1.0, 1e-12);
    EXPECT_NEAR(both.GetTranslation().dx, 0.0, 1e-9);
}

TEST(K2DLtGeneral, SingularTransformHasNoInverseAndReportsWhenAskedForOne)
{
    int reports = 0;
    KestoKernel::ScopedVerifyHandler handler([&](const KestoKernel::VerifyReport&) { ++reports; });
    K2DLtGeneral flat;
    flat += K2DLtScale(0, 1);
    flat += K2DLtTranslate(5, 5);
    EXPECT_FALSE(flat.HasInverse());
    EXPECT_TRUE(flat.GetInverse().IsIdentity());
    EXPECT_EQ(reports, 1);
}

TEST(K2DLtGeneral, VectorsIgnoreTranslationAndHugePointsSaturateToTheCoordinateRange)
{
    K2DLtGeneral t;
    t += K2DLtScale(2, 2);
    t += K2DLtTranslate(100, 100);
    EXPECT_EQ(t.ApplyTo(K2DVector(1, 2)), K2DVector(2, 4));
    EXPECT_EQ(t.GetTranslation(), K2DVector(100, 100));

    constexpr int big = 1 << 30;
    K2DLtGeneral rotate{K2DLtRotate(4500)};
    const CPoint p = rotate.ApplyTo(CPoint(big, big));
    EXPECT_EQ(p.y, 0);
    EXPECT_EQ(p.x, big); // 2^30 * sqrt(2) lies outside the range
}
