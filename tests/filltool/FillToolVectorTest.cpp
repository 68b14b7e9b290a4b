#include "kestotool/filltool/FillToolVector.h"

#include "kestotool/filltool/FillCommands.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/FillPaint.h"
#include "kestotool/kernel/VerifyReporter.h"
#include "kestotool/platform/CCmdUI.h"
#include "kestotool/raster/PreparedPaint.h"
#include "kestotool/tool/ToolIdMap.h"
#include "support/TestToolSite.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace KestoTool;
using KestoGDI::VectorDrawing;

namespace {

using P = std::vector<CPoint>;

// A drawing of width x height paper units whose top-left quarter is red.
RefPtr<const VectorDrawing> Drawing(int width, int height)
{
    auto drawing = KestoKernel::MakeRef<VectorDrawing>(width, height);
    KestoRaster::Path quarter;
    quarter.MoveTo({0, 0});
    quarter.LineTo({width / 2.0, 0});
    quarter.LineTo({width / 2.0, height / 2.0});
    quarter.LineTo({0, height / 2.0});
    quarter.Close();
    drawing->AddShape(
        quarter, KestoKernel::MakeRef<KestoGDI::CFillSolid>(KestoGDI::CRGBColour(KestoPlatform::RGB(255, 0, 0)), true));
    return drawing;
}

CFillVector Vector(int width = 40000, int height = 40000)
{
    CFillVector fill{Drawing(width, height)};
    fill.SetRawBox({{0, 0}, {double(width), 0}, {0, -double(height)}}, true); // upright
    return fill;
}

class VectorToolTest : public testing::Test {
protected:
    KestoTest::TestToolSite site;

    void SetUp() override { site.objectBox = CRect(0, 0, 100000, 100000); }
    std::unique_ptr<FillToolVector> Make(const CFill& fill, int mode = FillToolVector::ScalingMode)
    {
        auto tool = std::make_unique<FillToolVector>(&fill, &site);
        tool->SetControlBoxMode(mode);
        site.tool = tool.get();
        return tool;
    }
    static P Handles(const FillTool& tool)
    {
        K2DArrayPoint handles;
        tool.BaseGetHandles(&handles);
        return P(handles.begin(), handles.end());
    }
    const CFillVector& Last() const { return dynamic_cast<const CFillVector&>(*site.commits.back().fill); }
    P LastBox() const
    {
        const CFillVector::Box b = Last().GetRawBox();
        return {b.origin.Round(), b.xEnd.Round(), b.yEnd.Round()};
    }
    // The tool's fill painted at 1 pixel per 400 units over (-20000, -100000) .. (100000, 20000):
    // the pixel at a point given relative to a tile's origin.
    static std::function<std::uint32_t(CPoint, int, int)> Painted(const FillTool& tool)
    {
        constexpr double scale = 1.0 / 400;
        const std::optional<KestoRaster::Paint> paint = KestoGDI::FillPaint::From(*tool.GetFill(), scale);
        auto pixels = std::make_shared<std::vector<std::uint32_t>>(300 * 300);
        const KestoRaster::Affine toDevice{scale, 0, 0, scale, 50, 250};
        if (paint && paint->image)
            KestoRaster::Render(KestoRaster::PreparedPaint(*paint, toDevice, KestoRaster::Output::Argb32),
                                {pixels->data(), 300, 300, 300 * 4, KestoRaster::Output::Argb32}, {0, 0, 300, 300});
        return [pixels, toDevice](CPoint tile, int dx, int dy) {
            const KestoRaster::Point p = toDevice.Apply({double(tile.x) + dx, double(tile.y) + dy});
            return (*pixels)[static_cast<std::size_t>(p.y) * 300 + static_cast<std::size_t>(p.x)];
        };
    }
};

} // namespace

