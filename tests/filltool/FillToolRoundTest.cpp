#include "kestotool/filltool/FillToolElliptical.h"
#include "kestotool/filltool/FillToolRadial.h"

#include "kestotool/gdi/CFillEllipse.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/gdi/CRecordingRenderTarget.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/CTransparencyEllipse.h"
#include "kestotool/gdi/CTransparencyRadial.h"
#include "kestotool/kernel/VerifyReporter.h"
#include "kestotool/tool/Module.h"
#include "support/TestToolSite.h"

#include <gtest/gtest.h>

#include <functional>

#include <cmath>
#include <string>

using namespace KestoTool;
using KestoGDI::CFillEllipse;
using KestoGDI::CFillRadial;

namespace {

template <class Fill>
Fill WithInnerStops(Fill fill, std::initializer_list<int> inner)
{
    KestoGDI::ColourIntPairs stops = fill.GetColourIntPairs();
    for (int v : inner)
        stops.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(255, 0, 0)), v);
    stops.Sort();
    fill.SetColourIntPairs(stops);
    return fill;
}

CFillRadial Circle(CPoint c, CPoint e, std::initializer_list<int> inner = {})
{
    CFillRadial fill;
    fill.SetControls(K2DDblPoint(c), K2DDblPoint(e));
    return WithInnerStops(fill, inner);
}

CFillEllipse Ellipse(CPoint c, CPoint e, CPoint f, std::initializer_list<int> inner = {})
{
    CFillEllipse fill;
    fill.SetControls(K2DDblPoint(c), K2DDblPoint(e), K2DDblPoint(f));
    return WithInnerStops(fill, inner);
}

std::vector<CPoint> Points(const CFill* fill)
{
    std::vector<CPoint> points;
    for (int i = 0; i < fill->GetControlCount(); ++i)
        points.push_back(fill->GetControlPoint(i).Round());
    return points;
}

std::vector<int> Positions(const CFill* fill)
{
    std::vector<int> v;
    for (const auto& stop : dynamic_cast<const KestoGDI::CFillWithStops&>(*fill).GetColourIntPairs())
        v.push_back(stop.GetValue());
    return v;
}

using P = std::vector<CPoint>;

class RoundTest : public testing::Test {
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
    // The geometry of the fill the last drag left.
    P Last() const { return Points(site.commits.back().fill.get()); }
};

struct HintRow {
    const char* name;
    bool create;
    int node; // for a fill of three stops: 0 centre, 1 inner, 2 rim, 3 shape
    bool dragging;
    int fillId;
    int transparencyId;
};

constexpr HintRow kHints[] = {
    {"creating", true, 2, true, 137, 150},          {"no node", false, -1, false, 138, 151},
    {"centre, dragging", false, 0, true, 139, 152}, {"centre, over", false, 0, false, 143, 156},
    {"rim, dragging", false, 2, true, 141, 154},    {"rim, over", false, 2, false, 145, 158},
    {"inner, dragging", false, 1, true, 140, 153},  {"inner, over", false, 1, false, 144, 157},
    {"shape, dragging", false, 3, true, 142, 155},  {"shape, over", false, 3, false, 146, 159},
};

template <class Tool>
void ExpectHints(KestoTest::TestToolSite& site, Tool& fill, Tool& transparency, bool hasShape)
{
    for (const HintRow& row : kHints) {
        if (row.node == 3 && !hasShape)
            continue;
        site.create = row.create;
        site.inDrag = row.dragging;
        for (Tool* tool : {&fill, &transparency}) {
            tool->SetCurrentNode(row.node);
            CString hint;
            EXPECT_EQ(tool->GetHintLine(&hint), 1);
            const int id = tool->IsTransparency() ? row.transparencyId : row.fillId;
            EXPECT_EQ(hint, CString(L"Rectangle: ") + Module::Get().LoadString(id)) << row.name;
        }
    }
    site.create = site.inDrag = false;
}

} // namespace

TEST_F(RoundTest, RadialCentreMovesTheRimWithItAndEachSnapsOnItsOwn)
{
    site.grid = 10;
    auto tool = Make<FillToolRadial>(Circle({100, 100}, {203, 100}));
    site.Drag(*tool, {100, 100}, {{111, 104}});
    EXPECT_EQ(Last(), (P{{110, 100}, {210, 100}}));
    // With Shift nothing snaps, and the drag runs from the centre as it started.
    site.Drag(*tool, {110, 100}, {{131, 100}}, DragFlagShift);
    EXPECT_EQ(Last(), (P{{131, 100}, {231, 100}}));
}

