#include "kestotool/filltool/FillTool.h"

#include "kestotool/filltool/FillCommands.h"
#include "kestotool/filltool/FillToolImages.h"
#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillNone.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/tool/ToolIdMap.h"
#include "support/TestDocument.h"
#include "support/TestToolSite.h"

#include <gtest/gtest.h>

using namespace KestoTool;
using KestoGDI::CRGBColour;
using KestoPlatform::RGB;

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);

// A tool on a fill with a site that hands every commit back, as a host does.
class NodeColourTest : public testing::Test {
protected:
    KestoTest::TestToolSite site;
    KestoTest::TestDocument document;

    std::unique_ptr<FillTool> Tool(const CFill& fill)
    {
        site.document = &document;
        auto tool = std::make_unique<FillTool>(&fill, &site);
        site.tool = tool.get();
        return tool;
    }

    static COLORREF Rgb(const std::unique_ptr<CColour>& c) { return c ? c->GetRGB() : 0xFFFFFFFF; }
};

COLORREF StopRgb(const CFill* fill, int i)
{
    return dynamic_cast<const KestoGDI::CFillGradient&>(*fill).GetColourIntPairs().GetAt(i)->GetColour().GetRGB();
}

} // namespace

TEST_F(NodeColourTest, GradientNodesAreTheStartEndAndSelectedStops)
{
    auto tool = Tool(KestoGDI::CFillLinear());
    EXPECT_EQ(Rgb(tool->GetNodeColour(3)), kBlack);
    EXPECT_EQ(Rgb(tool->GetNodeColour(4)), kWhite);
    tool->SetCurrentNode(1);
    EXPECT_EQ(Rgb(tool->GetNodeColour(5)), kWhite);
    tool->SetCurrentNode(-1);
    EXPECT_EQ(tool->GetNodeColour(5), nullptr);
    tool->SetCurrentNode(2);
    EXPECT_EQ(tool->GetNodeColour(5), nullptr); // past the last stop
}

TEST_F(NodeColourTest, SettingAGradientNodeCommitsOneFillWithNoStepName)
{
    auto tool = Tool(KestoGDI::CFillLinear());
    tool->SetNodeColour(4, std::make_unique<CRGBColour>(kRed).get());
    ASSERT_EQ(site.commits.size(), 1u);
    EXPECT_FALSE(site.commits[0].hasName);
    EXPECT_FALSE(site.commits[0].transparency);
    EXPECT_EQ(StopRgb(site.commits[0].fill.get(), 1), kRed);
    EXPECT_EQ(StopRgb(site.commits[0].fill.get(), 0), kBlack);
    // The host handed the committed fill back.
    EXPECT_EQ(StopRgb(tool->GetFill(), 1), kRed);
}

TEST_F(NodeColourTest, SelectedNodePastTheEndIsClampedToTheLastStop)
{
    auto tool = Tool(KestoGDI::CFillLinear());
    tool->SetCurrentNode(7);
    tool->SetNodeColour(5, std::make_unique<CRGBColour>(kRed).get());
    ASSERT_EQ(site.commits.size(), 1u);
    EXPECT_EQ(StopRgb(site.commits[0].fill.get(), 1), kRed);
}

TEST_F(NodeColourTest, SolidNoneAndBitmapFills)
{
    auto solid = Tool(KestoGDI::CFillSolid(CRGBColour(kBlack), true));
    EXPECT_EQ(Rgb(solid->GetNodeColour(5)), kBlack);
    solid->SetNodeColour(5, std::make_unique<CRGBColour>(kRed).get());
    ASSERT_EQ(site.commits.size(), 1u);
    EXPECT_EQ(dynamic_cast<const KestoGDI::CFillSolid&>(*site.commits[0].fill).GetColour().GetRGB(), kRed);

    site.commits.clear();
    auto none = Tool(KestoGDI::CFillNone());
    EXPECT_EQ(none->GetNodeColour(3), nullptr);
    none->SetNodeColour(3, std::make_unique<CRGBColour>(kRed).get());
    ASSERT_EQ(site.commits.size(), 1u);
    const auto* became = dynamic_cast<const KestoGDI::CFillSolid*>(site.commits[0].fill.get());
    ASSERT_NE(became, nullptr);
    EXPECT_EQ(became->GetColour().GetRGB(), kRed);
    EXPECT_TRUE(none->GetFill()->IsSolid());

    site.commits.clear();
    auto bitmap = Tool(KestoGDI::CFillBitmap());
    bitmap->SetNodeColour(5, std::make_unique<CRGBColour>(kRed).get());
    EXPECT_TRUE(site.commits.empty());
}

TEST_F(NodeColourTest, HostCommandNumbersAreTranslatedToNodes)
{
    KestoTool::Init(20000, 20100);
    const int start = ToolIdMap::GetInstance().AllocateRange(FillToolKey, FillCommands::Count());
    ASSERT_NE(start, -1);
    auto tool = Tool(KestoGDI::CFillLinear());
    const int hostEnd = ToolIdMap::GetInstance().MapIDToApp(FillToolKey, 4);
    EXPECT_EQ(Rgb(tool->GetNodeColour(static_cast<unsigned>(hostEnd))), kWhite);
    EXPECT_TRUE(tool->IsNodeColourEnabled(static_cast<unsigned>(hostEnd)));
}

TEST_F(NodeColourTest, EnabledNodesDependOnTheFill)
{
    auto gradient = Tool(KestoGDI::CFillLinear());
    EXPECT_TRUE(gradient->IsNodeColourEnabled(3));
    EXPECT_TRUE(gradient->IsNodeColourEnabled(4));
    EXPECT_TRUE(gradient->IsNodeColourEnabled(5));
    auto solid = Tool(KestoGDI::CFillSolid());
    EXPECT_FALSE(solid->IsNodeColourEnabled(3));
    EXPECT_FALSE(solid->IsNodeColourEnabled(4));
    EXPECT_TRUE(solid->IsNodeColourEnabled(5));
}

TEST_F(NodeColourTest, AdjustAsksThePickerWithTheNodeColourAndCommitsItsAnswer)
{
    auto tool = Tool(KestoGDI::CFillLinear());
    document.helper.Answer(CRGBColour(kRed));
    document.helper.Cancel();
    tool->AdjustNodeColour(3);
    tool->AdjustNodeColour(4);
    ASSERT_EQ(document.helper.pickerCurrents.size(), 2u);
    EXPECT_EQ(document.helper.pickerCurrents[0]->GetRGB(), kBlack);
    ASSERT_EQ(site.commits.size(), 1u); // the cancelled pick changed nothing
    EXPECT_EQ(StopRgb(site.commits[0].fill.get(), 0), kRed);
}

TEST_F(NodeColourTest, AdjustOffersOpaqueWhiteWhenTheNodeHasNoColour)
{
    auto tool = Tool(KestoGDI::CFillBitmap());
    document.helper.Answer(CRGBColour(kRed));
    tool->AdjustNodeColour(5);
    ASSERT_EQ(document.helper.pickerCurrents.size(), 1u);
    EXPECT_EQ(document.helper.pickerCurrents[0]->GetRGB(), kWhite);
    EXPECT_EQ(document.helper.pickerCurrents[0]->GetAlpha(), 255);
    EXPECT_TRUE(site.commits.empty());
}