TEST_F(VectorToolTest, ScalingHandlesAreTheBoxAndSpacingHandlesFollowTheFlips)
{
    EXPECT_EQ(Handles(*Make(Vector())), (P{{0, 0}, {40000, 0}, {0, -40000}}));
    // Offsets give spacing vectors s1 = (10, 40) and s2 = (-30, -20).
    struct Case {
        bool h, v;
        P expected; // B, A, B's rotation handle, A's
    } cases[] = {
        {false, false, {{-30, -40020}, {40010, 40}, {-30, -55020}, {40010, -14960}}},
        {false, true, {{-30, 39980}, {40010, 40}, {-30, 54980}, {40010, 15040}}},      // v negated, zero turned
        {true, false, {{-30, -40020}, {-39990, 40}, {-30, -55020}, {-39990, -14960}}}, // u negated
        {true, true, {{30, 40020}, {-40010, -40}, {30, 25020}, {-40010, -15040}}},     // half round about O
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.h << c.v);
        CFillVector fill = Vector();
        fill.SetAdditionalOffsetsX2Y1({-10, -40});
        fill.SetAdditionalOffsetsX1Y2({-30, -20});
        fill.SetFlipped(c.h, c.v);
        EXPECT_EQ(Handles(*Make(fill, FillToolVector::SpacingMode)), c.expected);
    }
}

TEST_F(VectorToolTest, SpacingHandlesFollowThePointerBeforeAndAfterTheTileIsMeasured)
{
    auto tool = Make(Vector(), FillToolVector::SpacingMode);
    site.Drag(*tool, {40000, 0}, {{47000, 2500}}, DragFlagShift); // A, unsnapped
    EXPECT_EQ(Handles(*tool)[1], CPoint(47000, 2500));
    EXPECT_EQ(tool->GetTileRotation(), 0);                           // upright
    site.Drag(*tool, {0, -40000}, {{-6000, -52000}}, DragFlagShift); // B
    EXPECT_EQ(Handles(*tool)[0], CPoint(-6000, -52000));
    EXPECT_EQ(Handles(*tool)[1], CPoint(47000, 2500));
    // Snapping: 7000 across is within reach of w / 4 = 10000, the 2500 down of 0.
    site.Drag(*tool, {47000, 2500}, {{46999, 2501}});
    EXPECT_EQ(Handles(*tool)[1], CPoint(50000, 0));
}

TEST_F(VectorToolTest, SnapListsAreInTheirOrderAndTheFirstWithinReachWins)
{
    auto tool = Make(Vector(40000, 4000));
    site.Drag(*tool, {0, 0}, {});
    EXPECT_EQ(tool->GetXSnapOffsets(),
              (std::vector<int>{0, 10000, -10000, 20000, -20000, 40000, -40000, 80000, -80000, 120000, -120000}));
    EXPECT_EQ(tool->GetYSnapOffsets(),
              (std::vector<int>{0, 1000, -1000, 2000, -2000, 4000, -4000, 8000, -8000, 12000, -12000}));
    struct Case {
        CPoint in, out;
    } cases[] = {
        {{3499, 1900}, {0, 0}},           // 3499 from 0 snaps; on y, 0 comes before the nearer 2000
        {{3500, 3400}, {3500, 0}},        // 3500 from 0 is out of reach, 6500 from 10000 too
        {{-13499, 5100}, {-10000, 2000}}, // 2000 comes before the nearer 4000
        {{60000, 16000}, {60000, 16000}},
    };
    for (const Case& c : cases) {
        CPoint p = c.in;
        tool->GetSnappedOffset(p);
        EXPECT_EQ(p, c.out);
    }
}

TEST_F(VectorToolTest, RotationHandlesCommitWholeDegreesAndCtrlStepsFifteen)
{
    // A's rotation handle hangs 15000 above A at (40000, 0); a turn clockwise on screen counts
    // positive, as atan2 measures on the page, and whole degrees are kept (towards zero).
    struct Case {
        CPoint to;
        unsigned flags;
        double degrees;
    } cases[] = {
        {{50000, -12000}, 0, 39},            // 39.8 degrees clockwise
        {{50000, -12000}, DragFlagCtrl, 45}, // 15-degree steps with Ctrl
        {{48301, -12494}, 0, 33},            // 33.6 degrees clockwise
        {{28116, -9152}, DragFlagCtrl, -45}, // 52.4 degrees anticlockwise
    };
    for (const Case& c : cases) {
        auto tool = Make(Vector(), FillToolVector::SpacingMode);
        site.Drag(*tool, {40000, -15000}, {c.to}, c.flags);
        EXPECT_EQ(Last().GetAdditionalRotation2(), c.degrees) << c.to.x << "," << c.to.y;
        EXPECT_EQ(Last().GetAdditionalRotation(), 0);
    }
}

