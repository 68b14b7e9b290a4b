#include "kestotool/filltool/ToolGesture.h"

#include "kestotool/filltool/FillToolLinear.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CRGBColour.h"
#include "support/GestureSession.h"
#include "support/TestDocument.h"

#include <gtest/gtest.h>

using namespace KestoTool;
using KestoGDI::CFillLinear;

namespace {

// A linear fill from (0, 0) to (1000, 0) with a red stop at 5000.
CFillLinear LineWithStop()
{
    CFillLinear fill;
    fill.SetControls(K2DDblPoint(0, 0), K2DDblPoint(1000, 0));
    KestoGDI::ColourIntPairs stops = fill.GetColourIntPairs();
    stops.Add(KestoGDI::CRGBColour(KestoPlatform::RGB(255, 0, 0)), 5000);
    stops.Sort();
    fill.SetColourIntPairs(stops);
    return fill;
}

int MiddleStop(const CFill& fill)
{
    return dynamic_cast<const KestoGDI::CFillWithStops&>(fill).GetColourIntPairs().GetAt(1)->GetValue();
}

class ToolGestureTest : public testing::Test {
protected:
    KestoTest::SessionSite site; // records commits outside a gesture as undo steps
    KestoTest::TestDocument document;
    CFillLinear fill = LineWithStop();
    FillToolLinear tool{&fill, &site};

    void SetUp() override
    {
        site.document = &document;
        site.objectBox = CRect(0, 0, 1000, 200);
        site.tool = &tool;
    }
};

} // namespace

TEST_F(ToolGestureTest, ADragIsOneStepFromThePressFillToACopyOfTheEndFill)
{
    site.gesture.Press(tool, {500, 0}, 0);
    EXPECT_TRUE(site.IsInDrag());
    site.gesture.Move({700, 0}, 0);
    site.gesture.Move({800, 0}, 0);
    const auto step = site.gesture.Release({800, 0}, 0);
    EXPECT_FALSE(site.IsInDrag());
    ASSERT_TRUE(step);
    EXPECT_EQ(site.history.Size(), 0); // the tool's commits during the drag made no step
    EXPECT_EQ(MiddleStop(*step->before), 5000);
    EXPECT_EQ(MiddleStop(*step->after), 8000);
    EXPECT_NE(step->after.get(), tool.GetFill());

    // The step keeps its fills while the tool goes on editing its own.
    site.gesture.Press(tool, {800, 0}, 0);
    site.gesture.Move({300, 0}, 0);
    ASSERT_TRUE(site.gesture.Release({300, 0}, 0));
    EXPECT_EQ(MiddleStop(*step->after), 8000);
    EXPECT_EQ(MiddleStop(*tool.GetFill()), 3000);
}

TEST_F(ToolGestureTest, ShowNowHandsTheWorkingFillAfterThePressAndEveryMove)
{
    std::vector<int> shown;
    site.gesture.SetShowNow([&](const CFill& working) { shown.push_back(MiddleStop(working)); });
    site.gesture.Press(tool, {500, 0}, 0);
    site.gesture.Move({600, 0}, 0);
    site.gesture.Move({700, 0}, 0);
    ASSERT_TRUE(site.gesture.Release({700, 0}, 0));
    site.gesture.Move({800, 0}, 0); // after the gesture: nothing to show
    EXPECT_EQ(shown, (std::vector<int>{5000, 6000, 7000}));
}

TEST_F(ToolGestureTest, AGestureThatChangesNothingMakesNoStep)
{
    site.gesture.Press(tool, {500, 0}, 0);
    EXPECT_FALSE(site.gesture.Release({500, 0}, 0));

    site.gesture.Press(tool, {500, 0}, 0);
    site.gesture.Move({900, 0}, 0);
    site.gesture.Move({500, 0}, 0);
    EXPECT_FALSE(site.gesture.Release({500, 0}, 0));
    EXPECT_EQ(site.history.Size(), 0);
}

TEST_F(ToolGestureTest, OutsideAGestureACommitIsTheHostsOwnStepAndReleaseAnswersNothing)
{
    EXPECT_FALSE(site.gesture.Release({500, 0}, 0));
    site.gesture.Move({900, 0}, 0);
    site.UpdateFill(fill.Clone().get(), L"Colour");
    EXPECT_EQ(site.history.Size(), 1);

    site.gesture.Press(tool, {500, 0}, 0, true);
    EXPECT_TRUE(site.IsCreate());
    site.gesture.Cancel();
    EXPECT_FALSE(site.IsInDrag());
    EXPECT_FALSE(site.IsCreate());
    EXPECT_FALSE(site.gesture.Release({900, 0}, 0));
}
