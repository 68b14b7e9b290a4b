#include "kestotool/filltool/FillToolBitmap.h"
#include "kestotool/filltool/FillToolPlasma.h"

#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/CFillFractal.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/kernel/VerifyReporter.h"
#include "support/TestToolSite.h"

#include <gtest/gtest.h>

using namespace KestoTool;

namespace {

using P = std::vector<CPoint>;

KestoGDI::CFillFractal Plasma(std::initializer_list<int> inner = {})
{
    KestoGDI::CFillFractal fill;
    fill.SetControls({0, 0}, {100, 0}, {0, 100});
    KestoGDI::ColourIntPairs stops = fill.GetColourIntPairs();
    for (int v : inner)
        stops.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(255, 0, 0)), v);
    stops.Sort();
    fill.SetColourIntPairs(stops);
    return fill;
}

KestoGDI::CFillBitmap Tile()
{
    KestoGDI::CFillBitmap fill{RefPtr<const KestoGDI::CLtBitmap>(KestoKernel::MakeRef<KestoGDI::CLtBitmap>(8, 8))};
    fill.SetControls({0, 0}, {100, 0}, {0, 100});
    return fill;
}

class TileTest : public testing::Test {
protected:
    KestoTest::TestToolSite site;

    void SetUp() override { site.objectBox = CRect(0, 0, 400, 200); }
    template <class Tool>
    std::unique_ptr<Tool> Make(const CFill& fill)
    {
        auto tool = std::make_unique<Tool>(&fill, &site);
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
        for (const auto& stop :
             dynamic_cast<const KestoGDI::CFillWithStops&>(*site.commits.back().fill).GetColourIntPairs())
            v.push_back(stop.GetValue());
        return v;
    }
};

} // namespace

TEST_F(TileTest, PlasmaHandlesAreTheStopLineThenP2AndStopsReachBothEnds)
{
    auto tool = Make<FillToolPlasma>(Plasma({5000}));
    K2DArrayPoint handles;
    tool->BaseGetHandles(&handles);
    EXPECT_EQ(P(handles.begin(), handles.end()), (P{{0, 0}, {50, 0}, {100, 0}, {0, 100}}));
    site.Drag(*tool, {50, 0}, {{130, 4}});
    EXPECT_EQ(Positions(), (std::vector<int>{0, 10000, 10000}));
    EXPECT_EQ(tool->GetCurrentNode(), 1);
    auto back = Make<FillToolPlasma>(Plasma({5000}));
    site.Drag(*back, {50, 0}, {{-20, 3}});
    EXPECT_EQ(Positions(), (std::vector<int>{0, 0, 10000}));
}

TEST_F(TileTest, PlasmaP2AloneLeavesTheStopLineAndShiftTurnsIt)
{
    auto tool = Make<FillToolPlasma>(Plasma());
    site.Drag(*tool, {0, 100}, {{-100, 0}}); // a quarter turn of P2 alone
    EXPECT_EQ(Last(), (P{{0, 0}, {100, 0}, {-100, 0}}));
    auto shifted = Make<FillToolPlasma>(Plasma());
    site.Drag(*shifted, {0, 100}, {{-100, 0}}, DragFlagShift); // P1 keeps its angle to P2
    EXPECT_EQ(Last(), (P{{0, 0}, {0, 100}, {-100, 0}}));
    auto p1 = Make<FillToolPlasma>(Plasma());
    site.Drag(*p1, {100, 0}, {{0, 100}}); // P1 turns P2 with it
    EXPECT_EQ(Last(), (P{{0, 0}, {0, 100}, {-100, 0}}));
}

TEST_F(TileTest, PlasmaShiftConstrainsThroughTheSiteWhateverTheSnapTolerance)
{
    site.angleStep = 4500;
    site.angleSnapTolerance = 0.001; // the snapping helper would give up here
    auto tool = Make<FillToolPlasma>(Plasma());
    site.Drag(*tool, {100, 0}, {{140, 36}}, DragFlagShift);
    const CPoint p1 = Last()[1];
    EXPECT_EQ(p1.x - 100, p1.y);
}