TEST_F(RoundTest, RadialRimChangesOnlyTheRadiusAndShiftConstrainsItsAngleAboutTheCentre)
{
    auto tool = Make<FillToolRadial>(Circle({100, 100}, {200, 100}));
    site.Drag(*tool, {200, 100}, {{160, 160}});
    EXPECT_EQ(Last(), (P{{100, 100}, {160, 160}}));
    site.angleStep = 4500;
    site.angleSnapTolerance = 1000;
    site.Drag(*tool, {160, 160}, {{100, 192}}, DragFlagShift); // nearly straight down from C
    EXPECT_EQ(Last(), (P{{100, 100}, {100, 192}}));
}

// The host's angle constraint is told whether the centre is dragged: for the centre, and not for
// the rim or a new circle.
TEST_F(RoundTest, RadialShiftTellsTheHostWhetherTheCentreIsDragged)
{
    site.angleStep = 4500;
    auto tool = Make<FillToolRadial>(Circle({100, 100}, {200, 100}));
    site.Drag(*tool, {100, 100}, {{120, 130}}, DragFlagShift);
    site.Drag(*tool, {200, 100}, {{220, 130}}, DragFlagShift);
    site.create = true;
    site.Drag(*tool, {500, 500}, {{600, 530}}, DragFlagShift);
    site.create = false;
    EXPECT_EQ(site.angleFlags, (std::vector<bool>{true, false, false}));
}

TEST_F(RoundTest, RadialCreationDrawsFromThePressOrTheCreateCentreAndAMissLeavesNoNode)
{
    auto tool = Make<FillToolRadial>(Circle({100, 100}, {200, 100}, {5000}));
    site.Drag(*tool, {300, 20}, {{300, 60}}); // not creating: a miss edits nothing
    EXPECT_EQ(tool->GetCurrentNode(), -1);
    EXPECT_EQ(Last(), (P{{100, 100}, {200, 100}}));
    EXPECT_EQ(Positions(site.commits.back().fill.get()), (std::vector<int>{0, 5000, 10000}));
    site.create = true;
    site.Drag(*tool, {300, 20}, {{300, 60}});
    EXPECT_EQ(Last(), (P{{300, 20}, {300, 60}}));
    EXPECT_EQ(tool->GetCurrentNode(), -1); // without Shift the node stays as it was
    site.Drag(*tool, {300, 20}, {{300, 60}}, DragFlagCtrl);
    EXPECT_EQ(Last(), (P{{200, 100}, {300, 60}}));
}

TEST_F(RoundTest, RadialInnerStopSlidesAlongTheRadius)
{
    auto tool = Make<FillToolRadial>(Circle({0, 0}, {1000, 0}, {5000}));
    site.Drag(*tool, {500, 0}, {{800, 30}});
    EXPECT_EQ(Positions(site.commits.back().fill.get()), (std::vector<int>{0, 8000, 10000}));
    EXPECT_EQ(Last(), (P{{0, 0}, {1000, 0}}));
}

TEST_F(RoundTest, RadialShapes)
{
    auto tool = Make<FillToolRadial>(Circle({100, 100}, {130, 140}));
    EXPECT_EQ(tool->GetFillRect(nullptr), CRect(50, 50, 150, 150));
    EXPECT_EQ(tool->GetFillLineBox(nullptr), CRect(100, 100, 130, 140));
    // The square on the diameter: side 100 about C, turned with the radius.
    const K2DArrayPoint box = tool->GetEffectiveBBox(nullptr);
    ASSERT_EQ(box.GetSize(), 5);
    for (int i = 0; i < 4; ++i)
        EXPECT_NEAR(std::hypot(box.GetAt(i).x - 100, box.GetAt(i).y - 100), 50 * std::sqrt(2.0), 1.0);
    EXPECT_EQ(box.GetBBox(), CRect(30, 30, 170, 170));
}

TEST_F(RoundTest, EllipticalCentreSnapsAloneAndTheAxesKeepTheOffset)
{
    site.grid = 10;
    auto tool = Make<FillToolElliptical>(Ellipse({100, 100}, {200, 100}, {100, 50}));
    site.Drag(*tool, {100, 100}, {{113, 104}});
    EXPECT_EQ(Last(), (P{{110, 100}, {213, 104}, {113, 54}}));
}