TEST_F(VectorToolTest, CreateDragsNeedTheirTravel)
{
    site.create = true;
    auto scaling = Make(Vector());
    site.Drag(*scaling, {50000, 50000}, {{56000, 56000}}); // an edit drag of no handle
    EXPECT_EQ(LastBox(), (P{{0, 0}, {40000, 0}, {0, -40000}}));
    site.Drag(*scaling, {50000, 50000}, {{56001, 50000}});
    EXPECT_EQ(LastBox(), (P{{50000, 50000}, {56001, 50000}, {50000, 43999}})); // square, as the drawing

    auto spacing = Make(Vector(), FillToolVector::SpacingMode);
    site.Drag(*spacing, {50000, 50000}, {{56000, 58000}}, DragFlagShift);
    EXPECT_EQ(Last().GetAdditionalOffset(), CPoint());
    site.Drag(*spacing, {50000, 50000}, {{56001, 56001}}, DragFlagShift); // moves A as far
    EXPECT_EQ(Handles(*spacing)[1], CPoint(46001, 6001));
}

TEST_F(VectorToolTest, AxisDragsScaleTheTileInProportionAndCarryTheSpacing)
{
    CFillVector fill = Vector(40000, 20000);
    fill.SetAdditionalOffsetsX2Y1({-1000, 0});
    auto tool = Make(fill);
    site.Drag(*tool, {40000, 0}, {{80000, 0}});
    EXPECT_EQ(LastBox(), (P{{0, 0}, {80000, 0}, {0, -40000}}));
    EXPECT_EQ(Last().GetAdditionalOffset().x, 2000); // the gap doubled with the tile
    site.Drag(*tool, {0, -40000}, {{0, -20000}});    // the y end leads
    EXPECT_EQ(LastBox(), (P{{0, 0}, {40000, 0}, {0, -20000}}));
    site.Drag(*tool, {0, 0}, {{500, -700}});
    EXPECT_EQ(LastBox(), (P{{500, -700}, {40500, -700}, {500, -20700}}));
}

TEST_F(VectorToolTest, TheModeButtonOffersOnlyTheOtherMode)
{
    KestoTool::Init(30000, 30100);
    const int base = ToolIdMap::GetInstance().AllocateRange(FillToolKey, FillCommands::Count());
    auto tool = Make(Vector());
    const auto offered = [&](int command) {
        KestoPlatform::CXTPControlButton button(base + command);
        KestoPlatform::CCmdUI ui(base + command, &button);
        ui.DoUpdate(tool.get());
        EXPECT_EQ(button.IsVisible(), ui.IsEnabled());
        return button.IsVisible();
    };
    EXPECT_FALSE(offered(FillCmdScaleMode));
    EXPECT_TRUE(offered(FillCmdSpaceMode));
    tool->OnCmdMsg(base + FillCmdSpaceMode, KestoPlatform::CN_COMMAND, nullptr, nullptr);
    EXPECT_EQ(tool->GetControlBoxMode(), FillToolVector::SpacingMode);
    EXPECT_TRUE(offered(FillCmdScaleMode));
    EXPECT_FALSE(offered(FillCmdSpaceMode));
    tool->OnCmdMsg(base + FillCmdScaleMode, KestoPlatform::CN_COMMAND, nullptr, nullptr);
    EXPECT_EQ(tool->GetControlBoxMode(), FillToolVector::ScalingMode);
    EXPECT_EQ(site.handlesResets, 2);
    tool->InitContextButtons(nullptr);
    EXPECT_EQ(std::vector<int>(site.contextItems.end() - 2, site.contextItems.end()),
              (std::vector<int>{base + FillCmdScaleMode, base + FillCmdSpaceMode}));
}

