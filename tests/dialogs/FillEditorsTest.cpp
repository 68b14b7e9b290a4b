// The editors as a user works them, on every window back end: their own controls, drags on the
// stop bar and on the preview, the preview pane, and what OK and Cancel hand back.
#include "kestotool/dialogs/GradientFillDlg.h"
#include "kestotool/dialogs/GradientTranspDlg.h"
#include "kestotool/dialogs/PlasmaFillDlg.h"
#include "kestotool/dialogs/ThreeAndFourColourFillDlg.h"
#include "kestotool/dialogs/ThreeAndFourColourTranspDlg.h"
#include "kestotool/dialogs/VectorFillDlgBase.h"
#include "kestotool/filltool/FillToolVector.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CFillThreeColour.h"
#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/CTransparencyFourPoint.h"
#include "kestotool/gdi/CTransparencyLinear.h"
#include "kestotool/gdi/FillKinds.h"
#include "kestotool/gdi/VectorDrawing.h"
#include "kestotool/resources/ResourceIds.h"
#include "support/TestDocument.h"
#include "support/UserInput.h"

#include <gtest/gtest.h>

using namespace KestoTool;
using namespace KestoGDI;
using KestoTest::UserInput;
using KestoPlatform::CPoint;
using KestoPlatform::CRect;
using KestoPlatform::RGB;

namespace {

const CRect kObject(0, 0, 1000, 1000);

ColourIntPairs RedToBlue()
{
    ColourIntPairs stops;
    stops.Add(CRGBColour(RGB(255, 0, 0)), 0);
    stops.Add(CRGBColour(RGB(0, 0, 255)), 10000);
    return stops;
}

template <class Fill>
Fill Placed(const ColourIntPairs& stops)
{
    Fill fill;
    fill.SetDefaultControls(kObject);
    fill.SetColourIntPairs(stops);
    return fill;
}

const ColourIntPairs& StopsOf(const CFill* fill)
{
    return dynamic_cast<const CFillWithStops&>(*fill).GetColourIntPairs();
}

// Where a bar position lies in the bar's client area, half way down.
CPoint OnBar(GradientBar& bar, int position)
{
    return bar.GetViewTransform().ApplyTo(CPoint(position, GradientBar::Height / 2));
}

class FillEditors : public testing::TestWithParam<UserInput*> {
protected:
    void SetUp() override { input.Install(); }
    void TearDown() override { input.Uninstall(); }
    // Types text into a box and moves on, as a user does.
    void Enter(KestoPlatform::CEdit& edit, const wchar_t* text, KestoPlatform::CWnd& next)
    {
        input.MoveFocus(&edit);
        input.EnterText(text);
        input.MoveFocus(&next);
    }

    UserInput& input = *GetParam();
    KestoTest::TestDocument document;
};

} // namespace

