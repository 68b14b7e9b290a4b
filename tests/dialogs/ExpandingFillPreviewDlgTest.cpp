#include "kestotool/dialogs/GradientFillDlg.h"
#include "kestotool/dialogs/ThreeAndFourColourFillDlg.h"

#include "kestotool/filltool/FillToolLinear.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CFillThreeColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/platform/ScreenMetrics.h"
#include "support/TestDocument.h"
#include "support/UserInput.h"

#include <gtest/gtest.h>

using namespace KestoTool;
using namespace KestoGDI;
using KestoPlatform::CPoint;
using KestoPlatform::CRect;

namespace {

CFillLinear Linear(const CRect& box)
{
    CFillLinear fill;
    fill.SetDefaultControls(box);
    return fill;
}

} // namespace

TEST(ExpandingFillPreviewDlg, IsTheSiteOfItsPreviewsToolAsTheTableSays)
{
    KestoTest::UserInput& input = *KestoTest::UserInputs().front();
    input.Install();
    KestoTest::TestDocument document;
    const CFillLinear fill = Linear(CRect(0, 0, 1000, 1000));
    CGradientFillDlg dialog(&document, &fill, CRect(), nullptr);
    IToolSite& site = dialog;
    // An empty object rectangle is replaced by a square of 1000 units, for the tool too.
    EXPECT_EQ(site.GetObjectBBox(), CRect(0, 0, 1000, 1000));
    EXPECT_EQ(site.GetTransformedObjectBBox(), CRect(0, 0, 1000, 1000));
    EXPECT_EQ(site.GetToolColour(), 0xC00000u);
    EXPECT_FALSE(site.IsCreate());
    EXPECT_FALSE(site.IsInDrag());
    EXPECT_EQ(site.GetDocument(), &document);
    EXPECT_TRUE(site.GetCurrentSelectionDescription().IsEmpty());
    EXPECT_EQ(site.GetAngleSnapTolerance(), 5.0);
    CPoint p(13, 17);
    site.Snap(CPoint(500, 500), p);
    site.ConstrainAngle(CPoint(0, 0), p, true);
    EXPECT_EQ(p, CPoint(13, 17));

    // Screen pixels to paper: dots per inch over 96, times the preview's units per pixel. The
    // preview 270 units wide shows the 1000-unit object fitted into 80% of it; zoomed to 200%,
    // a unit is half as many document units.
    input.SetModalScript([&](KestoPlatform::CDialog&) {
        KestoPlatform::ScreenMetrics::SetLogPixelsX(192);
        const struct {
            int zoom, cx, cy;
        } rows[] = {{100, 370, 185}, {200, 185, 93}};
        for (const auto& row : rows) {
            dialog.GetPreview().SetZoom(row.zoom);
            KestoPlatform::SIZE size{40, 20};
            site.ClientToPaper(&size);
            EXPECT_EQ(size.cx, row.cx) << row.zoom;
            EXPECT_EQ(size.cy, row.cy) << row.zoom;
        }
        KestoPlatform::ScreenMetrics::SetLogPixelsX(96);
    });
    dialog.DoModal();

    ASSERT_NE(dynamic_cast<FillToolLinear*>(dialog.GetTool()), nullptr);
    CString hint;
    dialog.GetTool()->GetHintLine(&hint);
    EXPECT_FALSE(hint.IsEmpty());
    input.Uninstall();
}

TEST(ExpandingFillPreviewDlg, AKindWithoutAToolKeepsThePreviousTool)
{
    KestoTest::TestDocument document;
    const CFillSolid solid(CRGBColour(0x123456), false);
    CGradientFillDlg none(&document, nullptr, CRect(0, 0, 100, 100), nullptr);
    none.SetEditedFill(&solid);
    EXPECT_EQ(none.GetTool(), nullptr);
    none.PreviewPress(CPoint(10, 10), 0); // goes nowhere
    EXPECT_FALSE(none.IsInDrag());

    const CFillLinear fill = Linear(CRect(0, 0, 100, 100));
    CGradientFillDlg dialog(&document, &fill, CRect(0, 0, 100, 100), nullptr);
    FillTool* tool = dialog.GetTool();
    dialog.SetEditedFill(&solid);
    EXPECT_EQ(dialog.GetTool(), tool);
    EXPECT_EQ(dialog.GetFill()->GetFillType(), FillType::Solid);
}

// A drag of the end handle in the preview: the flag is up for the gesture only, and the editor
// takes the committed fill by its rule; OK hands over what the user made.
TEST(ExpandingFillPreviewDlg, APreviewDragCommitsToTheDialogByItsRule)
{
    KestoTest::UserInput& input = *KestoTest::UserInputs().front();
    input.Install();
    KestoTest::TestDocument document;
    const CFillLinear fill = Linear(CRect(0, 0, 1000, 1000));
    const CPoint end = fill.GetEnd().Round();
    const CPoint moved(end.x, end.y + 300);

    CGradientFillDlg stops(&document, &fill, CRect(0, 0, 1000, 1000), nullptr);
    CThreeAndFourColourFillDlg toolOnly(&document, &fill, CRect(0, 0, 1000, 1000), nullptr);
    for (ExpandingFillPreviewDlg* dialog :
         {static_cast<ExpandingFillPreviewDlg*>(&stops), static_cast<ExpandingFillPreviewDlg*>(&toolOnly)}) {
        dialog->PreviewPress(end, 0);
        EXPECT_TRUE(dialog->IsInDrag());
        dialog->PreviewMove(moved, 0);
        dialog->PreviewRelease(moved, 0);
        EXPECT_FALSE(dialog->IsInDrag());
        EXPECT_EQ(dynamic_cast<const CFillLinear&>(*dialog->GetTool()->GetFill()).GetEnd().Round(), moved);

        input.SetModalScript([&](KestoPlatform::CDialog& d) { input.ClickButton(d, KestoPlatform::IDOK); });
        ASSERT_EQ(dialog->DoModal(), KestoPlatform::IDOK);
        const RefPtr<CFill> result = dialog->TakeFill();
        ASSERT_NE(result, nullptr);
        EXPECT_EQ(dynamic_cast<const CFillLinear&>(*result).GetEnd().Round(), moved);
    }
    // The stop-list editors rebuild their own fill from the commit; the others leave it as opened.
    EXPECT_EQ(dynamic_cast<const CFillLinear&>(*stops.GetFill()).GetEnd().Round(), moved);
    EXPECT_EQ(dynamic_cast<const CFillLinear&>(*toolOnly.GetFill()).GetEnd().Round(), end);
    input.Uninstall();
}
