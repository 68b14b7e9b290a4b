#include "kestotool/filltool/FillToolFourColour.h"
#include "kestotool/filltool/FillToolThreeColour.h"

#include "kestotool/gdi/CFillFourColour.h"
#include "kestotool/gdi/CFillThreeColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/CRecordingRenderContext.h"
#include "kestotool/gdi/CRecordingRenderTarget.h"
#include "kestotool/kernel/VerifyReporter.h"
#include "support/TestToolSite.h"

#include <gtest/gtest.h>

#include <set>

using namespace KestoTool;
using KestoGDI::CFillFourColour;
using KestoGDI::CFillThreeColour;

namespace {

using P = std::vector<CPoint>;

CFillThreeColour Three(CPoint p0, CPoint p1, CPoint p2)
{
    CFillThreeColour fill;
    fill.SetControls(K2DDblPoint(p0), K2DDblPoint(p1), K2DDblPoint(p2));
    return fill;
}

CFillFourColour Four(CPoint p0, CPoint p1, CPoint p2, CPoint p3)
{
    CFillFourColour fill;
    fill.SetControls(K2DDblPoint(p0), K2DDblPoint(p1), K2DDblPoint(p2), K2DDblPoint(p3));
    return fill;
}

class CornerTest : public testing::Test {
protected:
    KestoTest::TestToolSite site;
    std::vector<int> reports;
    KestoKernel::ScopedVerifyHandler handler{[this](const KestoKernel::VerifyReport& r) { reports.push_back(r.line); }};

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
        P points;
        for (int i = 0; i < f.GetControlCount(); ++i)
            points.push_back(f.GetControlPoint(i).Round());
        return points;
    }
};

const CFillThreeColour kSquareArms = Three({0, 0}, {100, 0}, {0, 100});
const CFillFourColour kSquare = Four({0, 0}, {100, 0}, {0, 100}, {100, 100});

} // namespace

TEST_F(CornerTest, ThreeColourOriginMovesEverythingAndSnapsAlone)
{
    site.grid = 10;
    auto tool = Make<FillToolThreeColour>(kSquareArms);
    site.Drag(*tool, {0, 0}, {{13, 4}});
    EXPECT_EQ(Last(), (P{{10, 0}, {113, 4}, {13, 104}}));
}

TEST_F(CornerTest, ThreeColourArmsTurnTheOtherArmOrMoveItByThePerpendicularWithCtrl)
{
    auto tool = Make<FillToolThreeColour>(kSquareArms);
    site.Drag(*tool, {100, 0}, {{0, 100}}); // P1 a quarter turn: P2 turns with it
    EXPECT_EQ(Last(), (P{{0, 0}, {0, 100}, {-100, 0}}));
    site.Drag(*tool, {-100, 0}, {{0, -100}}); // P2 a quarter turn back: P1 follows
    EXPECT_EQ(Last(), (P{{0, 0}, {-100, 0}, {0, -100}}));
    // With Ctrl the other arm follows, keeping the ratio of the arms and the angle between them.
    auto ctrl = Make<FillToolThreeColour>(kSquareArms);
    site.Drag(*ctrl, {100, 0}, {{150, 0}}, DragFlagCtrl);
    EXPECT_EQ(Last(), (P{{0, 0}, {150, 0}, {0, 150}}));
}

TEST_F(CornerTest, TheOutlineWidensItsHaloUnderADraggedColourOnBothRenderPaths)
{
    auto tool = Make<FillToolThreeColour>(kSquareArms);
    CPoint over(50, 50);
    const KestoGDI::CRGBColour red(KestoPlatform::RGB(255, 0, 0));
    tool->SetGhostNode(over, &red);
    KestoGDI::CRecordingRenderTarget target;
    tool->Draw(&target, false, K2DLtGeneral());
    KestoGDI::CRecordingRenderContext context(1.0);
    tool->Draw(&context);
    ASSERT_FALSE(target.Log().empty());
    ASSERT_FALSE(context.Log().empty());
    EXPECT_NE(target.Log()[0].find("pen=FFFFFF/192/6"), std::string::npos) << target.Log()[0];
    EXPECT_NE(context.Log()[0].find("pen=FFFFFF/192/6"), std::string::npos) << context.Log()[0];
}