TEST_P(FillEditors, GradientStopsKindAngleAndPreviewDragComeBackOnOK)
{
    const CFillLinear linear = Placed<CFillLinear>(RedToBlue());
    CGradientFillDlg dialog(&document, &linear, kObject, nullptr);
    input.SetColourScript([](KestoPlatform::COLORREF) { return RGB(0, 200, 0); });
    input.SetModalScript([&](KestoPlatform::CDialog&) {
        GradientBar& bar = dialog.GetBar();
        ASSERT_EQ(bar.GetStops().GetSize(), 2);
        // A click between the markers adds a stop there in the colour the bar shows.
        input.DragMouse(bar, OnBar(bar, 5000), OnBar(bar, 5000));
        ASSERT_EQ(StopsOf(dialog.GetFill()).GetSize(), 3);
        EXPECT_EQ(bar.GetSelected(), 1);
        EXPECT_EQ(StopsOf(dialog.GetFill()).GetAt(1)->GetColour().GetRGB(), RGB(128, 0, 128));
        // Dragged to a quarter, then placed at 75% through its box.
        input.DragMouse(bar, OnBar(bar, 5000), OnBar(bar, 2500));
        EXPECT_NEAR(StopsOf(dialog.GetFill()).GetAt(1)->GetValue(), 2500, 40);
        Enter(dialog.GetPositionEdit(), L"75", dialog.GetAngleEdit());
        EXPECT_EQ(StopsOf(dialog.GetFill()).GetAt(1)->GetValue(), 7500);
        EXPECT_EQ(dialog.GetPositionEdit().GetWindowText(), KestoPlatform::CString(L"75"));
        // Recoloured through the chooser, half opaque, and the gradient turned to 90 degrees.
        input.ClickButton(dialog, IDC_STOP_COLOUR);
        Enter(dialog.GetLevelEdit(), L"50", dialog.GetAngleEdit());
        const CColour& colour = StopsOf(dialog.GetFill()).GetAt(1)->GetColour();
        EXPECT_EQ(colour.GetRGB(), RGB(0, 200, 0));
        EXPECT_EQ(colour.GetAlpha(), 128);
        Enter(dialog.GetAngleEdit(), L"90", dialog.GetPositionEdit());
        EXPECT_DOUBLE_EQ(StopListEditorDlg::AngleOf(*dialog.GetFill()), 90.0);

        // Another kind keeps the stops; the preview's tool is that kind's.
        input.SelectItem(dialog.GetKindCombo(), 1);
        ASSERT_EQ(dialog.GetFill()->GetFillType(), FillType::Radial);
        EXPECT_EQ(StopsOf(dialog.GetFill()).GetSize(), 3);
        ASSERT_NE(dialog.GetTool(), nullptr);

        // The rim handle dragged in the preview: the tool commits to the dialog.
        KestoUI::FillControl& preview = dialog.GetPreview();
        const CPoint rim = preview.GetViewTransform().ApplyTo(dialog.GetFill()->GetControlPoint(1).Round());
        const CPoint to(rim.x + 20, rim.y + 10);
        input.DragMouse(preview, rim, to);
        EXPECT_FALSE(dialog.IsInDrag());
        EXPECT_EQ(dialog.GetFill()->GetControlPoint(1).Round(), preview.ClientToDocument(to));
        EXPECT_EQ(StopsOf(dialog.GetFill()).GetSize(), 3);

        // Delete takes the selected stop, and stops at the kind's minimum.
        input.ClickButton(dialog, IDC_STOP_DELETE);
        EXPECT_EQ(StopsOf(dialog.GetFill()).GetSize(), 2);
        EXPECT_FALSE(dialog.GetDlgItem(IDC_STOP_DELETE)->IsWindowEnabled());
        input.ClickButton(dialog, KestoPlatform::IDOK);
    });
    ASSERT_EQ(dialog.DoModal(), KestoPlatform::IDOK);
    const RefPtr<CFill> result = dialog.TakeFill();
    ASSERT_NE(result, nullptr);
    EXPECT_TRUE(result->IsEqual(*dialog.GetFill()));
    EXPECT_EQ(StopsOf(&linear), RedToBlue()); // the caller's fill is never touched
}

TEST_P(FillEditors, CancelHandsBackNothing)
{
    const CFillLinear linear = Placed<CFillLinear>(RedToBlue());
    CGradientFillDlg dialog(&document, &linear, kObject, nullptr);
    input.SetModalScript([&](KestoPlatform::CDialog&) {
        input.DragMouse(dialog.GetBar(), OnBar(dialog.GetBar(), 3000), OnBar(dialog.GetBar(), 3000));
        input.ClickButton(dialog, KestoPlatform::IDCANCEL);
    });
    EXPECT_EQ(dialog.DoModal(), KestoPlatform::IDCANCEL);
    EXPECT_EQ(dialog.TakeFill(), nullptr);
}

TEST_P(FillEditors, TransparencyStopsAreLevelsWithoutAColourButton)
{
    ColourIntPairs levels;
    levels.Add(CMonoColour(0), 0);
    levels.Add(CMonoColour(255), 10000);
    const CTransparencyLinear transparency = Placed<CTransparencyLinear>(levels);
    CGradientTranspDlg dialog(&document, &transparency, kObject, nullptr);
    input.SetModalScript([&](KestoPlatform::CDialog&) {
        EXPECT_FALSE(dialog.GetDlgItem(IDC_STOP_COLOUR)->IsWindowVisible());
        EXPECT_EQ(dialog.GetKindCombo().GetLBText(dialog.GetKindCombo().GetCurSel()),
                  KestoPlatform::CString(FillKinds::Find(FillType::Linear)->transparencyName));
        dialog.GetBar().Select(1);
        Enter(dialog.GetLevelEdit(), L"20", dialog.GetAngleEdit());
        input.ClickButton(dialog, KestoPlatform::IDOK);
    });
    ASSERT_EQ(dialog.DoModal(), KestoPlatform::IDOK);
    const RefPtr<CFill> result = dialog.TakeFill();
    ASSERT_TRUE(result && result->IsTransparency());
    EXPECT_EQ(dynamic_cast<const CMonoColour&>(StopsOf(result.get()).GetAt(1)->GetColour()).GetLevel(), 51);
}

