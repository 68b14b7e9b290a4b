#include "kestotool/filltool/FillTool.h"

#include "kestotool/filltool/FillCommands.h"
#include "kestotool/filltool/FillToolImages.h"
#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CFillThreeColour.h"
#include "kestotool/gdi/CFillVector.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/CTransparencyLinear.h"
#include "kestotool/tool/ToolIdMap.h"
#include "support/TestToolSite.h"

#include <gtest/gtest.h>

using namespace KestoTool;
using KestoTest::TestToolSite;

namespace {

K2DArrayPoint Points(std::initializer_list<CPoint> points)
{
    K2DArrayPoint a;
    for (const CPoint& p : points)
        a.Add(p);
    return a;
}

// A tool with a fixed fill rectangle, to see the base's outline of it.
class BoxTool : public FillTool {
public:
    using FillTool::FillTool;
    CRect GetFillRect(const CFill*) override { return {10, 20, 30, 40}; }
};

} // namespace

TEST(FillTool, KeepsAPrivateCopyAndTakesNewFillsAsCopies)
{
    TestToolSite site;
    KestoGDI::CFillLinear original;
    FillTool tool(&original, &site);
    ASSERT_NE(tool.GetFill(), nullptr);
    EXPECT_NE(tool.GetFill(), &original);
    EXPECT_TRUE(tool.GetFill()->IsEqual(original));
    EXPECT_EQ(tool.GetFill()->GetRefCount(), 1);

    const RefPtr<const CFill> held(tool.GetFill());
    KestoGDI::CFillSolid next;
    tool.SetFill(&next);
    EXPECT_EQ(held->GetRefCount(), 1); // the tool let go of its old copy
    EXPECT_TRUE(tool.GetFill()->IsEqual(next));
    EXPECT_NE(tool.GetFill(), &next);

    CPoint p(12, 34);
    tool.OnDragStart(p, 4);
    tool.OnDragChange(p, 4);
    tool.OnDragEnd(p, 4);
    EXPECT_EQ(tool.GetDragStart(), CPoint(12, 34));
    EXPECT_TRUE(site.commits.empty()); // the base commits nothing for a drag
}

TEST(FillTool, GhostNodeClearsOnce)
{
    TestToolSite site;
    KestoGDI::CFillLinear fill;
    FillTool tool(&fill, &site);
    CPoint p;
    tool.SetGhostNode(p, nullptr);
    EXPECT_TRUE(tool.ClearGhostNode());
    EXPECT_FALSE(tool.ClearGhostNode());
}

TEST(FillTool, EffectiveBoxIsTheClosedFillRectangle)
{
    TestToolSite site;
    KestoGDI::CFillLinear fill;
    BoxTool tool(&fill, &site);
    EXPECT_EQ(tool.GetEffectiveBBox(nullptr), Points({{10, 20}, {30, 20}, {30, 40}, {10, 40}, {10, 20}}));
}

struct HitRow {
    const char* name;
    CPoint point;
    int expected;
};

TEST(FillTool, HitTestUsesEightPixelBoxesLeftTopInclusive)
{
    TestToolSite site;
    site.pixelToPaper = 2; // the 8-pixel box is 16 units: x - 8 <= px < x + 8
    KestoGDI::CFillLinear fill;
    FillTool tool(&fill, &site);
    const K2DArrayPoint handles = Points({{100, 100}, {110, 100}});
    const HitRow rows[] = {
        {"left-top corner of the first box", {92, 92}, 0},      {"overlap goes to the lower index", {105, 100}, 0},
        {"past the first box's right edge", {108 + 8, 100}, 1}, {"on the second box's right edge", {118, 100}, -1},
        {"on both boxes' bottom edge", {105, 108}, -1},         {"far away", {0, 0}, -1},
    };
    for (const auto& row : rows)
        EXPECT_EQ(tool.HitPoint(handles, row.point), row.expected) << row.name;
    EXPECT_EQ(tool.HitPoint(K2DArrayPoint(), {100, 100}), -1);
    EXPECT_EQ(tool.GetDefaultTolerance(), 8);
    site.pixelToPaper = 1.5;
    EXPECT_EQ(tool.GetDefaultTolerance(), 6);
}

TEST(FillTool, AspectRatioOfTheObjectBox)
{
    TestToolSite site;
    KestoGDI::CFillLinear fill;
    FillTool tool(&fill, &site);
    site.objectBox = CRect(0, 0, 200, 100);
    EXPECT_FLOAT_EQ(tool.GetAspectRatio(), 0.5f);
    site.objectBox = CRect(0, 0, 0, 100);
    EXPECT_FLOAT_EQ(tool.GetAspectRatio(), 1.0f);
    site.objectBox = CRect(200, 0, 0, 100);
    EXPECT_FLOAT_EQ(tool.GetAspectRatio(), 1.0f);
}

struct SnapRow {
    const char* name;
    int grid;
    CPoint in;
    CPoint out;
};

TEST(FillTool, SnapAnglePointPrefersTheAnglePointWithinTolerance)
{
    TestToolSite site;
    site.angleStep = 4500;
    site.angleSnapTolerance = 4.5; // rounds to 5 pixels, 5 units at scale 1
    KestoGDI::CFillLinear fill;
    FillTool tool(&fill, &site);
    const SnapRow rows[] = {
        // Angle point (103, 0) is 4 away, the grid point (100, 0) is 5 away.
        {"angle point nearer than grid", 10, {103, 4}, {103, 0}},
        // The angle point (101, 0) is 9 away in y: out of tolerance, so nothing moves, not even
        // to the grid point (100, 10) one unit away.
        {"angle point out of tolerance", 10, {101, 9}, {101, 9}},
        // 45 degrees puts it at (60, 60), 2.24 away; the fine grid's (62, 58) is 1 away.
        {"grid point nearer than angle", 2, {61, 58}, {62, 58}},
        // (50, 50) is both the angle and the grid point: a tie keeps the angle point.
        {"tie goes to the angle", 10, {52, 48}, {50, 50}},
    };
    for (const auto& row : rows) {
        site.grid = row.grid;
        CPoint pt = row.in;
        tool.SnapAnglePoint({0, 0}, pt, false);
        EXPECT_EQ(pt, row.out) << row.name;
    }
}

