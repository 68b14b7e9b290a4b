#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/ColourIntPairs.h"

#include <gtest/gtest.h>

using namespace KestoGDI;
using KestoPlatform::RGB;

namespace {

ColourIntPairs BlackToWhite()
{
    ColourIntPairs stops;
    stops.Add(CRGBColour(RGB(0, 0, 0)), 0);
    stops.Add(CRGBColour(RGB(255, 255, 255)), 10000);
    return stops;
}

std::vector<int> Values(const ColourIntPairs& stops)
{
    std::vector<int> v;
    for (const auto& p : stops)
        v.push_back(p.GetValue());
    return v;
}

} // namespace

TEST(ColourIntPairs, SortIsByPositionAndStableForEqualPositions)
{
    ColourIntPairs stops;
    stops.Add(CMonoColour(1), 5000);
    stops.Add(CMonoColour(2), 0);
    stops.Add(CMonoColour(3), 5000);
    stops.Add(CMonoColour(4), 10000);
    stops.Sort();
    EXPECT_EQ(Values(stops), (std::vector<int>{0, 5000, 5000, 10000}));
    EXPECT_EQ(dynamic_cast<const CMonoColour&>(stops.GetAt(1)->GetColour()).GetLevel(), 1);
    EXPECT_EQ(dynamic_cast<const CMonoColour&>(stops.GetAt(2)->GetColour()).GetLevel(), 3);
}

TEST(ColourIntPairs, FindMatchesPositionAndColour)
{
    ColourIntPairs stops = BlackToWhite();
    stops.Add(CRGBColour(RGB(255, 0, 0)), 5000);
    stops.Add(CRGBColour(RGB(0, 0, 255)), 5000);
    stops.Sort();
    EXPECT_EQ(stops.Find(5000, nullptr), 1);
    const CRGBColour blue(RGB(0, 0, 255));
    EXPECT_EQ(stops.Find(5000, &blue), 2);
    EXPECT_EQ(stops.Find(4999, &blue), -1);
    const CRGBColour namedBlue(RGB(0, 0, 255), L"Blue");
    EXPECT_EQ(stops.Find(5000, &namedBlue), -1);
}

TEST(ColourIntPairs, MoveReSortsAndAnswersTheNewIndex)
{
    ColourIntPairs stops = BlackToWhite();
    stops.Add(CRGBColour(RGB(255, 0, 0)), 2000);
    stops.Add(CRGBColour(RGB(0, 255, 0)), 4000);
    stops.Sort();
    EXPECT_EQ(stops.Move(1, 6000), 2); // red overtakes green
    EXPECT_EQ(Values(stops), (std::vector<int>{0, 4000, 6000, 10000}));
    EXPECT_EQ(stops.GetAt(2)->GetColour().GetRGB(), RGB(255, 0, 0));
    EXPECT_EQ(stops.Move(7, 0), -1);
    EXPECT_EQ(Values(stops), (std::vector<int>{0, 4000, 6000, 10000}));
}

TEST(ColourIntPairs, DeleteAndAccessOutOfRangeChangeNothing)
{
    ColourIntPairs stops = BlackToWhite();
    EXPECT_FALSE(stops.Delete(2));
    EXPECT_FALSE(stops.Delete(-1));
    EXPECT_EQ(stops.GetAt(2), nullptr);
    EXPECT_EQ(stops.GetSize(), 2);
    EXPECT_TRUE(stops.Delete(0));
    EXPECT_EQ(Values(stops), std::vector<int>{10000});
}

struct ColourAtRow {
    const char* name;
    int value;
    COLORREF expected;
};

TEST(ColourIntPairs, MakeColourForValueInterpolatesBetweenNeighbours)
{
    ColourIntPairs stops;
    stops.Add(CRGBColour(RGB(255, 0, 0)), 2000);
    stops.Add(CRGBColour(RGB(0, 0, 255)), 6000);
    stops.Add(CRGBColour(RGB(0, 0, 255)), 8000);
    stops.Add(CRGBColour(RGB(255, 255, 255)), 8000);
    const ColourAtRow rows[] = {
        {"before the first stop", 0, RGB(255, 0, 0)},
        {"on the first stop", 2000, RGB(255, 0, 0)},
        {"halfway", 4000, RGB(128, 0, 128)},
        {"a quarter of the way", 3000, RGB(191, 0, 64)},
        {"between equal colours", 7000, RGB(0, 0, 255)},
        {"hard edge takes the later stop", 8000, RGB(255, 255, 255)},
        {"past the last stop", 10000, RGB(255, 255, 255)},
    };
    for (const auto& row : rows) {
        auto c = stops.MakeColourForValue(row.value);
        ASSERT_NE(c, nullptr) << row.name;
        EXPECT_EQ(c->GetRGB(), row.expected) << row.name;
    }
    EXPECT_EQ(ColourIntPairs().MakeColourForValue(5000), nullptr);
}

TEST(ColourIntPairs, SplineOfTheEarlierStopShapesTheBlend)
{
    ColourIntPairs stops = BlackToWhite();
    EXPECT_TRUE(stops.GetAt(0)->IsStraight());
    stops.GetAt(0)->SetSpline(CSpline(0, 0)); // ease in: slow start
    EXPECT_FALSE(stops.GetAt(0)->IsStraight());
    const int eased = KestoPlatform::GetRValue(stops.MakeColourForValue(5000)->GetRGB());
    // With both inner control values 0 the blend is t^3: an eighth of the way at halfway.
    EXPECT_EQ(eased, 32);
}

TEST(ColourIntPairs, CopiesAreIndependent)
{
    const ColourIntPairs original = BlackToWhite();
    ColourIntPairs copy = original;
    EXPECT_EQ(copy, original);
    copy.GetAt(0)->GetColour().SetAlpha(0);
    copy.GetAt(1)->SetValue(9000);
    EXPECT_EQ(original.GetAt(0)->GetColour().GetAlpha(), 255);
    EXPECT_EQ(original.GetAt(1)->GetValue(), 10000);
    EXPECT_FALSE(copy == original);
}

TEST(ColourIntPairs, StopPointBetweenTwoPointsRoundsLikeMulDiv)
{
    const CColourIntPair stop(CMonoColour(0), 3333);
    EXPECT_EQ(stop.GetValue(CPoint(0, 0), CPoint(1000, -1000)), CPoint(333, -333));
    EXPECT_EQ(stop.GetValue(CPoint(100, 100), CPoint(100, 100)), CPoint(100, 100));
    const CColourIntPair half(CMonoColour(0), 5000);
    EXPECT_EQ(half.GetValue(CPoint(0, 0), CPoint(3, -3)), CPoint(2, -2));
}