TEST_P(FillEditors, PlasmaPatternControls)
{
    CFillFractal plasma = Placed<CFillFractal>(RedToBlue());
    plasma.SetSeed(7);
    plasma.SetTileInverted(false);
    CPlasmaFillDlg dialog(&document, &plasma, kObject, nullptr);
    dialog.SetSeedSource([] { return 424242u; });
    input.SetModalScript([&](KestoPlatform::CDialog&) {
        EXPECT_EQ(dialog.GetSeedEdit().GetWindowText(), KestoPlatform::CString(L"7"));
        input.ClickButton(dialog, IDC_PLASMA_NEW_SEED);
        EXPECT_EQ(dialog.GetSeedEdit().GetWindowText(), KestoPlatform::CString(L"424242"));
        Enter(dialog.GetResolutionEdit(), L"5000", dialog.GetSeedEdit()); // clamped
        Enter(dialog.GetSeedEdit(), L"-3", dialog.GetResolutionEdit());   // refused
        input.DragSlider(dialog.GetGrainSlider(), 80);
        input.ClickButton(dialog, IDC_PLASMA_INVERT);
        EXPECT_TRUE(dialog.GetInvertBox().GetCheck());
        input.ClickButton(dialog, KestoPlatform::IDOK);
    });
    ASSERT_EQ(dialog.DoModal(), KestoPlatform::IDOK);
    const RefPtr<CFill> result = dialog.TakeFill();
    const auto& edited = dynamic_cast<const CFillFractal&>(*result);
    EXPECT_EQ(edited.GetSeed(), 424242u);
    EXPECT_EQ(edited.GetResolution(), CFillFractal::MaxResolution);
    EXPECT_EQ(edited.GetGrain(), 80);
    EXPECT_TRUE(edited.GetTileInverted());
    EXPECT_EQ(dialog.GetSeedEdit().GetWindowText(), KestoPlatform::CString(L"424242"));
}

TEST_P(FillEditors, CornerColoursAndLevelsCommitToTheTool)
{
    ColourIntPairs corners;
    for (const KestoPlatform::COLORREF c : {RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255)})
        corners.Add(CRGBColour(c), 0);
    const CFillThreeColour three = Placed<CFillThreeColour>(corners);
    CThreeAndFourColourFillDlg fillDialog(&document, &three, kObject, nullptr);
    input.SetColourScript([](KestoPlatform::COLORREF) { return RGB(9, 9, 9); });
    input.SetModalScript([&](KestoPlatform::CDialog&) {
        EXPECT_FALSE(fillDialog.GetColourButton(3).IsWindowVisible()); // three corners
        EXPECT_FALSE(fillDialog.GetLevelEdit(0).IsWindowVisible());
        input.ClickButton(fillDialog, IDC_CORNER_COLOUR_FIRST + 1);
        input.ClickButton(fillDialog, KestoPlatform::IDOK);
    });
    ASSERT_EQ(fillDialog.DoModal(), KestoPlatform::IDOK);
    EXPECT_EQ(StopsOf(fillDialog.TakeFill().get()).GetAt(1)->GetColour().GetRGB(), RGB(9, 9, 9));

    ColourIntPairs levels;
    for (int i = 0; i < 4; ++i)
        levels.Add(CMonoColour(0), 0);
    const CTransparencyFourPoint four = Placed<CTransparencyFourPoint>(levels);
    CThreeAndFourColourTranspDlg transpDialog(&document, &four, kObject, nullptr);
    input.SetModalScript([&](KestoPlatform::CDialog&) {
        EXPECT_FALSE(transpDialog.GetColourButton(0).IsWindowVisible());
        Enter(transpDialog.GetLevelEdit(3), L"100", transpDialog.GetLevelEdit(0));
        input.ClickButton(transpDialog, KestoPlatform::IDOK);
    });
    ASSERT_EQ(transpDialog.DoModal(), KestoPlatform::IDOK);
    EXPECT_EQ(dynamic_cast<const CMonoColour&>(StopsOf(transpDialog.TakeFill().get()).GetAt(3)->GetColour()).GetLevel(),
              255);
}

