#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CRGBColour.h"

#include <gtest/gtest.h>

using namespace KestoGDI;
using KestoPlatform::RGB;

struct TintRow {
    const char* name;
    COLORREF base;
    short tint;
    COLORREF shown;
};

TEST(Colour, TintMovesTowardWhiteOrBlack)
{
    const TintRow rows[] = {
        {"no tint", RGB(200, 100, 0), 0, RGB(200, 100, 0)},
        {"full white", RGB(200, 100, 0), 100, RGB(255, 255, 255)},
        {"full black", RGB(200, 100, 0), -100, RGB(0, 0, 0)},
        {"30% toward white", RGB(200, 100, 0), 30, RGB(217, 147, 77)},
        {"30% toward black", RGB(200, 100, 0), -30, RGB(140, 70, 0)},
        {"clamped past white", RGB(10, 10, 10), 500, RGB(255, 255, 255)},
    };
    for (const auto& row : rows) {
        const CRGBColour c(row.base, nullptr, row.tint);
        EXPECT_EQ(c.GetRGB(), row.shown) << row.name;
    }
}

TEST(Colour, IntensityIsLuminanceOfTheShownColour)
{
    EXPECT_EQ(CRGBColour(0xFFFFFF).GetIntensity(), 255);
    EXPECT_EQ(CRGBColour(0).GetIntensity(), 0);
    EXPECT_EQ(CRGBColour(RGB(0, 255, 0)).GetIntensity(), 150);
    EXPECT_EQ(CMonoColour(77).GetIntensity(), 77);
    EXPECT_EQ(CMonoColour(0, 100).GetIntensity(), 255);
}

TEST(Colour, IsEqualComparesKindAndValuesWhileEqualColourComparesWhatIsShown)
{
    const CRGBColour grey(RGB(77, 77, 77));
    const CMonoColour mono(77);
    EXPECT_FALSE(grey.IsEqual(mono));
    EXPECT_TRUE(CColour::EqualColour(&grey, &mono));

    const CRGBColour named(RGB(77, 77, 77), L"Slate");
    EXPECT_FALSE(grey.IsEqual(named));
    EXPECT_TRUE(CColour::EqualColour(&grey, &named));

    CRGBColour seeThrough(RGB(77, 77, 77));
    seeThrough.SetAlpha(10);
    EXPECT_FALSE(CColour::EqualColour(&grey, &seeThrough));
    EXPECT_TRUE(CColour::EqualColour(nullptr, nullptr));
    EXPECT_FALSE(CColour::EqualColour(&grey, nullptr));
}

TEST(Colour, InterpolationKeepsGreyLevelsGreyAndBlendsAlpha)
{
    CMonoColour from(0);
    CMonoColour to(255);
    to.SetAlpha(55);
    auto mid = CColour::Interpolate(from, to, 0.5);
    auto* mono = dynamic_cast<CMonoColour*>(mid.get());
    ASSERT_NE(mono, nullptr);
    EXPECT_EQ(mono->GetLevel(), 128);
    EXPECT_EQ(mid->GetAlpha(), 155);

    auto rgb = CColour::Interpolate(CRGBColour(RGB(255, 0, 0)), CMonoColour(255), 0.25);
    EXPECT_EQ(dynamic_cast<CMonoColour*>(rgb.get()), nullptr);
    EXPECT_EQ(rgb->GetRGB(), RGB(255, 64, 64));
}
