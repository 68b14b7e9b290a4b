#include "kestotool/filltool/FillTool.h"

#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CRecordingRenderContext.h"
#include "kestotool/gdi/CRecordingRenderTarget.h"
#include "kestotool/gdi/CTransparencyLinear.h"
#include "kestotool/kernel/VerifyReporter.h"
#include "support/TestToolSite.h"

#include <gtest/gtest.h>

using namespace KestoTool;
using Lines = std::vector<std::string>;

namespace {

// Opens the drawing helpers to the tests; its scene is a highlighted line and a handle.
class DrawingTool : public FillTool {
public:
    using FillTool::DrawBoxControl;
    using FillTool::DrawControlLine;
    using FillTool::FillTool;

protected:
    void BuildHandleScene(HandleScene& scene) const override
    {
        scene.AddLine(CPoint(0, 0), CPoint(10, 0), true);
        scene.AddHandle(CPoint(10, 0), 0x00FF00ul, -1);
    }
};

class DrawingTest : public testing::Test {
protected:
    KestoTest::TestToolSite site; // tool colour 0xFF0000
    KestoGDI::CFillLinear fill;
    DrawingTool tool{&fill, &site};
    KestoGDI::CRecordingRenderTarget target{1.0};
};

} // namespace

TEST_F(DrawingTest, UnselectedHandleIsAHaloThenAnOutlinedColourDisc)
{
    tool.SetCurrentNode(0);
    tool.DrawBoxControl(&target, false, CPoint(10, 20), 0x0000FFul, 1);
    EXPECT_EQ(target.Log(), (Lines{
                                "disc (10,20) r=7 fill=FFFFFF/192 pen=none",
                                "disc (10,20) r=4 fill=0000FF/255 pen=FF0000/255/1",
                            }));
}

TEST_F(DrawingTest, SelectedHandleIsADotInARingWithAWideHalo)
{
    tool.SetCurrentNode(1);
    tool.DrawBoxControl(&target, false, CPoint(10, 20), 0x0000FFul, 1);
    EXPECT_EQ(target.Log(), (Lines{
                                "disc (10,20) r=9 fill=FFFFFF/192 pen=none",
                                "disc (10,20) r=4 fill=0000FF/255 pen=none",
                                "circle (10,20) r=6 pen=FF0000/255/1",
                            }));
}

TEST_F(DrawingTest, IndexMinusOneIsNeverSelected)
{
    tool.SetCurrentNode(-1);
    tool.DrawBoxControl(&target, false, CPoint(0, 0), 0ul, -1);
    ASSERT_EQ(target.Log().size(), 2u);
    EXPECT_EQ(target.Log()[0], "disc (0,0) r=7 fill=FFFFFF/192 pen=none");
}

TEST_F(DrawingTest, OutlineOnlyHandleIsOneBlackDisc)
{
    tool.DrawBoxControl(&target, true, CPoint(5, 5), 0x123456ul, 0);
    EXPECT_EQ(target.Log(), Lines{"disc (5,5) r=9 fill=000000/255 pen=none"});
}

TEST_F(DrawingTest, SizesScaleWithThePixelAndRoundHalfAwayFromZero)
{
    KestoGDI::CRecordingRenderTarget big(1.5); // r0 = 6
    tool.SetCurrentNode(1);
    tool.DrawBoxControl(&big, false, CPoint(0, 0), 0ul, 0);
    EXPECT_EQ(big.Log(), (Lines{
                             "disc (0,0) r=10 fill=FFFFFF/192 pen=none", // 6 + 3.75 = 9.75
                             "disc (0,0) r=6 fill=000000/255 pen=FF0000/255/1.5",
                         }));
}

TEST_F(DrawingTest, TransparencyHandlesShowTheComplementOfTheirLevel)
{
    KestoGDI::CTransparencyLinear transparency;
    DrawingTool transparencyTool(&transparency, &site);
    transparencyTool.SetCurrentNode(5);
    transparencyTool.DrawBoxControl(&target, false, CPoint(0, 0), 0x000000ul, 0);
    transparencyTool.DrawBoxControl(&target, false, CPoint(0, 0), 0x404040ul, 0);
    EXPECT_EQ(target.Log()[1], "disc (0,0) r=4 fill=FFFFFF/255 pen=FF0000/255/1");
    EXPECT_EQ(target.Log()[3], "disc (0,0) r=4 fill=BFBFBF/255 pen=FF0000/255/1");
}

