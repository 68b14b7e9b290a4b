#include "kestotool/filltool/FillToolSquare.h"

#include "kestotool/gdi/CFillSquare.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/kernel/VerifyReporter.h"
#include "support/TestToolSite.h"

#include <gtest/gtest.h>

using namespace KestoTool;
using KestoGDI::CFillSquare;

namespace {

CFillSquare Square(CPoint c, CPoint e, CPoint f, std::initializer_list<int> inner = {})
{
    CFillSquare fill;
    fill.SetControls(K2DDblPoint(c), K2DDblPoint(e), K2DDblPoint(f));
    KestoGDI::ColourIntPairs stops = fill.GetColourIntPairs();
    for (int v : inner)
        stops.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(255, 0, 0)), v);
    stops.Sort();
    fill.SetColourIntPairs(stops);
    return fill;
}

using P = std::vector<CPoint>;

class SquareTest : public testing::Test {
protected:
    KestoTest::TestToolSite site;

    void SetUp() override { site.objectBox = CRect(0, 0, 400, 200); }
    std::unique_ptr<FillToolSquare> Tool(const CFill& fill)
    {
        auto tool = std::make_unique<FillToolSquare>(&fill, &site);
        site.tool = tool.get();
        return tool;
    }
    P Last() const
    {
        const CFill& f = *site.commits.back().fill;
        return {f.GetControlPoint(0).Round(), f.GetControlPoint(1).Round(), f.GetControlPoint(2).Round()};
    }
    std::vector<int> Positions() const
    {
        std::vector<int> v;
        for (const auto& stop : dynamic_cast<const CFillSquare&>(*site.commits.back().fill).GetColourIntPairs())
            v.push_back(stop.GetValue());
        return v;
    }
};

} // namespace

TEST_F(SquareTest, HandlesAreTheStopsThenFWhichEditsTheLastStop)
{
    auto tool = Tool(Square({0, 0}, {100, 0}, {0, -100}));
    K2DArrayPoint handles;
    tool->BaseGetHandles(&handles);
    EXPECT_EQ(std::vector<CPoint>(handles.begin(), handles.end()), (P{{0, 0}, {100, 0}, {0, -100}}));
    EXPECT_EQ(tool->GradientIndex(2), 1);
    EXPECT_EQ(tool->GradientIndex(1), 1);
    CString hint(L"old");
    EXPECT_EQ(tool->GetHintLine(&hint), 1);
    EXPECT_EQ(hint, CString());
}

TEST_F(SquareTest, PositionsAreNotKeptOffTheEnds)
{
    auto tool = Tool(Square({0, 0}, {100, 0}, {0, -100}));
    EXPECT_EQ(tool->GetPercentageFromPoint({0, 0}), 0);
    EXPECT_EQ(tool->GetPercentageFromPoint({100, 3}), 10000);
    EXPECT_TRUE(tool->CreateNewNode({0, 0}));
    EXPECT_EQ(Positions(), (std::vector<int>{0, 0, 10000}));
    auto flat = Tool(Square({5, 5}, {5, 5}, {0, -100}));
    EXPECT_EQ(flat->GetPercentageFromPoint({9, 9}), -1);
}

TEST_F(SquareTest, AStopDraggedPastItsNeighbourStaysCurrent)
{
    auto tool = Tool(Square({0, 0}, {1000, 0}, {0, -500}, {3000, 6000}));
    site.Drag(*tool, {300, 0}, {{800, 20}});
    EXPECT_EQ(Positions(), (std::vector<int>{0, 6000, 8000, 10000}));
    EXPECT_EQ(tool->GetCurrentNode(), 2);
}

TEST_F(SquareTest, AxisDragsTurnTheOtherAxisOrWithCtrlKeepTheAspectRatio)
{
    auto tool = Tool(Square({0, 0}, {100, 0}, {0, -50}));
    site.Drag(*tool, {100, 0}, {{0, 100}}); // E a quarter turn: F turns with it
    EXPECT_EQ(Last(), (P{{0, 0}, {0, 100}, {50, 0}}));
    auto ctrl = Tool(Square({0, 0}, {100, 0}, {0, -50}));
    site.Drag(*ctrl, {100, 0}, {{200, 0}}, DragFlagCtrl);
    EXPECT_EQ(Last(), (P{{0, 0}, {200, 0}, {0, -100}}));
    site.Drag(*ctrl, {0, -100}, {{0, -50}}, DragFlagCtrl); // F back to half: E halves too
    EXPECT_EQ(Last(), (P{{0, 0}, {100, 0}, {0, -50}}));
}

TEST_F(SquareTest, ShiftConstrainsAHandleFromItsOwnStartAndOnlyTheCentreSnaps)
{
    site.angleStep = 4500;
    site.angleSnapTolerance = 1000;
    auto tool = Tool(Square({0, 0}, {100, 0}, {0, -100}));
    site.Drag(*tool, {100, 0}, {{150, 45}}, DragFlagShift);
    const CPoint end = Last()[1];
    EXPECT_EQ(end.x - 100, end.y); // 45 degrees from E's start, not from the centre
    site.grid = 10;
    auto moved = Tool(Square({0, 0}, {100, 0}, {0, -100}));
    site.Drag(*moved, {0, 0}, {{13, 4}});
    EXPECT_EQ(Last(), (P{{10, 0}, {113, 4}, {13, -96}}));
}

TEST_F(SquareTest, CreationSnapsBothEndsAndPlacesFSquareToTheAxis)
{
    site.grid = 10;
    site.create = true;
    site.objectBox = CRect(0, 0, 200, 200);
    auto tool = Tool(Square({0, 0}, {100, 0}, {0, -100}));
    site.Drag(*tool, {21, 19}, {{118, 22}});
    const P made = Last();
    EXPECT_EQ(made[0], CPoint(20, 20));
    EXPECT_EQ(made[1], CPoint(120, 20));
    EXPECT_EQ(tool->GetCurrentNode(), 1);
}

TEST_F(SquareTest, SizeAndShapes)
{
    EXPECT_TRUE(Tool(Square({0, 0}, {100, 0}, {0, -50}))->CheckSize());
    EXPECT_FALSE(Tool(Square({0, 0}, {100, 0}, {0, -49}))->CheckSize());
    auto tool = Tool(Square({100, 100}, {150, 100}, {100, 20}));
    EXPECT_EQ(tool->GetFillRect(nullptr), CRect(50, 20, 150, 180));
    EXPECT_EQ(tool->GetFillLineBox(nullptr), CRect(100, 100, 100, 20));
    EXPECT_EQ(tool->GetEffectiveBBox(nullptr).GetSize(), 5);
}

TEST_F(SquareTest, EveryOperationNeedingAFillReportsItsLine)
{
    std::vector<int> lines;
    KestoKernel::ScopedVerifyHandler handler([&](const KestoKernel::VerifyReport& r) { lines.push_back(r.line); });
    FillToolSquare tool(nullptr, &site);
    lines.clear(); // the construction's own report
    EXPECT_EQ(tool.GetPercentageFromPoint({0, 0}), -1);
    K2DArrayPoint handles;
    tool.BaseGetHandles(&handles);
    EXPECT_FALSE(tool.CheckSize());
    EXPECT_FALSE(tool.IsPointOnLine({0, 0}, -1));
    CPoint p(0, 0);
    tool.OnDragStart(p, 0);
    EXPECT_EQ(lines, (std::vector<int>{157, 233, 242, 252, 263}));
}