TEST_F(RoundTest, ShiftPutsTheDraggedEndOnAnAngleStepFromTheCentreWhereverItWasPressed)
{
    // Pressed 3 right and 2 down of the handle: with Shift the end goes where the constrained
    // pointer is, not by the pointer's move from the press.
    site.angleStep = 4500;
    struct Case {
        const char* name;
        std::function<std::unique_ptr<FillTool>()> make;
        CPoint handle;
        int control;
    } cases[] = {
        {"radial rim",
         [&] {
             return std::unique_ptr<FillTool>(Make<FillToolRadial>(Circle({100, 100}, {200, 100})));
         },
         {200, 100},
         1},
        {"elliptical rim",
         [&] {
             return std::unique_ptr<FillTool>(Make<FillToolElliptical>(Ellipse({100, 100}, {200, 100}, {100, 50})));
         },
         {200, 100},
         1},
        {"elliptical shape",
         [&] {
             return std::unique_ptr<FillTool>(Make<FillToolElliptical>(Ellipse({100, 100}, {200, 100}, {100, 50})));
         },
         {100, 50},
         2},
    };
    for (const Case& c : cases) {
        auto tool = c.make();
        site.Drag(*tool, Kesto2D::OffsetPoint(c.handle, 3, 2), {{190, 187}}, DragFlagShift); // 2 off the diagonal
        const CPoint end = Last()[static_cast<std::size_t>(c.control)];
        const long long dx = end.x - 100LL, dy = end.y - 100LL;
        EXPECT_TRUE(dx == 0 || dy == 0 || dx == dy || dx == -dy) << c.name << ": " << end.x << "," << end.y;
        EXPECT_EQ(Last()[0], CPoint(100, 100)) << c.name;
    }
}

TEST_F(RoundTest, EllipticalRimTurnsTheShapeHandleOrWithCtrlKeepsTheAspectRatio)
{
    auto tool = Make<FillToolElliptical>(Ellipse({0, 0}, {100, 0}, {0, -50}));
    site.Drag(*tool, {100, 0}, {{0, 100}}); // a quarter turn: F turns with E
    EXPECT_EQ(Last(), (P{{0, 0}, {0, 100}, {50, 0}}));
    auto ctrl = Make<FillToolElliptical>(Ellipse({0, 0}, {100, 0}, {0, -50}));
    // With Ctrl, F follows the rim and keeps |CF| / |CE| and the right angle: a rim pulled out
    // to twice its length takes F out to twice its own.
    site.Drag(*ctrl, {100, 0}, {{200, 0}}, DragFlagCtrl);
    EXPECT_EQ(Last(), (P{{0, 0}, {200, 0}, {0, -100}}));
}

TEST_F(RoundTest, EllipticalShapeHandleTurnsTheRimAndShowsTheLastStop)
{
    auto tool = Make<FillToolElliptical>(Ellipse({0, 0}, {100, 0}, {0, -50}, {5000}));
    K2DArrayPoint handles;
    tool->BaseGetHandles(&handles);
    ASSERT_EQ(handles.GetSize(), 4);
    EXPECT_EQ(handles.GetAt(3), CPoint(0, -50));
    EXPECT_EQ(tool->GradientIndex(3), 2);
    site.Drag(*tool, {0, -50}, {{50, 0}}); // F a quarter turn on: E follows
    EXPECT_EQ(Last(), (P{{0, 0}, {0, 100}, {50, 0}}));
    const KestoGDI::CRGBColour green(KestoPlatform::RGB(0, 255, 0));
    CPoint onShape(50, 0);
    EXPECT_TRUE(tool->OnFillCellDrop(onShape, &green));
    const auto& stops = dynamic_cast<const CFillEllipse&>(*site.commits.back().fill).GetColourIntPairs();
    EXPECT_TRUE(stops.GetAt(2)->GetColour().IsEqual(green));
}

TEST_F(RoundTest, EllipticalCreationNeverSnapsAndStartsAtTheCreateCentreWithCtrl)
{
    site.grid = 10;
    site.create = true;
    auto tool = Make<FillToolElliptical>(Ellipse({0, 0}, {100, 0}, {0, -50}));
    site.Drag(*tool, {33, 17}, {{133, 17}});
    const P made = Last();
    EXPECT_EQ(made[0], CPoint(33, 17));
    EXPECT_EQ(made[1], CPoint(133, 17));
    EXPECT_EQ(made[2].x, 33); // the shape point stands square to the rim
    EXPECT_EQ(tool->GetCurrentNode(), 1);
    site.Drag(*tool, {33, 17}, {{133, 17}}, DragFlagCtrl);
    EXPECT_EQ(Last()[0], CPoint(200, 100));
}

