#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/CFillConical.h"
#include "kestotool/gdi/CFillDiscreteMesh.h"
#include "kestotool/gdi/CFillEllipse.h"
#include "kestotool/gdi/CFillFourColour.h"
#include "kestotool/gdi/CFillFractal.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CFillSquare.h"
#include "kestotool/gdi/CFillThreeColour.h"
#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/CTransparencyLinear.h"
#include "kestotool/gdi/CTransparencyThreePoint.h"
#include "kestotool/kernel/VerifyReporter.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

using namespace KestoGDI;
using KestoKernel::MakeRef;

namespace {

std::vector<CPoint> Controls(const CFill& fill)
{
    K2DArrayPoint a;
    fill.GetControls(&a);
    return {a.begin(), a.end()};
}

} // namespace

struct DefaultRow {
    const char* name;
    std::function<RefPtr<CFill>()> make;
    std::vector<CPoint> expected;
};

TEST(FillControls, DefaultControlsPlaceEachKindOverTheRectangle)
{
    // Given inverted on purpose: every kind normalises the rectangle first.
    const CRect box(400, 300, 0, 100);
    const DefaultRow rows[] = {
        {"linear: left middle to right middle", [] { return MakeRef<CFillLinear>(); }, {{0, 200}, {400, 200}}},
        {"radial: radius half the longer side", [] { return MakeRef<CFillRadial>(); }, {{200, 200}, {400, 200}}},
        {"conical: centre and right middle", [] { return MakeRef<CFillConical>(); }, {{200, 200}, {400, 200}}},
        {"ellipse: fits the box", [] { return MakeRef<CFillEllipse>(); }, {{200, 200}, {400, 200}, {200, 100}}},
        {"square: fits the box", [] { return MakeRef<CFillSquare>(); }, {{200, 200}, {400, 200}, {200, 100}}},
        {"three colour: corners", [] { return MakeRef<CFillThreeColour>(); }, {{0, 100}, {400, 100}, {0, 300}}},
        {"four colour: corners",
         [] { return MakeRef<CFillFourColour>(); },
         {{0, 100}, {400, 100}, {0, 300}, {400, 300}}},
        {"plasma: corners", [] { return MakeRef<CFillFractal>(); }, {{0, 100}, {400, 100}, {0, 300}}},
        {"bitmap: one tile over the box", [] { return MakeRef<CFillBitmap>(); }, {{0, 100}, {400, 100}, {0, 300}}},
        {"mesh: grid corners",
         [] { return MakeRef<CFillDiscreteMesh>(); },
         {{0, 100}, {400, 100}, {0, 300}, {400, 300}}},
    };
    for (const auto& row : rows) {
        RefPtr<CFill> fill = row.make();
        fill->SetDefaultControls(box);
        EXPECT_EQ(Controls(*fill), row.expected) << row.name;
    }
}

TEST(FillControls, PerClassSettersKeepDoublePrecisionAndGetControlsRoundsHalfAwayFromZero)
{
    CFillLinear linear;
    linear.SetControls(K2DDblPoint(-0.5, 2.5), K2DDblPoint(10.25, -7.5));
    EXPECT_EQ(linear.GetStart(), K2DDblPoint(-0.5, 2.5));
    EXPECT_EQ(Controls(linear), (std::vector<CPoint>{{-1, 3}, {10, -8}}));
}

TEST(FillControls, SetControlsNeedsTheKindsExactCount)
{
    CFillEllipse ellipse;
    ellipse.SetControls(K2DDblPoint(1, 1), K2DDblPoint(2, 2), K2DDblPoint(3, 3));
    K2DArrayPoint two;
    two.Add({10, 10});
    two.Add({20, 20});
    EXPECT_FALSE(ellipse.SetControls(two));
    EXPECT_EQ(ellipse.GetEnd(), K2DDblPoint(2, 2));
    two.Add({30, 30});
    EXPECT_TRUE(ellipse.SetControls(two));
    EXPECT_EQ(ellipse.GetShape(), K2DDblPoint(30, 30));

    CFillSquare square;
    EXPECT_TRUE(square.SetControls(&ellipse));
    EXPECT_EQ(square.GetShape(), K2DDblPoint(30, 30));
    CFillLinear linear;
    EXPECT_FALSE(linear.SetControls(&ellipse));
    EXPECT_FALSE(linear.SetControls(static_cast<const CFill*>(nullptr)));
}

TEST(FillControls, BadControlIndexAndNullOutputAreReported)
{
    std::vector<int> lines;
    KestoKernel::ScopedVerifyHandler handler([&](const KestoKernel::VerifyReport& r) { lines.push_back(r.line); });
    CFillLinear linear;
    EXPECT_EQ(linear.GetControlPoint(2), K2DDblPoint());
    linear.GetControls(nullptr);
    EXPECT_EQ(lines.size(), 2u);
}

