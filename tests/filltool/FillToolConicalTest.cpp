#include "kestotool/filltool/FillToolConical.h"

#include "kestotool/gdi/CFillConical.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/CRecordingRenderTarget.h"
#include "kestotool/gdi/CTransparencyConical.h"
#include "kestotool/kernel/VerifyReporter.h"
#include "kestotool/tool/Module.h"
#include "support/TestToolSite.h"

#include <gtest/gtest.h>

using namespace KestoTool;
using KestoGDI::CFillConical;

namespace {

CFillConical Sweep(CPoint c, CPoint r, std::initializer_list<int> inner = {})
{
    CFillConical fill;
    fill.SetControls(K2DDblPoint(c), K2DDblPoint(r));
    KestoGDI::ColourIntPairs stops = fill.GetColourIntPairs();
    for (int v : inner)
        stops.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(255, 0, 0)), v);
    stops.Sort();
    fill.SetColourIntPairs(stops);
    return fill;
}

using P = std::vector<CPoint>;

class ConicalTest : public testing::Test {
protected:
    KestoTest::TestToolSite site;

    void SetUp() override { site.objectBox = CRect(0, 0, 400, 200); }
    std::unique_ptr<FillToolConical> Tool(const CFill& fill)
    {
        auto tool = std::make_unique<FillToolConical>(&fill, &site);
        site.tool = tool.get();
        return tool;
    }
    P Last() const
    {
        const CFill& f = *site.commits.back().fill;
        return {f.GetControlPoint(0).Round(), f.GetControlPoint(1).Round()};
    }
    std::vector<int> Positions() const
    {
        std::vector<int> v;
        for (const auto& stop : dynamic_cast<const CFillConical&>(*site.commits.back().fill).GetColourIntPairs())
            v.push_back(stop.GetValue());
        return v;
    }
};

} // namespace

TEST_F(ConicalTest, HandlesRunFromRRoundTheHalfCircleToTheOppositePointThenTheCentre)
{
    auto two = Tool(Sweep({0, 0}, {100, 0}));
    K2DArrayPoint handles;
    two->BaseGetHandles(&handles);
    EXPECT_EQ(std::vector<CPoint>(handles.begin(), handles.end()), (P{{100, 0}, {-100, 0}, {0, 0}}));
    EXPECT_EQ(two->GradientIndex(2), 1); // the centre shows the last stop

    // Every stop handle lies on the half circle that counts as the line, where its own position
    // is read back.
    auto tool = Tool(Sweep({50, 50}, {250, 90}, {1200, 2500, 5000, 7500, 9000}));
    handles.RemoveAll();
    tool->BaseGetHandles(&handles);
    const int positions[] = {1200, 2500, 5000, 7500, 9000};
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(tool->IsPointOnLine(handles.GetAt(i + 1), -1)) << positions[i];
        EXPECT_NEAR(tool->GetPercentageFromPoint(handles.GetAt(i + 1)), positions[i], 30) << positions[i];
    }
}

TEST_F(ConicalTest, TheFirstStopsHandleIsDrawnAgainLastOnTop)
{
    auto tool = Tool(Sweep({100, 100}, {200, 100}, {5000}));
    KestoGDI::CRecordingRenderTarget target;
    tool->Draw(&target, false, K2DLtGeneral());
    // The last record is the first stop's handle (the current one), at R.
    ASSERT_FALSE(target.Log().empty());
    EXPECT_NE(target.Log().back().find(" (200,100) "), std::string::npos) << target.Log().back();
}

TEST_F(ConicalTest, TheTwoHalvesFoldOntoOnePositionButOnlyOneIsTheLine)
{
    auto tool = Tool(Sweep({0, 0}, {100, 0}));
    const CPoint up(0, -100), down(0, 100); // a quarter turn anticlockwise on screen, and clockwise
    EXPECT_EQ(tool->GetPercentageFromPoint(up), 5000);
    EXPECT_EQ(tool->GetPercentageFromPoint(down), 5000);
    EXPECT_TRUE(tool->IsPointOnLine(up, -1));
    EXPECT_FALSE(tool->IsPointOnLine(down, -1));
    EXPECT_FALSE(tool->IsPointOnLine({0, -150}, -1)); // off the radius
    EXPECT_EQ(tool->GetPercentageFromPoint({100, 0}), 1);
    EXPECT_EQ(tool->GetPercentageFromPoint({-100, 0}), 9999);
}

TEST_F(ConicalTest, DragsOfEachHandleNeverSnapToTheGrid)
{
    site.grid = 10;
    auto tool = Tool(Sweep({0, 0}, {100, 0}, {5000}));
    site.Drag(*tool, {-100, 0}, {{-90, 3}}); // the last stop: R moves the other way
    EXPECT_EQ(Last(), (P{{0, 0}, {90, -3}}));
    site.Drag(*tool, {0, 0}, {{7, 4}}); // the centre moves the whole sweep
    EXPECT_EQ(Last(), (P{{7, 4}, {97, 1}}));
    site.Drag(*tool, {97, 1}, {{57, 41}}); // R turns about the centre
    EXPECT_EQ(Last(), (P{{7, 4}, {57, 41}}));
    auto inner = Tool(Sweep({0, 0}, {100, 0}, {5000}));
    site.Drag(*inner, {0, -100}, {{-100, -100}}); // the inner stop slides round to 135 degrees
    EXPECT_EQ(Positions(), (std::vector<int>{0, 7500, 10000}));
}