TEST_F(VectorToolTest, ResetPutsTheDrawingBackAtItsSizeWithNoSpacingOrTurn)
{
    CFillVector fill = Vector(40000, 20000);
    fill.SetRawBox({{1000, 1000}, {1000, -9000}, {31000, 1000}}, true);
    fill.SetAdditionalOffsetsX1Y2({500, 600});
    fill.SetAdditionalRotation(30);
    auto tool = Make(fill, FillToolVector::SpacingMode);
    site.Drag(*tool, {0, 0}, {});
    EXPECT_NE(tool->GetTileRotation(), 0);
    tool->OnFillControlResetHandles();
    EXPECT_EQ(tool->GetTileRotation(), 0);
    EXPECT_FALSE(site.commits.back().hasName);
    EXPECT_EQ(site.handlesResets, 1);
    // Upright, centred where the old box was centred, (16000, -4000).
    EXPECT_EQ(LastBox(), (P{{-4000, 6000}, {36000, 6000}, {-4000, -14000}}));
    EXPECT_EQ(Last().GetAdditionalOffset2(), CPoint());
    EXPECT_EQ(Last().GetAdditionalRotation(), 0);
    EXPECT_EQ(Handles(*tool), (P{{-4000, -14000}, {36000, 6000}, {-4000, -29000}, {36000, -9000}}));
}

TEST_F(VectorToolTest, TheTilesArePaintedWhereTheHandlesSayTheyAre)
{
    CFillVector fill = Vector();
    auto tool = Make(fill, FillToolVector::SpacingMode);
    site.Drag(*tool, {40000, 0}, {{46000, 4000}}, DragFlagShift);
    site.Drag(*tool, {0, -40000}, {{-8000, -48000}}, DragFlagShift);
    const P handles = Handles(*tool);
    ASSERT_EQ(handles[1], CPoint(46000, 4000));
    const auto at = Painted(*tool);
    // Each tile's origin is its bottom-left corner; the red quarter is its top-left.
    for (const CPoint tile : {CPoint(0, 0), handles[0], handles[1]}) {
        SCOPED_TRACE(testing::Message() << tile.x << "," << tile.y);
        EXPECT_EQ(at(tile, 2000, -38000), 0xFFFF0000u);
        EXPECT_EQ(at(tile, 18000, -22000), 0xFFFF0000u);
        EXPECT_EQ(at(tile, 22000, -18000), 0u);
    }
}

TEST_F(VectorToolTest, ATurnedTileIsPaintedTurnedTheWayItsHandleTurned)
{
    auto tool = Make(Vector(), FillToolVector::SpacingMode);
    const P before = Handles(*tool);
    // Tile A's rotation handle, a quarter turn clockwise: from above A to its right.
    site.Drag(*tool, before[3], {Kesto2D::OffsetPoint(before[1], 15000, 0)});
    ASSERT_EQ(Last().GetAdditionalRotation2(), 90);
    EXPECT_EQ(Handles(*tool)[3], Kesto2D::OffsetPoint(before[1], 15000, 0));
    // The red quarter, top-left upright, is now top-right.
    const auto at = Painted(*tool);
    EXPECT_EQ(at(before[1], 36000, -36000), 0xFFFF0000u);
    EXPECT_EQ(at(before[1], 24000, -24000), 0xFFFF0000u);
    EXPECT_NE(at(before[1], 4000, -36000), 0xFFFF0000u);
    EXPECT_EQ(at({0, 0}, 4000, -36000), 0xFFFF0000u); // the untouched tile still upright
}

TEST_F(VectorToolTest, SizeAndReportsWithoutAFill)
{
    CFillVector small = Vector();
    small.SetRawBox({{0, 0}, {49, 0}, {0, 100}}, true);
    EXPECT_FALSE(Make(small)->CheckSize());
    EXPECT_TRUE(Make(Vector())->CheckSize());

    std::vector<std::string> modules;
    KestoKernel::ScopedVerifyHandler handler([&](const KestoKernel::VerifyReport& r) { modules.push_back(r.file); });
    FillToolVector tool(nullptr, &site);
    modules.clear();
    CPoint p;
    tool.OnDragStart(p, 0);
    tool.OnDragEnd(p, 0);
    tool.OnFillControlResetHandles();
    K2DArrayPoint handles;
    tool.BaseGetHandles(&handles);
    EXPECT_EQ(handles.GetSize(), 0);
    EXPECT_TRUE(site.commits.empty());
    for (const std::string& m : modules)
        EXPECT_EQ(m, "FillToolVector");
    EXPECT_GE(modules.size(), 4u);
}
