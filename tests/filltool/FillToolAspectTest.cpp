// What Ctrl promises on an arm ("maintain aspect ratio") and what a new fill keeps from one move
// of its drawing drag to the next, for every tool whose fill is placed by an origin and two arms.
#include "kestotool/filltool/FillToolFactory.h"
#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/CFillEllipse.h"
#include "kestotool/gdi/CFillFourColour.h"
#include "kestotool/gdi/CFillFractal.h"
#include "kestotool/gdi/CFillSquare.h"
#include "kestotool/gdi/CFillThreeColour.h"
#include "support/TestDocument.h"
#include "support/TestToolSite.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numbers>

using namespace KestoTool;

namespace {

struct Kind {
    const char* name;
    // Origin (0, 0), arms to (200, 0) and (40, side 100).
    std::function<KestoKernel::RefPtr<CFill>(int side)> make;
};

template <class Fill>
KestoKernel::RefPtr<CFill> Placed(int side = 1)
{
    KestoKernel::RefPtr<CFill> fill(new Fill);
    const CPoint corners[] = {{0, 0}, {200, 0}, {40, side * 100}, {240, side * 100}};
    K2DArrayPoint points;
    for (int k = 0; k < fill->GetControlCount(); ++k)
        points.Add(corners[k]);
    fill->SetControls(points);
    return fill;
}

const Kind kKinds[] = {
    {"elliptical", Placed<KestoGDI::CFillEllipse>},       {"square", Placed<KestoGDI::CFillSquare>},
    {"three-colour", Placed<KestoGDI::CFillThreeColour>}, {"four-colour", Placed<KestoGDI::CFillFourColour>},
    {"plasma", Placed<KestoGDI::CFillFractal>},           {"bitmap", Placed<KestoGDI::CFillBitmap>},
};

// An arm of a committed fill: control point k relative to the origin.
K2DDblPoint Arm(const CFill& fill, int k)
{
    const Kesto2D::K2DVector v = fill.GetControlPoint(k) - fill.GetControlPoint(0);
    return {v.dx, v.dy};
}

double Length(K2DDblPoint v)
{
    return std::hypot(v.x, v.y);
}

double AngleBetween(K2DDblPoint a, K2DDblPoint b)
{
    return std::atan2(a.x * b.y - a.y * b.x, a.x * b.x + a.y * b.y) * 180 / std::numbers::pi;
}

class AspectTest : public testing::TestWithParam<Kind> {
protected:
    KestoTest::TestToolSite site;
    KestoTest::TestDocument document;

    void SetUp() override
    {
        site.document = &document;
        site.objectBox = CRect(-300, -300, 300, 300);
    }
};

} // namespace

TEST_P(AspectTest, CtrlOnAnArmKeepsTheRatioAndTheAngleOfTheArms)
{
    for (const int dragged : {1, 2}) {
        const int other = 3 - dragged;
        const KestoKernel::RefPtr<CFill> fill = GetParam().make(1);
        const double ratio = Length(Arm(*fill, other)) / Length(Arm(*fill, dragged));
        const double angle = AngleBetween(Arm(*fill, dragged), Arm(*fill, other));
        const CPoint end = fill->GetControlPoint(dragged).Round();
        const K2DDblPoint arm = Arm(*fill, dragged);
        const double unit = 1 / Length(arm);
        // Pulled out by 50 and by 100, and turned a sixth of a turn.
        const double turn = std::numbers::pi / 3;
        const K2DDblPoint turned(end.x * std::cos(turn) - end.y * std::sin(turn),
                                 end.x * std::sin(turn) + end.y * std::cos(turn));
        const auto pulled = [&](double by) {
            return K2DDblPoint(end.x + arm.x * unit * by, end.y + arm.y * unit * by).Round();
        };
        for (const CPoint target : {pulled(50), pulled(100), turned.Round()}) {
            auto tool = FillToolFactory::Create(fill.get(), &site);
            ASSERT_TRUE(tool);
            site.tool = tool.get();
            site.Drag(*tool, end, {target}, DragFlagCtrl);
            const CFill& result = *site.commits.back().fill;
            const std::string where = std::string(GetParam().name) + ", arm " + std::to_string(dragged) + " to (" +
                                      std::to_string(target.x) + ", " + std::to_string(target.y) + ")";
            EXPECT_NEAR(Length(Arm(result, other)) / Length(Arm(result, dragged)), ratio, 0.02 * ratio) << where;
            EXPECT_NEAR(AngleBetween(Arm(result, dragged), Arm(result, other)), angle, 1.0) << where;
        }
    }
}

TEST_P(AspectTest, ANewFillKeepsItsThirdPointOnTheSideOfItsFirstMove)
{
    // Drawn over a fill whose second arm lies on either side of its first.
    const auto thirdAfter = [&](int side, std::initializer_list<CPoint> moves) {
        const KestoKernel::RefPtr<CFill> fill = GetParam().make(side);
        auto tool = FillToolFactory::Create(fill.get(), &site);
        site.tool = tool.get();
        site.create = true;
        site.Drag(*tool, {-250, 250}, moves);
        site.create = false;
        const CFill& made = *site.commits.back().fill;
        const K2DDblPoint first = Arm(made, 1), second = Arm(made, 2);
        return first.x * second.y - first.y * second.x; // the side of the second arm
    };
    for (const int side : {1, -1}) {
        const double once = thirdAfter(side, {{-100, 200}});
        const double twice = thirdAfter(side, {{-100, 200}, {-80, 180}});
        EXPECT_NE(once, 0) << GetParam().name;
        EXPECT_EQ(once > 0, twice > 0) << GetParam().name << ", over a fill with its second arm at side " << side;
    }
}

INSTANTIATE_TEST_SUITE_P(Tools, AspectTest, testing::ValuesIn(kKinds), [](const testing::TestParamInfo<Kind>& param) {
    std::string name = param.param.name;
    std::erase(name, '-');
    return name;
});