TEST_F(RoundTest, EllipticalShapes)
{
    auto tool = Make<FillToolElliptical>(Ellipse({100, 100}, {200, 100}, {100, 50}));
    EXPECT_EQ(tool->GetFillRect(nullptr), CRect(0, 50, 200, 150));
    EXPECT_EQ(tool->GetFillLineBox(nullptr), CRect(100, 100, 200, 100));
    auto tall = Make<FillToolElliptical>(Ellipse({100, 100}, {150, 100}, {100, -100}));
    EXPECT_EQ(tall->GetFillLineBox(nullptr), CRect(100, 100, 100, -100));
    EXPECT_EQ(tool->GetEffectiveBBox(nullptr).GetBBox(), CRect(0, 50, 200, 150));
}

TEST_F(RoundTest, EveryHintIdIsReachedByItsState)
{
    KestoGDI::ColourIntPairs three = KestoGDI::CFillWithStops::DefaultStops(3, true);
    KestoGDI::CTransparencyRadial radialLevels;
    radialLevels.SetColourIntPairs(three);
    KestoGDI::CTransparencyEllipse ellipseLevels;
    ellipseLevels.SetColourIntPairs(three);
    auto radial = Make<FillToolRadial>(Circle({0, 0}, {100, 0}, {5000}));
    auto radialT = Make<FillToolRadial>(radialLevels);
    ExpectHints(site, *radial, *radialT, false);
    auto ellipse = Make<FillToolElliptical>(Ellipse({0, 0}, {100, 0}, {0, 50}, {5000}));
    auto ellipseT = Make<FillToolElliptical>(ellipseLevels);
    ExpectHints(site, *ellipse, *ellipseT, true);
}

TEST_F(RoundTest, TheHintAndTheRingFollowTheHandleUnderThePointer)
{
    auto radial = Make<FillToolRadial>(Circle({0, 0}, {1000, 0}, {5000}));
    radial->SetCurrentNode(0);
    const auto hint = [&] {
        CString line;
        radial->GetHintLine(&line);
        return line;
    };
    const auto over = [](int id) { return CString(L"Rectangle: ") + Module::Get().LoadString(id); };
    const auto rings = [&] {
        KestoGDI::CRecordingRenderTarget target;
        radial->Draw(&target, false, {});
        int count = 0;
        for (const std::string& call : target.Log())
            count += call.rfind("circle", 0) == 0 && call.find("r=10") != std::string::npos;
        return count;
    };
    // Until the host tells it where the pointer is, the hint speaks of the current handle.
    EXPECT_EQ(hint(), over(143));
    EXPECT_EQ(rings(), 0);
    struct Row {
        CPoint at;
        bool changed;
        int hot;
        int id;
    };
    for (const Row& row : {Row{{1000, 0}, true, 2, 145}, Row{{1001, 1}, false, 2, 145}, Row{{500, 0}, true, 1, 144},
                           Row{{300, 300}, true, -1, 138}}) {
        EXPECT_EQ(radial->OnMouseHover(row.at), row.changed) << row.at.x;
        EXPECT_EQ(radial->GetHotNode(), row.hot);
        EXPECT_EQ(hint(), over(row.id)) << row.at.x;
        EXPECT_EQ(rings(), row.hot >= 0 ? 1 : 0) << row.at.x;
    }
    // A drag speaks of the handle it drags and rings nothing.
    radial->OnMouseHover({1000, 0});
    site.inDrag = true;
    EXPECT_EQ(hint(), over(139));
    EXPECT_EQ(rings(), 0);
    site.inDrag = false;
    EXPECT_TRUE(radial->OnMouseLeave());
    EXPECT_EQ(hint(), over(143));
}

TEST_F(RoundTest, LineBoxesOfAnotherKindAreReportedWithTheirLines)
{
    std::vector<int> lines;
    KestoKernel::ScopedVerifyHandler handler([&](const KestoKernel::VerifyReport& r) { lines.push_back(r.line); });
    const KestoGDI::CFillLinear linear;
    auto radial = Make<FillToolRadial>(Circle({0, 0}, {100, 0}));
    auto ellipse = Make<FillToolElliptical>(Ellipse({0, 0}, {100, 0}, {0, 50}));
    EXPECT_EQ(radial->GetFillLineBox(&linear), CRect());
    EXPECT_EQ(ellipse->GetFillLineBox(&linear), CRect());
    FillToolRadial empty(nullptr, &site);
    EXPECT_TRUE(empty.GetEffectiveBBox(nullptr).IsEmpty());
    EXPECT_EQ(lines, (std::vector<int>{443, 502, 194}));
}
