#include "kestotool/filltool/FillToolLinear.h"

#include "kestotool/filltool/FillCommands.h"
#include "kestotool/filltool/FillToolImages.h"
#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/CRecordingRenderTarget.h"
#include "kestotool/gdi/CTransparencyLinear.h"
#include "kestotool/kernel/VerifyReporter.h"
#include "kestotool/platform/CCmdUI.h"
#include "kestotool/platform/WindowTypes.h"
#include "kestotool/tool/Module.h"
#include "kestotool/tool/ToolIdMap.h"
#include "support/TestDocument.h"
#include "support/TestToolSite.h"

#include <gtest/gtest.h>

using namespace KestoTool;
using KestoGDI::CFillLinear;
using KestoGDI::CRGBColour;

namespace {

CFillLinear Line(CPoint s, CPoint e, std::initializer_list<int> inner = {})
{
    CFillLinear fill;
    fill.SetControls(K2DDblPoint(s), K2DDblPoint(e));
    KestoGDI::ColourIntPairs stops = fill.GetColourIntPairs();
    for (int v : inner)
        stops.Add(CRGBColour(KestoPlatform::RGB(255, 0, 0)), v);
    stops.Sort();
    fill.SetColourIntPairs(stops);
    return fill;
}

std::vector<int> Positions(const CFill* fill)
{
    std::vector<int> v;
    for (const auto& stop : dynamic_cast<const KestoGDI::CFillWithStops&>(*fill).GetColourIntPairs())
        v.push_back(stop.GetValue());
    return v;
}

std::pair<CPoint, CPoint> Ends(const CFill* fill)
{
    const auto& l = dynamic_cast<const CFillLinear&>(*fill);
    return {l.GetStart().Round(), l.GetEnd().Round()};
}

class LinearTest : public testing::Test {
protected:
    KestoTest::TestToolSite site;
    KestoTest::TestDocument document;

    void SetUp() override
    {
        site.document = &document;
        site.objectBox = CRect(0, 0, 400, 200);
    }
    std::unique_ptr<FillToolLinear> Tool(const CFill& fill)
    {
        auto tool = std::make_unique<FillToolLinear>(&fill, &site);
        site.tool = tool.get();
        return tool;
    }
};

using Ends_t = std::pair<CPoint, CPoint>;

} // namespace

TEST_F(LinearTest, DraggingAStopCommitsItsNewPositionOnce)
{
    auto tool = Tool(Line({0, 0}, {1000, 0}, {5000}));
    site.Drag(*tool, {500, 0}, {{800, 2}});
    ASSERT_EQ(site.commits.size(), 2u); // the stop list from the tool, then the host's record
    EXPECT_FALSE(site.commits[0].gesture);
    EXPECT_FALSE(site.commits[0].hasName);
    EXPECT_EQ(Positions(site.commits[0].fill.get()), (std::vector<int>{0, 8000, 10000}));
    EXPECT_EQ(Ends(site.commits[1].fill.get()), Ends_t({0, 0}, {1000, 0})); // the line stays
}

TEST_F(LinearTest, AHeldFillIsSharedUntilADragReshapesACopyOfIt)
{
    const RefPtr<const CFill> held = KestoKernel::MakeRef<CFillLinear>(Line({0, 0}, {1000, 0}));
    auto tool = Tool(*held);
    EXPECT_EQ(tool->GetFill(), held.get());
    EXPECT_EQ(held->GetRefCount(), 2);

    CPoint press(1000, 0), move(1200, 0);
    tool->OnDragStart(press, 0);
    tool->OnDragChange(move, 0);
    EXPECT_EQ(Ends(held.get()), Ends_t({0, 0}, {1000, 0})) << "the host's fill is never reshaped";
    EXPECT_EQ(Ends(tool->GetFill()), Ends_t({0, 0}, {1200, 0}));
    EXPECT_EQ(held->GetRefCount(), 1);
}