TEST_P(FillEditors, VectorModeResetAndTransformWithObject)
{
    auto drawing = KestoKernel::MakeRef<VectorDrawing>(400, 400);
    CFillVector vector{drawing};
    vector.SetDefaultControls(kObject);
    CVectorFillDlgBase dialog(&document, &vector, kObject, nullptr, IDD_VECTOR_FILL, {});
    input.SetModalScript([&](KestoPlatform::CDialog&) {
        EXPECT_EQ(dialog.GetModeButton().GetWindowText(), KestoPlatform::CString(L"Scaling Mode"));
        input.ClickButton(dialog, IDC_VECTOR_MODE);
        EXPECT_EQ(dialog.GetModeButton().GetWindowText(), KestoPlatform::CString(L"Spacing Mode"));
        EXPECT_EQ(dialog.GetTool()->GetControlBoxMode(), FillToolVector::SpacingMode);
        const bool withObject = dialog.GetTransformBox().GetCheck();
        input.ClickButton(dialog, IDC_VECTOR_TRANSFORM);
        EXPECT_EQ(dynamic_cast<const CFillVector&>(*dialog.GetCurrentFill()).ScaleRotateIndependentOfObject(),
                  withObject);
        input.ClickButton(dialog, IDC_VECTOR_RESET);
        input.ClickButton(dialog, KestoPlatform::IDOK);
    });
    ASSERT_EQ(dialog.DoModal(), KestoPlatform::IDOK);
    EXPECT_NE(dialog.TakeFill(), nullptr);
}

TEST_P(FillEditors, PreviewPaneZoomsAndHides)
{
    const CFillLinear linear = Placed<CFillLinear>(RedToBlue());
    CGradientFillDlg dialog(&document, &linear, kObject, nullptr);
    input.SetModalScript([&](KestoPlatform::CDialog&) {
        KestoUI::FillControl& preview = dialog.GetPreview();
        KestoPlatform::CComboBox& zoom = dialog.GetZoomCombo();
        EXPECT_EQ(zoom.GetLBText(zoom.GetCurSel()), KestoPlatform::CString(L"Zoom to Fit"));
        EXPECT_EQ(dialog.GetDlgItem(IDC_PREVIEW_ZOOM_IN)->GetToolTipText(), KestoPlatform::CString(L"Zoom preview in"));
        input.ClickButton(dialog, IDC_PREVIEW_ZOOM_IN);
        EXPECT_EQ(preview.GetZoom(), 150);
        EXPECT_EQ(zoom.GetLBText(zoom.GetCurSel()), KestoPlatform::CString(L"150%"));
        input.ClickButton(dialog, IDC_PREVIEW_ZOOM_OUT);
        input.ClickButton(dialog, IDC_PREVIEW_ZOOM_OUT);
        EXPECT_EQ(preview.GetZoom(), 75);
        input.SelectItem(zoom, 0);
        EXPECT_EQ(preview.GetZoom(), 25);

        const int wide = dialog.GetWindowRect().Width();
        input.ClickButton(dialog, IDC_PREVIEW_EXPAND);
        EXPECT_FALSE(dialog.IsExpanded());
        EXPECT_FALSE(preview.IsWindowVisible());
        EXPECT_EQ(dialog.GetWindowRect().Width(), preview.GetWindowRect().left);
        input.ClickButton(dialog, IDC_PREVIEW_EXPAND);
        EXPECT_TRUE(preview.IsWindowVisible());
        EXPECT_EQ(dialog.GetWindowRect().Width(), wide);
        input.ClickButton(dialog, KestoPlatform::IDCANCEL);
    });
    dialog.DoModal();

    // Without the helper setting the show/hide button is not there.
    dialog.SetHelperSetting(false);
    input.SetModalScript([&](KestoPlatform::CDialog&) {
        EXPECT_FALSE(dialog.GetDlgItem(IDC_PREVIEW_EXPAND)->IsWindowVisible());
        input.ClickButton(dialog, KestoPlatform::IDCANCEL);
    });
    dialog.DoModal();
}

INSTANTIATE_TEST_SUITE_P(Backends, FillEditors, testing::ValuesIn(KestoTest::UserInputs()), KestoTest::UserInputName());