TEST_F(ConicalTest, ShiftConstrainsTheEndsAboutTheCentre)
{
    site.angleStep = 4500;
    site.angleSnapTolerance = 1000;
    auto tool = Tool(Sweep({0, 0}, {100, 0}));
    site.Drag(*tool, {100, 0}, {{80, -70}}, DragFlagShift);
    const P turned = Last();
    EXPECT_EQ(turned[1].x, -turned[1].y);                                      // on the 45-degree ray
    site.Drag(*tool, {-turned[1].x, -turned[1].y}, {{0, 100}}, DragFlagShift); // opposite end
    EXPECT_EQ(Last()[1].x, 0);
}

TEST_F(ConicalTest, CreationSetsCentreAndRadiusEndAndShiftChangesNothing)
{
    site.create = true;
    auto tool = Tool(Sweep({0, 0}, {100, 0}, {5000}));
    site.Drag(*tool, {30, 40}, {{33, 97}}, DragFlagShift);
    EXPECT_EQ(Last(), (P{{30, 40}, {33, 97}}));
    EXPECT_EQ(tool->GetCurrentNode(), 2);
    site.Drag(*tool, {30, 40}, {{33, 97}}, DragFlagCtrl);
    EXPECT_EQ(Last(), (P{{200, 100}, {33, 97}})); // the pointer stays the radius end
}

TEST_F(ConicalTest, DeleteWithTheCentreSelectedKeepsEveryStop)
{
    auto tool = Tool(Sweep({0, 0}, {100, 0}, {5000}));
    tool->SetCurrentNode(3);
    tool->OnKeyDown(KeyDelete, 1, 0);
    EXPECT_TRUE(site.commits.empty());
    tool->SetCurrentNode(1);
    tool->OnKeyDown(KeyDelete, 1, 0);
    EXPECT_EQ(Positions(), (std::vector<int>{0, 10000}));
}

TEST_F(ConicalTest, RectanglesEncloseTheCircleAndAnotherKindIsReported)
{
    auto tool = Tool(Sweep({100, 100}, {200, 100}));
    EXPECT_EQ(tool->GetFillRect(nullptr), CRect(50, 50, 150, 150));
    EXPECT_EQ(tool->GetFillLineBox(nullptr), CRect(100, 100, 200, 100));
    EXPECT_EQ(tool->GetToolRect(nullptr), CRect(-7, -7, 207, 207));
    EXPECT_EQ(tool->GetEffectiveBBox(nullptr).GetBBox(), CRect(0, 0, 200, 200));
    std::vector<int> lines;
    KestoKernel::ScopedVerifyHandler handler([&](const KestoKernel::VerifyReport& r) { lines.push_back(r.line); });
    const KestoGDI::CFillLinear linear;
    EXPECT_EQ(tool->GetFillLineBox(&linear), CRect());
    EXPECT_EQ(lines, std::vector<int>{449});
}

TEST_F(ConicalTest, EveryHintIdIsReachedByItsState)
{
    struct Row {
        const char* name;
        bool create;
        int node; // three stops: 0 R, 1 inner, 2 opposite, 3 centre
        bool dragging;
        int fillId;
        int transparencyId;
    };
    const Row rows[] = {
        {"creating", true, 2, true, 100, 110},          {"no node", false, -1, false, 101, 111},
        {"centre, dragging", false, 3, true, 102, 112}, {"centre, over", false, 3, false, 113, 107},
        {"first, dragging", false, 0, true, 104, 109},  {"first, over", false, 0, false, 114, 106},
        {"inner, dragging", false, 1, true, 103, 108},  {"last, over", false, 2, false, 115, 105},
    };
    KestoGDI::CTransparencyConical levels;
    levels.SetColourIntPairs(KestoGDI::CFillWithStops::DefaultStops(3, true));
    auto fill = Tool(Sweep({0, 0}, {100, 0}, {5000}));
    auto transparency = Tool(levels);
    for (const Row& row : rows) {
        site.create = row.create;
        site.inDrag = row.dragging;
        for (FillToolConical* tool : {fill.get(), transparency.get()}) {
            tool->SetCurrentNode(row.node);
            CString hint;
            EXPECT_EQ(tool->GetHintLine(&hint), 1);
            const int id = tool->IsTransparency() ? row.transparencyId : row.fillId;
            EXPECT_EQ(hint, CString(L"Rectangle: ") + Module::Get().LoadString(id)) << row.name;
        }
    }
}