TEST_F(LinearTest, MisuseIsReportedAndChangesNothing)
{
    std::vector<int> lines;
    KestoKernel::ScopedVerifyHandler recorder([&](const KestoKernel::VerifyReport& r) {
        EXPECT_FALSE(r.hint.empty()) << r.line;
        lines.push_back(r.line);
    });
    const CFillLinear line = Line({0, 0}, {1000, 0}, {5000});
    KestoTool::Init(40000, 40100);

    // No site: reported once, and the tool commits nothing anywhere.
    FillToolLinear orphan(&line, nullptr);
    CPoint p(500, 0), q(800, 0);
    orphan.OnDragStart(p, 0);
    orphan.OnDragChange(q, 0);
    orphan.OnDragEnd(q, 0);
    KestoPlatform::CXTPCommandBars bars;
    orphan.InitContextButtons(&bars);
    orphan.AdjustNodeColour(FillCmdStart);
    EXPECT_EQ(lines, std::vector<int>{1070});

    // A move and an end without a start are ignored.
    lines.clear();
    auto tool = Tool(line);
    tool->OnDragChange(q, 0);
    tool->OnDragEnd(q, 0);
    EXPECT_EQ(lines, (std::vector<int>{1071, 1071}));
    EXPECT_TRUE(site.commits.empty());
    EXPECT_TRUE(tool->GetFill()->IsEqual(line));

    // A fill of another kind: reported once, however often the tool looks at it.
    lines.clear();
    KestoGDI::CFillBitmap other;
    tool->SetFill(&other);
    K2DArrayPoint handles;
    tool->GetHandles(&handles);
    tool->GetHandles(&handles);
    EXPECT_EQ(handles.GetSize(), 0);
    EXPECT_EQ(lines, std::vector<int>{1072});
}

TEST_F(LinearTest, AStopOvertakingItsNeighbourKeepsTheCurrentNodeNumber)
{
    auto tool = Tool(Line({0, 0}, {1000, 0}, {3000, 6000}));
    EXPECT_EQ(tool->SetGradientValue(1, 7000), 2);
    site.commits.clear();
    auto again = Tool(Line({0, 0}, {1000, 0}, {3000, 6000}));
    site.Drag(*again, {300, 0}, {{700, 0}});
    EXPECT_EQ(Positions(again->GetFill()), (std::vector<int>{0, 6000, 7000, 10000}));
    EXPECT_EQ(again->GetCurrentNode(), 1);
}

struct CreateRow {
    const char* name;
    unsigned flags;
    int grid;
    CPoint to;
    Ends_t line;
};

TEST_F(LinearTest, CreatingDrawsANewLineFromThePressOrTheCentre)
{
    site.create = true;
    site.angleStep = 4500;
    site.angleSnapTolerance = 50;
    const CreateRow rows[] = {
        {"plain", 0, 0, {300, 140}, {{100, 100}, {300, 140}}},
        {"snapped to the grid", 0, 30, {310, 140}, {{90, 90}, {300, 150}}},
        {"Ctrl starts at the object's centre", DragFlagCtrl, 0, {300, 140}, {{200, 100}, {300, 140}}},
        // Shift turns (300, 110) onto 0 degrees from the press; the grid point (300, 120) is no
        // nearer, so the angle point stays, off the grid, while the press is snapped.
        {"Shift constrains the angle", DragFlagShift, 30, {300, 110}, {{90, 90}, {300, 100}}},
        {"a click gives a 50, 50 line", 0, 0, {100, 100}, {{100, 100}, {150, 150}}},
    };
    for (const auto& row : rows) {
        site.grid = row.grid;
        auto tool = Tool(Line({0, 0}, {1000, 0}));
        site.Drag(*tool, {100, 100}, {row.to}, row.flags);
        EXPECT_EQ(Ends(tool->GetFill()), row.line) << row.name;
        EXPECT_EQ(tool->GetCurrentNode(), 1) << row.name;
    }
}

struct EndRow {
    const char* name;
    CPoint press;
    CPoint to;
    unsigned flags;
    Ends_t line;
};