TEST(FillControls, StopListSizeLimitsProtectTheFill)
{
    CFillThreeColour three;
    const ColourIntPairs corners = three.GetColourIntPairs();
    ASSERT_EQ(corners.GetSize(), 3);
    ColourIntPairs four = corners;
    four.Add(CRGBColour(0), 10000);
    EXPECT_FALSE(three.SetColourIntPairs(four));
    EXPECT_EQ(three.GetColourIntPairs(), corners);

    CFillLinear linear;
    ColourIntPairs one;
    one.Add(CRGBColour(0), 0);
    EXPECT_FALSE(linear.SetColourIntPairs(one));
    EXPECT_EQ(linear.GetColourIntPairs().GetSize(), 2);

    CFillBitmap bitmap;
    EXPECT_TRUE(bitmap.GetColourIntPairs().IsEmpty());
    EXPECT_TRUE(bitmap.SetColourIntPairs(one));
}

TEST(FillControls, TransparencyStopsAreGreyLevelsFromOpaqueToClear)
{
    CTransparencyLinear linear;
    const auto& stops = linear.GetColourIntPairs();
    ASSERT_EQ(stops.GetSize(), 2);
    EXPECT_EQ(dynamic_cast<const CMonoColour&>(stops.GetAt(0)->GetColour()).GetLevel(), 0);
    EXPECT_EQ(dynamic_cast<const CMonoColour&>(stops.GetAt(1)->GetColour()).GetLevel(), 255);
    CTransparencyThreePoint three;
    EXPECT_EQ(dynamic_cast<const CMonoColour&>(three.GetColourIntPairs().GetAt(1)->GetColour()).GetLevel(), 128);
}

TEST(FillControls, SolidFillTakesTheColourAndOptionallyItsAlpha)
{
    CRGBColour half(KestoPlatform::RGB(10, 20, 30));
    half.SetAlpha(128);
    EXPECT_EQ(CFillSolid(half, true).GetAlpha(), 128);
    EXPECT_EQ(CFillSolid(half, false).GetAlpha(), 255);
    CFillSolid solid(half, true);
    solid.SetColour(CMonoColour(9));
    EXPECT_TRUE(solid.GetColour().IsEqual(CMonoColour(9)));
    RefPtr<CFill> clone = solid.Clone();
    EXPECT_TRUE(clone->IsEqual(solid));
}

TEST(FillControls, BitmapFillSharesItsBitmapWithClonesAndComparesPixels)
{
    auto bitmap = MakeRef<CLtBitmap>(4, 2);
    bitmap->SetPixel(3, 1, 0xFF00FF00);
    CFillBitmap fill{RefPtr<const CLtBitmap>(bitmap)};
    RefPtr<CFill> clone = fill.Clone();
    EXPECT_EQ(dynamic_cast<CFillBitmap&>(*clone).GetBitmapForFill(), bitmap.get());
    EXPECT_EQ(bitmap->GetRefCount(), 3);

    auto samePixels = MakeRef<CLtBitmap>(4, 2);
    samePixels->SetPixel(3, 1, 0xFF00FF00);
    CFillBitmap other{RefPtr<const CLtBitmap>(samePixels)};
    EXPECT_TRUE(other.IsEqual(fill));
    samePixels->SetPixel(0, 0, 1);
    EXPECT_FALSE(other.IsEqual(fill));
    EXPECT_GT(fill.Measure(), CFillBitmap().Measure() + 4 * 2 * 4 - 1);
}

TEST(FillControls, BitmapsRefuseImpossibleSizesAndIgnoreOutsideAccess)
{
    EXPECT_TRUE(CLtBitmap(0, 10).IsEmpty());
    EXPECT_TRUE(CLtBitmap(-3, 10).IsEmpty());
    EXPECT_TRUE(CLtBitmap(CLtBitmap::MaxSide + 1, 1).IsEmpty());
    CLtBitmap b(2, 2);
    b.SetPixel(2, 0, 0xFFFFFFFF);
    b.SetPixel(-1, 0, 0xFFFFFFFF);
    EXPECT_EQ(b.GetPixel(2, 0), 0u);
    EXPECT_EQ(b, CLtBitmap(2, 2));
}

TEST(FillControls, MeshGridKeepsItsShapeWithinLimits)
{
    CFillDiscreteMesh mesh;
    EXPECT_FALSE(mesh.SetGrid(1, 5, CRect(0, 0, 10, 10)));
    EXPECT_FALSE(mesh.SetGrid(3, CFillDiscreteMesh::MaxSide + 1, CRect(0, 0, 10, 10)));
    ASSERT_TRUE(mesh.SetGrid(3, 2, CRect(0, 0, 100, 50)));
    EXPECT_EQ(mesh.GetControlCount(), 6);
    EXPECT_EQ(mesh.GetControlPoint(4), K2DDblPoint(50, 50));
    EXPECT_TRUE(mesh.SetNodeColour(2, 1, CRGBColour(KestoPlatform::RGB(1, 2, 3))));
    EXPECT_FALSE(mesh.SetNodeColour(3, 0, CRGBColour(0)));
    EXPECT_EQ(mesh.GetNodeColour(3, 0), nullptr);
    mesh.SetDefaultControls(CRect(0, 0, 200, 100));
    EXPECT_EQ(mesh.GetNodeColour(2, 1)->GetRGB(), KestoPlatform::RGB(1, 2, 3));
    EXPECT_EQ(mesh.GetControlPoint(5), K2DDblPoint(200, 100));
}
