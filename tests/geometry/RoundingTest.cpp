#include "kestotool/geometry/Rounding.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Kesto2D;

struct RoundRow {
    double x;
    int halfUp;
    int awayFromZero;
    int addHalfAndTruncate;
};

TEST(Rounding, TheThreeRulesDifferOnlyOnNegativeValues)
{
    const RoundRow rows[] = {
        {0.0, 0, 0, 0},  {0.4, 0, 0, 0},   {0.5, 1, 1, 1},     {1.5, 2, 2, 2},     {2.5, 3, 3, 3},
        {-0.4, 0, 0, 0}, {-0.5, 0, -1, 0}, {-1.5, -1, -2, -1}, {-2.5, -2, -3, -2}, {-2.6, -3, -3, -2},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(RoundHalfUp(row.x), row.halfUp) << row.x;
        EXPECT_EQ(RoundHalfAwayFromZero(row.x), row.awayFromZero) << row.x;
        EXPECT_EQ(AddHalfAndTruncate(row.x), row.addHalfAndTruncate) << row.x;
    }
}

TEST(Rounding, NonFiniteAndHugeValuesSaturateInsteadOfOverflowing)
{
    constexpr int maxInt = std::numeric_limits<int>::max();
    constexpr int minInt = std::numeric_limits<int>::min();
    EXPECT_EQ(RoundHalfAwayFromZero(1e300), maxInt);
    EXPECT_EQ(RoundHalfAwayFromZero(-1e300), minInt);
    EXPECT_EQ(RoundHalfUp(std::numeric_limits<double>::infinity()), maxInt);
    EXPECT_EQ(RoundHalfAwayFromZero(std::nan("")), 0);
}

struct MulDivRow {
    const char* name;
    int number, numerator, denominator, expected;
};

TEST(Rounding, MulDivUsesAWideProductAndRoundsHalvesAwayFromZero)
{
    constexpr int big = 1 << 30;
    const MulDivRow rows[] = {
        {"exact", 300, 5000, 10000, 150},
        {"half rounds up", 1, 5000, 10000, 1},
        {"negative half rounds down", -1, 5000, 10000, -1},
        {"just under half", 1, 4999, 10000, 0},
        {"negative denominator", 10, 3, -4, -8},
        {"product past 32 bits", big, 9999, 10000, 1073634450},
        {"both negative", -big, -big, big, big},
        {"zero denominator", 5, 5, 0, -1},
        {"result past int", big, 4, 1, -1},
    };
    for (const auto& row : rows)
        EXPECT_EQ(MulDiv(row.number, row.numerator, row.denominator), row.expected) << row.name;
}