TEST_F(LinearTest, EndHandlesSnapOnlyWithoutShift)
{
    site.grid = 10;
    site.angleStep = 4500;
    site.angleSnapTolerance = 50;
    const EndRow rows[] = {
        {"end, snapped", {1000, 0}, {1203, 7}, 0, {{0, 0}, {1200, 10}}},
        {"end, Shift: angle kept, not snapped", {1000, 0}, {1203, 2}, DragFlagShift, {{0, 0}, {1203, 0}}},
        {"start, snapped", {0, 0}, {-97, 3}, 0, {{-100, 0}, {1000, 0}}},
        {"start, Shift: angle kept, not snapped", {0, 0}, {-97, 3}, DragFlagShift, {{-97, 0}, {1000, 0}}},
    };
    for (const auto& row : rows) {
        auto tool = Tool(Line({0, 0}, {1000, 0}));
        site.Drag(*tool, row.press, {row.to}, row.flags);
        EXPECT_EQ(Ends(tool->GetFill()), row.line) << row.name;
    }
}

// With Shift the start turns about the end and the end about the start: each to the angle step
// nearest to where the pointer is, seen from the other end, at the pointer's distance.
TEST_F(LinearTest, ShiftTurnsEachEndAboutTheOther)
{
    site.angleStep = 4500;
    site.angleSnapTolerance = 1000;
    auto tool = Tool(Line({0, 0}, {1000, 0}));
    site.Drag(*tool, {0, 0}, {{300, 250}}, DragFlagShift); // 160 degrees from the end: 180, 743 away
    EXPECT_EQ(Ends(tool->GetFill()), (Ends_t{{257, 0}, {1000, 0}}));
    site.Drag(*tool, {1000, 0}, {{600, 250}}, DragFlagShift); // 40 degrees from the start: 45
    const auto [start, end] = Ends(tool->GetFill());
    EXPECT_EQ(start, CPoint(257, 0));
    EXPECT_EQ(end.x - start.x, end.y - start.y);
}

TEST_F(LinearTest, ClicksAndDropsOnTheLineAddStopsOffTheEnds)
{
    auto tool = Tool(Line({0, 0}, {1000, 0}));
    EXPECT_EQ(tool->GetNodeValueFromPoints({0, 0}, {1000, 0}, {0, 0}), 0);
    EXPECT_EQ(tool->GetNodeValueFromPoints({0, 0}, {1000, 0}, {1000, 0}), 10000);
    EXPECT_EQ(tool->GetNodeValueFromPoints({5, 5}, {5, 5}, {0, 0}), -1);
    EXPECT_TRUE(tool->CreateNewNode({250, 3}));
    EXPECT_EQ(Positions(tool->GetFill()), (std::vector<int>{0, 2500, 10000}));
    // Just below the start handle's box but within the line's tolerance: position 0 becomes 1.
    CPoint onStart(0, 4);
    EXPECT_TRUE(tool->OnFillCellDrop(onStart, std::make_unique<CRGBColour>(0x00FF00).get()));
    EXPECT_EQ(Positions(tool->GetFill()), (std::vector<int>{0, 1, 2500, 10000}));
    CPoint offLine(500, 30);
    EXPECT_FALSE(tool->OnFillCellDrop(offLine, std::make_unique<CRGBColour>(0x00FF00).get()));
    EXPECT_FALSE(tool->CreateNewNode({500, 30}));
    // A drop on a handle recolours that stop and selects it.
    CPoint onEnd(1000, 0);
    EXPECT_TRUE(tool->OnFillCellDrop(onEnd, std::make_unique<CRGBColour>(0x00FF00).get()));
    EXPECT_EQ(tool->GetCurrentNode(), 3);
    EXPECT_EQ(tool->GetGradientColour(3)->GetRGB(), 0x00FF00u);
}