TEST_F(TileTest, BitmapWithoutStopsHasItsThreeHandlesAndCtrlKeepsTheTileSquare)
{
    auto tool = Make<FillToolBitmap>(Tile());
    K2DArrayPoint handles;
    tool->BaseGetHandles(&handles);
    EXPECT_EQ(P(handles.begin(), handles.end()), (P{{0, 0}, {100, 0}, {0, 100}}));
    site.Drag(*tool, {0, 100}, {{0, 150}}, DragFlagCtrl);
    EXPECT_EQ(Last(), (P{{0, 0}, {150, 0}, {0, 150}}));
    site.Drag(*tool, {0, 150}, {{-150, 0}}); // P2 a quarter turn: P1 turns with it
    EXPECT_EQ(Last(), (P{{0, 0}, {0, 150}, {-150, 0}}));
    auto plain = Make<FillToolBitmap>(Tile());
    site.Drag(*plain, {100, 0}, {{0, 100}}); // P1 a quarter turn: P2 turns with it
    EXPECT_EQ(Last(), (P{{0, 0}, {0, 100}, {-100, 0}}));
}

TEST_F(TileTest, BitmapShiftOnP1CountsOnlyWithCtrl)
{
    site.grid = 10;
    site.angleStep = 4500;
    auto tool = Make<FillToolBitmap>(Tile());
    site.Drag(*tool, {100, 0}, {{133, 27}}, DragFlagShift); // as if Shift were not held: snapped
    EXPECT_EQ(Last()[1], CPoint(130, 30));
    auto both = Make<FillToolBitmap>(Tile());
    site.Drag(*both, {100, 0}, {{133, 27}}, DragFlagShift | DragFlagCtrl); // constrained about P0
    EXPECT_EQ(Last()[1].y, 0);
    auto origin = Make<FillToolBitmap>(Tile());
    site.Drag(*origin, {0, 0}, {{13, 4}});
    EXPECT_EQ(Last(), (P{{10, 0}, {113, 4}, {13, 104}}));
}

TEST_F(TileTest, CreationSnapsTheEndsAndMakesP1Current)
{
    site.create = true;
    site.grid = 10;
    auto plasma = Make<FillToolPlasma>(Plasma({5000}));
    site.Drag(*plasma, {21, 19}, {{118, 22}});
    EXPECT_EQ(Last()[0], CPoint(20, 20));
    EXPECT_EQ(Last()[1], CPoint(120, 20));
    EXPECT_EQ(plasma->GetCurrentNode(), 2);
    // The bitmap with Shift starts from its old P0 and constrains about it.
    site.angleStep = 4500;
    auto bitmap = Make<FillToolBitmap>(Tile());
    site.Drag(*bitmap, {200, 100}, {{290, 8}}, DragFlagShift);
    EXPECT_EQ(Last()[0], CPoint(0, 0));
    EXPECT_EQ(Last()[1].y, 0);
    EXPECT_EQ(bitmap->GetCurrentNode(), 1);
}

TEST_F(TileTest, WithoutAFillEveryOperationReports)
{
    std::vector<std::string> modules;
    KestoKernel::ScopedVerifyHandler handler([&](const KestoKernel::VerifyReport& r) { modules.push_back(r.file); });
    FillToolPlasma plasma(nullptr, &site);
    FillToolBitmap bitmap(nullptr, &site);
    modules.clear();
    EXPECT_EQ(plasma.GetPercentageFromPoint({0, 0}), -1);
    EXPECT_EQ(bitmap.GetPercentageFromPoint({0, 0}), -1);
    EXPECT_FALSE(plasma.CheckSize());
    EXPECT_TRUE(bitmap.GetEffectiveBBox(nullptr).IsEmpty());
    EXPECT_EQ(modules,
              (std::vector<std::string>{"FillToolPlasma", "FillToolBitmap", "FillToolPlasma", "FillToolBitmap"}));
}