TEST_F(CornerTest, ThreeColourShiftSeesTheOriginFromP1AndTheArmsFromP0)
{
    site.angleStep = 4500;
    site.angleSnapTolerance = 1000;
    auto tool = Make<FillToolThreeColour>(kSquareArms);
    site.Drag(*tool, {0, 0}, {{42, 58}}, DragFlagShift); // from P1: the pointer lands on a 45-degree ray
    const CPoint p0 = Last()[0];
    EXPECT_EQ(p0.x - 100 + p0.y, 0) << p0.x << "," << p0.y;
    auto arm = Make<FillToolThreeColour>(kSquareArms);
    site.Drag(*arm, {100, 0}, {{190, 10}}, DragFlagShift); // about P0: back onto the axis
    EXPECT_EQ(Last()[1].y, 0);
}

TEST_F(CornerTest, ThreeColourCreationAndAMissedHandle)
{
    site.create = true;
    auto tool = Make<FillToolThreeColour>(kSquareArms);
    site.Drag(*tool, {10, 10}, {{110, 10}}, DragFlagCtrl);
    EXPECT_EQ(Last()[0], CPoint(200, 100)); // the create centre
    EXPECT_EQ(Last()[1], CPoint(110, 10));
    EXPECT_EQ(tool->GetCurrentNode(), 1);
    site.create = false;
    reports.clear();
    site.Drag(*tool, {300, 300}, {{310, 300}}); // no handle there: reported, nothing moves
    EXPECT_EQ(reports.size(), 1u);
    EXPECT_EQ(Last()[0], CPoint(200, 100));
}

TEST_F(CornerTest, FourColourHandleTwoIsTheOppositeCornerAndHandleThreeIsP2)
{
    auto tool = Make<FillToolFourColour>(kSquare);
    K2DArrayPoint handles;
    tool->BaseGetHandles(&handles);
    EXPECT_EQ(P(handles.begin(), handles.end()), (P{{0, 0}, {100, 0}, {100, 100}, {0, 100}}));
    // P3 moves; its neighbours slide along their edges from P0.
    site.Drag(*tool, {100, 100}, {{130, 110}});
    EXPECT_EQ(Last(), (P{{0, 0}, {130, 0}, {0, 110}, {130, 110}}));
    auto p2 = Make<FillToolFourColour>(kSquare);
    site.Drag(*p2, {0, 100}, {{-100, 0}}); // P2 a quarter turn: P1 turns, P3 completes
    EXPECT_EQ(Last(), (P{{0, 0}, {0, 100}, {-100, 0}, {-100, 100}}));
}

TEST_F(CornerTest, FourColourOriginMovesEveryCornerAndShiftWorksFromTheDraggedCorner)
{
    site.grid = 10;
    auto tool = Make<FillToolFourColour>(kSquare);
    site.Drag(*tool, {0, 0}, {{13, 4}});
    EXPECT_EQ(Last(), (P{{10, 0}, {113, 4}, {13, 104}, {113, 104}}));
    site.grid = 0;
    site.angleStep = 4500;
    site.angleSnapTolerance = 1000;
    auto shifted = Make<FillToolFourColour>(kSquare);
    site.Drag(*shifted, {100, 100}, {{160, 150}}, DragFlagShift); // 45 degrees from P3's own start
    const CPoint p3 = Last()[3];
    EXPECT_EQ(p3.x - 100, p3.y - 100);
}

TEST_F(CornerTest, FourColourCtrlMovesTheOppositeCornerAlongTheDiagonal)
{
    auto tool = Make<FillToolFourColour>(kSquare);
    site.Drag(*tool, {100, 100}, {{150, 130}}, DragFlagCtrl);
    EXPECT_EQ(Last(), (P{{0, 0}, {140, 0}, {0, 140}, {140, 140}}));
    // P1 with Ctrl: P2 follows, keeping the ratio and the angle (as for the three-colour tool),
    // and P3 moves by both offsets.
    auto side = Make<FillToolFourColour>(kSquare);
    site.Drag(*side, {100, 0}, {{150, 0}}, DragFlagCtrl);
    EXPECT_EQ(Last(), (P{{0, 0}, {150, 0}, {0, 150}, {150, 150}}));
}