TEST_F(LinearTest, TransparencyDropsAndLevelBoxesUseLevels)
{
    auto tool = Tool(KestoGDI::CTransparencyLinear());
    auto* t = dynamic_cast<CFillLinear*>(const_cast<CFill*>(tool->GetFill()));
    t->SetControls(K2DDblPoint(0, 0), K2DDblPoint(1000, 0));
    CPoint middle(500, 0);
    tool->OnFillCellDrop(middle, std::make_unique<CRGBColour>(0xFFFFFF).get());
    EXPECT_EQ(tool->GetLevel(1), 0); // white is opaque
    EXPECT_TRUE(site.commits.back().transparency);

    KestoTool::Init(40000, 40100);
    const int base = ToolIdMap::GetInstance().AllocateRange(FillToolKey, FillCommands::Count());
    KestoPlatform::CXTPControlEdit box(base + FillCmdOpacityStartHandle);
    box.SetValue(100);
    KestoPlatform::NMXTPCONTROL notify;
    notify.pControl = &box;
    notify.hdr.code = 65536;
    KestoPlatform::AFX_NOTIFY extra{nullptr, &notify};
    EXPECT_TRUE(tool->OnCmdMsg(base + FillCmdOpacityStartHandle, KestoPlatform::CN_NOTIFY(100), &extra, nullptr));
    EXPECT_EQ(tool->GetLevel(0), 255);
    EXPECT_TRUE(site.commits.back().flag);
    box.SetValue(49.6); // 50 percent: level 128
    notify.hdr.code = 0;
    tool->OnCmdMsg(base + FillCmdOpacityStartHandle, KestoPlatform::CN_NOTIFY(0), &extra, nullptr);
    EXPECT_EQ(tool->GetLevel(0), 128);
    EXPECT_FALSE(site.commits.back().flag);

    KestoPlatform::CXTPControlEdit endBox(base + FillCmdOpacityEndHandle);
    KestoPlatform::CCmdUI ui(base + FillCmdOpacityEndHandle, &endBox);
    ui.DoUpdate(tool.get());
    EXPECT_EQ(endBox.GetValue(), 100); // level 255
    EXPECT_TRUE(ui.IsEnabled());
}

TEST_F(LinearTest, AlphaAndTintGoToTheCurrentStopAndAStaleNodeIsCleared)
{
    auto tool = Tool(Line({0, 0}, {1000, 0}));
    tool->SetCurrentNode(1);
    EXPECT_TRUE(tool->OnAlphaCellChanged(96));
    EXPECT_EQ(tool->GetGradientColour(1)->GetAlpha(), 96);
    EXPECT_TRUE(tool->OnTintChanged(-100));
    EXPECT_EQ(tool->GetGradientColour(1)->GetRGB(), 0u); // white tinted fully to black
    EXPECT_EQ(tool->GetGradientColour(1)->GetAlpha(), 96);
    tool->SetCurrentNode(5);
    EXPECT_FALSE(tool->OnAlphaCellChanged(10));
    EXPECT_EQ(tool->GetCurrentNode(), -1);
    EXPECT_FALSE(tool->OnTintChanged(10));
    EXPECT_EQ(site.commits.size(), 2u);
}

TEST_F(LinearTest, DeleteRemovesOnlyInnerStops)
{
    auto tool = Tool(Line({0, 0}, {1000, 0}, {5000}));
    tool->SetCurrentNode(0);
    tool->OnKeyDown(KeyDelete, 1, 0);
    tool->SetCurrentNode(2);
    tool->OnKeyDown(KeyDelete, 1, 0);
    EXPECT_TRUE(site.commits.empty());
    tool->SetCurrentNode(1);
    tool->OnKeyDown('A', 1, 0);
    EXPECT_TRUE(site.commits.empty());
    tool->OnKeyDown(KeyDelete, 1, 0);
    EXPECT_EQ(Positions(tool->GetFill()), (std::vector<int>{0, 10000}));
    EXPECT_FALSE(tool->CanDeleteCurrentNode()); // two stops left: neither can go
}