TEST_F(DrawingTest, PointsGoThroughTheViewTransformOfTheLastDraw)
{
    K2DLtGeneral view;
    view += Kesto2D::K2DLtScale(2, 2);
    view += Kesto2D::K2DLtTranslate(100, 0);
    tool.Draw(&target, false, view);
    target.Clear();
    tool.DrawControlLine(&target, false, CPoint(0, 0), CPoint(10, 5), false);
    EXPECT_EQ(target.Log(), (Lines{
                                "line (100,0)(120,10) pen=FFFFFF/192/3",
                                "line (100,0)(120,10) pen=FF0000/255/1",
                            }));
}

TEST_F(DrawingTest, ControlLineHaloWidensOnlyForAHighlightedLineWithAGhostNode)
{
    tool.DrawControlLine(&target, false, CPoint(0, 0), CPoint(10, 0), true);
    EXPECT_EQ(target.Log()[0], "line (0,0)(10,0) pen=FFFFFF/192/3");
    target.Clear();
    CPoint where;
    tool.SetGhostNode(where, nullptr);
    tool.DrawControlLine(&target, false, CPoint(0, 0), CPoint(10, 0), true);
    tool.DrawControlLine(&target, false, CPoint(0, 0), CPoint(10, 0), false);
    EXPECT_EQ(target.Log(), (Lines{
                                "line (0,0)(10,0) pen=FFFFFF/192/6",
                                "line (0,0)(10,0) pen=FF0000/255/1",
                                "line (0,0)(10,0) pen=FFFFFF/192/3",
                                "line (0,0)(10,0) pen=FF0000/255/1",
                            }));
}

TEST_F(DrawingTest, TheSceneShowsItsHighlightOnTheTargetAloneAndANullTargetIsReported)
{
    CPoint where;
    tool.SetGhostNode(where, nullptr);
    tool.Draw(&target, false, K2DLtGeneral());
    KestoGDI::CRecordingRenderContext context(1.0);
    tool.Draw(&context);
    ASSERT_EQ(target.Log().size(), 4u);
    EXPECT_EQ(target.Log()[0], "line (0,0)(10,0) pen=FFFFFF/192/6");
    EXPECT_EQ(target.Log()[3], "disc (10,0) r=4 fill=00FF00/255 pen=FF0000/255/1");
    ASSERT_EQ(context.Log().size(), 4u);
    EXPECT_EQ(context.Log()[0], "line (0,0)(10,0) pen=FFFFFF/192/3");

    std::vector<int> reports;
    KestoKernel::ScopedVerifyHandler handler{[&](const KestoKernel::VerifyReport& r) { reports.push_back(r.line); }};
    tool.Draw(static_cast<KestoGDI::IRenderTarget*>(nullptr), false, K2DLtGeneral());
    tool.Draw(static_cast<KestoGDI::CRenderContext*>(nullptr));
    EXPECT_EQ(reports.size(), 2u);
}

TEST_F(DrawingTest, OutlineOnlyLinesDrawTheHaloAlone)
{
    tool.DrawControlLine(&target, true, Kesto2D::K2DCurve::Circle({0, 0}, 50), false);
    K2DArrayPoint poly;
    poly.Add({0, 0});
    poly.Add({3, 4});
    tool.DrawControlLine(&target, true, poly, false);
    EXPECT_EQ(target.Log(), (Lines{
                                "curve box[-50,-50,50,50] pen=FFFFFF/192/3",
                                "polyline (0,0)(3,4) pen=FFFFFF/192/3",
                            }));
}

TEST_F(DrawingTest, RenderContextDrawsSquaresWithTheSameLayers)
{
    KestoGDI::CRecordingRenderContext context(1.0);
    tool.SetCurrentNode(0);
    tool.DrawBoxControl(&context, CPoint(10, 20), 0x0000FFul, 1);
    tool.DrawControlLine(&context, CPoint(0, 0), CPoint(10, 0), false);
    EXPECT_EQ(context.Log(), (Lines{
                                 "rect [3,13,17,27] fill=FFFFFF/192 pen=none",
                                 "rect [6,16,14,24] fill=0000FF/255 pen=FF0000/255/1",
                                 "line (0,0)(10,0) pen=FFFFFF/192/3",
                                 "line (0,0)(10,0) pen=FF0000/255/1",
                             }));
    EXPECT_FALSE(context.GetPen()); // sessions restored the selection
    EXPECT_FALSE(context.GetBrush());
}