TEST_F(CornerTest, FourColourCreationBuildsTheFourthCornerBeforeSnapping)
{
    site.create = true;
    site.grid = 10;
    site.objectBox = CRect(0, 0, 200, 200);
    auto tool = Make<FillToolFourColour>(kSquare);
    site.Drag(*tool, {21, 19}, {{121, 19}});
    const P made = Last();
    EXPECT_EQ(made[0], CPoint(20, 20));
    EXPECT_EQ(made[1], CPoint(120, 20));
    EXPECT_EQ(made[2], CPoint(21, -81));  // square to the pointer, not snapped
    EXPECT_EQ(made[3], CPoint(121, -81)); // pointer + perpendicular, before the snap
}

TEST_F(CornerTest, SizesShapesHintsAndDrawing)
{
    struct Row {
        const char* name;
        CPoint a, b;
        bool large;
    };
    for (const Row& row : {Row{"49", {0, 49}, {49, 0}, false}, Row{"50", {0, 50}, {50, 0}, true}}) {
        EXPECT_EQ(Make<FillToolThreeColour>(Three({0, 0}, row.a, {0, 80}))->CheckSize(), row.large) << row.name;
        EXPECT_EQ(Make<FillToolThreeColour>(Three({0, 0}, {80, 0}, row.b))->CheckSize(), row.large) << row.name;
        // The four-colour tool measures P2-P3 and P2-P0.
        EXPECT_EQ(Make<FillToolFourColour>(Four(row.a, {0, 0}, {0, 0}, {row.b.x, 0}))->CheckSize(), row.large)
            << row.name;
    }
    auto three = Make<FillToolThreeColour>(Three({10, 10}, {110, 30}, {30, 90}));
    EXPECT_EQ(three->GetFillRect(nullptr), CRect(10, 10, 110, 90));
    const K2DArrayPoint outline = three->GetEffectiveBBox(nullptr);
    EXPECT_EQ(P(outline.begin(), outline.end()), (P{{10, 10}, {110, 30}, {130, 110}, {30, 90}, {10, 10}}));
    auto four = Make<FillToolFourColour>(kSquare);
    const K2DArrayPoint quad = four->GetEffectiveBBox(nullptr);
    EXPECT_EQ(P(quad.begin(), quad.end()), (P{{0, 100}, {100, 100}, {100, 0}, {0, 0}, {0, 100}}));
    CString hint(L"old");
    EXPECT_EQ(four->GetHintLine(&hint), 1);
    EXPECT_EQ(hint, CString());
    // A closed line in handle order, then one box per corner in its own colour.
    KestoGDI::CRecordingRenderTarget target;
    four->SetCurrentNode(-1);
    four->Draw(&target, false, K2DLtGeneral());
    std::set<std::string> centres;
    for (const std::string& entry : target.Log())
        if (entry.rfind("disc", 0) == 0)
            centres.insert(entry.substr(5, entry.find(')') - 4));
    EXPECT_EQ(centres, (std::set<std::string>{"(0,0)", "(100,0)", "(100,100)", "(0,100)"}));
    EXPECT_NE(target.Log().front().find("(0,0)(100,0)(100,100)(0,100)(0,0)"), std::string::npos)
        << target.Log().front();
}

TEST_F(CornerTest, WithoutAFillEveryOperationReports)
{
    FillToolThreeColour three(nullptr, &site);
    FillToolFourColour four(nullptr, &site);
    reports.clear();
    CPoint p(0, 0);
    three.OnDragStart(p, 0);
    four.OnDragStart(p, 0);
    EXPECT_EQ(three.GetFillRect(nullptr), CRect());
    EXPECT_TRUE(four.GetEffectiveBBox(nullptr).IsEmpty());
    EXPECT_FALSE(three.CheckSize());
    KestoGDI::CRecordingRenderTarget target;
    four.Draw(&target, false, K2DLtGeneral());
    EXPECT_TRUE(target.Log().empty());
    EXPECT_EQ(reports.size(), 6u);
}