TEST_F(LinearTest, RotatingRightThenLeftRestoresThePlacement)
{
    const CFillLinear start = Line({100, 100}, {300, 100});
    auto tool = Tool(start);
    tool->RotateFill(-9000);
    ASSERT_EQ(site.commits.size(), 1u);
    EXPECT_EQ(site.commits[0].name, L"Rotate Fill");
    EXPECT_EQ(Ends(tool->GetFill()), Ends_t({200, 0}, {200, 200})); // clockwise about (200, 100)
    tool->RotateFill(9000);
    EXPECT_TRUE(tool->GetFill()->IsEqual(start));

    auto transparency = Tool(KestoGDI::CTransparencyLinear());
    transparency->RotateFill(9000);
    EXPECT_EQ(site.commits.back().name, L"Rotate Transparency");
}

TEST_F(LinearTest, LockedRatioScalesTheFillToTheObjectsOtherSide)
{
    auto tool = Tool(Line({0, 100}, {400, 100})); // spans the 400-wide box
    KestoTool::Init(40000, 40100);
    const int base = ToolIdMap::GetInstance().AllocateRange(FillToolKey, FillCommands::Count());
    tool->OnCmdMsg(base + FillCmdLockRatio, KestoPlatform::CN_COMMAND, nullptr, nullptr);
    EXPECT_TRUE(tool->IsLockRatio());
    tool->RotateFill(9000);
    // Scaled by 200 / 400 about (200, 100), then turned: it now spans the 200-high side.
    EXPECT_EQ(Ends(tool->GetFill()), Ends_t({200, 200}, {200, 0}));
}

TEST_F(LinearTest, FitToShapeAndResetPlaceTheLineAcrossTheObject)
{
    auto tool = Tool(Line({5, 5}, {10, 10}));
    tool->FitToShape(false);
    EXPECT_EQ(Ends(tool->GetFill()), Ends_t({0, 100}, {400, 100}));
}

TEST_F(LinearTest, ContextBarOrder)
{
    KestoTool::Init(40000, 40100);
    const int base = ToolIdMap::GetInstance().AllocateRange(FillToolKey, FillCommands::Count());
    auto tool = Tool(Line({0, 0}, {100, 0}));
    KestoPlatform::CXTPCommandBars bars;
    tool->InitContextButtons(&bars);
    auto host = [base](std::initializer_list<int> numbers) {
        std::vector<int> ids;
        for (int n : numbers)
            ids.push_back(n == 0 ? 0 : base + n);
        return ids;
    };
    EXPECT_EQ(site.contextItems, host({1, 0, 2, 0, 3, 4, 19, 0, 6, 7, 15}));
    site.contextItems.clear();
    document.helper.lockRatioAvailable = false;
    Tool(KestoGDI::CTransparencyLinear())->InitContextButtons(&bars);
    EXPECT_EQ(site.contextItems, host({8, 0, 2, 0, 9, 10, 11, 12, 19, 0, 6, 7}));
}

struct HintRow {
    const char* name;
    bool create;
    int node;
    bool dragging;
    int fillId;
    int transparencyId;
};

TEST_F(LinearTest, EveryHintIdIsReachedByItsState)
{
    const HintRow rows[] = {
        {"creating", true, 1, true, 147, 160},         {"no node", false, -1, false, 148, 161},
        {"end, dragging", false, 2, true, 149, 162},   {"start, over", false, 0, false, 168, 164},
        {"inner, dragging", false, 1, true, 167, 163}, {"inner, over", false, 1, false, 169, 165},
    };
    auto fill = Tool(Line({0, 0}, {1000, 0}, {5000}));
    auto transparency = Tool(KestoGDI::CTransparencyLinear());
    KestoGDI::ColourIntPairs three = KestoGDI::CFillWithStops::DefaultStops(3, true);
    dynamic_cast<KestoGDI::CFillWithStops*>(const_cast<CFill*>(transparency->GetFill()))->SetColourIntPairs(three);
    for (const auto& row : rows) {
        site.create = row.create;
        site.inDrag = row.dragging;
        for (auto* tool : {static_cast<FillToolLinear*>(fill.get()), transparency.get()}) {
            tool->SetCurrentNode(row.node);
            CString hint;
            EXPECT_EQ(tool->GetHintLine(&hint), 1);
            const int id = tool->IsTransparency() ? row.transparencyId : row.fillId;
            EXPECT_EQ(hint, CString(L"Rectangle: ") + Module::Get().LoadString(id)) << row.name;
        }
    }
}