TEST(FillTool, PreserveAngleTurnsTheOtherPointWithTheDraggedOne)
{
    // from -> to is a quarter turn anticlockwise on screen (right to up).
    EXPECT_EQ(FillTool::PreserveAngle({0, 0}, {100, 0}, {0, -100}, {50, 0}), CPoint(0, -50));
    // A quarter turn clockwise about (10, 10) takes "up" to "right".
    EXPECT_EQ(FillTool::PreserveAngle({10, 10}, {20, 10}, {10, 20}, {10, 0}), CPoint(20, 10));
    // No turn: the point comes back exactly.
    EXPECT_EQ(FillTool::PreserveAngle({0, 0}, {5, 5}, {9, 9}, {123, -7}), CPoint(123, -7));
}

struct PerpendicularRow {
    const char* name;
    bool create;
    bool keepFirst;
    bool keepSecond;
    CPoint centre;
    CPoint point;
    CPoint expected;
};

TEST(FillTool, CalculatePerpendicularTurnsAndScalesAboutTheCentre)
{
    TestToolSite site;
    site.objectBox = CRect(0, 0, 200, 100);
    KestoGDI::CFillLinear fill;
    FillTool tool(&fill, &site);
    // Arms: P0-P1 200 long to the right, P0-P2 100 long upward.
    const CPoint p0(0, 0), p1(200, 0), p2(0, -100);
    const PerpendicularRow rows[] = {
        {"a right angle anticlockwise", false, false, false, {0, 0}, {100, 0}, {0, -100}},
        {"about another centre", false, false, false, {10, 10}, {10, 40}, {40, 10}},
        // Keeping the first arm: turn by the angle from P2 to P1 (a quarter clockwise), length x 2.
        {"keep first", false, true, false, {0, 0}, {0, -50}, {100, 0}},
        // Keeping the second arm: turn from P1 to P2 (a quarter anticlockwise), length x 0.5.
        {"keep second", false, false, true, {0, 0}, {100, 0}, {0, -50}},
        // Creating: the ratio is the object box's height over width, 0.5.
        {"create", true, false, false, {0, 0}, {100, 0}, {0, -50}},
        // Creating still turns by the kept arm's angle: a quarter clockwise, then x 0.5.
        {"create keeping the first arm", true, true, false, {0, 0}, {100, 0}, {0, 50}},
    };
    for (const auto& row : rows) {
        site.create = row.create;
        CPoint centre = row.centre;
        CPoint point = row.point;
        EXPECT_EQ(tool.CalculatePerpendicular(p0, p1, p2, centre, point, row.keepFirst, row.keepSecond), row.expected)
            << row.name;
    }
}

TEST(FillTool, KindTestsForTwoColourAndBitmapFills)
{
    KestoGDI::CFillLinear two;
    KestoGDI::CFillLinear three;
    KestoGDI::ColourIntPairs stops = three.GetColourIntPairs();
    stops.Add(KestoGDI::CRGBColour(0x00FF00), 5000);
    stops.Sort();
    three.SetColourIntPairs(stops);
    EXPECT_TRUE(FillTool::IsTwoColourFill(&two));
    EXPECT_FALSE(FillTool::IsTwoColourFill(&three));
    EXPECT_FALSE(FillTool::IsTwoColourFill(std::make_unique<KestoGDI::CFillSolid>().get()));
    EXPECT_FALSE(FillTool::IsTwoColourFill(std::make_unique<KestoGDI::CFillThreeColour>().get()));
    EXPECT_TRUE(FillTool::IsBitmapFill(std::make_unique<KestoGDI::CFillBitmap>().get()));
    EXPECT_TRUE(FillTool::IsBitmapFill(std::make_unique<KestoGDI::CFillVector>().get()));
    EXPECT_FALSE(FillTool::IsBitmapFill(&two));
}

TEST(FillTool, ContextButtonsPutTheEditCommandTheContextItemAndTheTypeCombo)
{
    KestoTool::Init(9000, 9100);
    const int start = ToolIdMap::GetInstance().AllocateRange(FillToolKey, FillCommands::Count());
    ASSERT_NE(start, -1);
    const int base = start - ToolIdMap::GetInstance().MapIDToLibrary(FillToolKey, start);

    TestToolSite site;
    KestoPlatform::CXTPCommandBars bars;
    KestoGDI::CFillLinear fill;
    FillTool(&fill, &site).InitContextButtons(&bars);
    EXPECT_EQ(site.contextItems, (std::vector<int>{base + FillCmdEdit, 0, base + FillCmdEditType}));

    site.contextItems.clear();
    KestoGDI::CTransparencyLinear transparency;
    FillTool(&transparency, &site).InitContextButtons(&bars);
    EXPECT_EQ(site.contextItems, (std::vector<int>{base + FillCmdTransEdit, 0, base + FillCmdEditType}));

    FillTool tool(&fill, &site);
    EXPECT_TRUE(tool.RecognisedID(static_cast<unsigned>(base + 21)));
    EXPECT_FALSE(tool.RecognisedID(static_cast<unsigned>(base + 22)));
}