TEST_F(LinearTest, ShapesOfTheLine)
{
    auto tool = Tool(Line({0, 0}, {100, 0}));
    EXPECT_EQ(tool->GetFillRect(nullptr), CRect(0, 0, 100, 0));
    K2DArrayPoint box = tool->GetEffectiveBBox(nullptr);
    ASSERT_EQ(box.GetSize(), 5);
    EXPECT_EQ(box.GetAt(0), CPoint(0, 50));
    EXPECT_EQ(box.GetAt(2), CPoint(100, -50));
    EXPECT_TRUE(tool->CheckSize());
    EXPECT_FALSE(Tool(Line({0, 0}, {49, 0}))->CheckSize());
    site.pixelToPaper = 2;
    EXPECT_EQ(tool->GetToolRect(nullptr), CRect(-14, -14, 114, 14));
}

TEST_F(LinearTest, MaxFitGrowsTheBoxToTheBitmapsProportions)
{
    site.objectBox = CRect(0, 0, 400, 400);
    const KestoGDI::CFillBitmap bitmap{
        RefPtr<const KestoGDI::CLtBitmap>(KestoKernel::MakeRef<KestoGDI::CLtBitmap>(100, 50))};
    FillToolGradient tool(&bitmap, &site);
    site.tool = &tool;
    tool.FitToShape(false);
    EXPECT_EQ(tool.GetFill()->GetControlPoint(1), K2DDblPoint(400, 0));
    tool.FitToShape(true); // a 2:1 bitmap over a square grows 200 each side to cover it
    EXPECT_EQ(tool.GetFill()->GetControlPoint(0), K2DDblPoint(-200, 0));
    EXPECT_EQ(tool.GetFill()->GetControlPoint(1), K2DDblPoint(600, 0));
    EXPECT_EQ(tool.GetFill()->GetControlPoint(2), K2DDblPoint(-200, 400));
}

TEST_F(LinearTest, DrawsTheLineThenEveryStopHandle)
{
    auto tool = Tool(Line({0, 0}, {100, 0}, {5000}));
    tool->SetCurrentNode(-1);
    KestoGDI::CRecordingRenderTarget target;
    tool->Draw(&target, false, K2DLtGeneral());
    const std::vector<std::string>& log = target.Log();
    ASSERT_EQ(log.size(), 2u + 3u * 2u);
    EXPECT_EQ(log[0], "line (0,0)(100,0) pen=FFFFFF/192/3");
    EXPECT_EQ(log[3], "disc (0,0) r=4 fill=000000/255 pen=FF0000/255/1");
    EXPECT_EQ(log[5], "disc (50,0) r=4 fill=0000FF/255 pen=FF0000/255/1");
    EXPECT_EQ(log[7], "disc (100,0) r=4 fill=FFFFFF/255 pen=FF0000/255/1");
}

TEST_F(LinearTest, ShapesWithoutAFillAreReported)
{
    std::vector<int> lines;
    KestoKernel::ScopedVerifyHandler handler([&](const KestoKernel::VerifyReport& r) { lines.push_back(r.line); });
    FillToolLinear tool(nullptr, &site);
    EXPECT_EQ(tool.GetFillRect(nullptr), CRect());
    EXPECT_TRUE(tool.GetEffectiveBBox(nullptr).IsEmpty());
    EXPECT_EQ(lines, (std::vector<int>{153, 126}));
    // Commands on a tool without a fill change nothing.
    tool.RotateFill(9000);
    tool.FitToShape(false);
    tool.SetLevel(0, 0, true);
    EXPECT_FALSE(tool.CreateNewNode({0, 0}));
    EXPECT_TRUE(site.commits.empty());
}
