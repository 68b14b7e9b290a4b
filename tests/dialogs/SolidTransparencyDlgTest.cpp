#include "kestotool/dialogs/SolidTransparencyDlg.h"

#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/resources/ResourceIds.h"
#include "support/UserInput.h"

#include <gtest/gtest.h>

using namespace KestoTool;
using KestoGDI::CMonoColour;
using KestoGDI::CTransparencyFlat;
using KestoPlatform::CString;
using KestoTest::UserInput;

namespace {

int LevelOf(const KestoGDI::CFill* fill)
{
    const auto& flat = dynamic_cast<const CTransparencyFlat&>(*fill);
    return dynamic_cast<const CMonoColour&>(flat.GetColour()).GetLevel();
}

CTransparencyFlat Flat(int level)
{
    CTransparencyFlat t;
    t.SetColour(CMonoColour(level));
    return t;
}

// Runs on every window back end.
class SolidTransparencyDlgTest : public testing::TestWithParam<UserInput*> {
protected:
    void SetUp() override { input.Install(); }
    void TearDown() override { input.Uninstall(); }
    UserInput& input = *GetParam();
};

} // namespace

TEST(SolidTransparencyDlgConversions, PercentAndValueRoundHalvesUp)
{
    const struct {
        int value;
        int percent;
    } toPercent[] = {{255, 100}, {128, 50}, {0, 0}, {1, 0}, {2, 1}};
    for (const auto& row : toPercent)
        EXPECT_EQ(CSolidTransparencyDlg::ToPercentage(row.value), row.percent) << row.value;
    const struct {
        int percent;
        int value;
    } toValue[] = {{50, 128}, {0, 0}, {100, 255}, {1, 3}};
    for (const auto& row : toValue)
        EXPECT_EQ(CSolidTransparencyDlg::FromPercentage(row.percent), row.value) << row.percent;
}

TEST_P(SolidTransparencyDlgTest, UserDrivesSliderEditAndSpinThenConfirms)
{
    const CTransparencyFlat original = Flat(128);
    CSolidTransparencyDlg dialog(&original, nullptr);
    EXPECT_EQ(dialog.GetBBox(), CRect(0, 0, 1000, 1000));
    input.SetModalScript([this](KestoPlatform::CDialog& d) {
        auto& dlg = static_cast<CSolidTransparencyDlg&>(d);
        // Opened at 50 percent everywhere, the preview showing the transparency.
        EXPECT_EQ(dlg.GetEdit().GetWindowText(), CString(L"50"));
        EXPECT_EQ(dlg.GetSlider().GetPos(), 50);
        EXPECT_EQ(dlg.GetSpin().GetPos32(), 50);
        EXPECT_EQ(dlg.GetEdit().GetLimitText(), 3);
        EXPECT_EQ(dlg.GetPreview().GetBounds(), CRect(0, 0, 1000, 1000));
        EXPECT_EQ(LevelOf(dlg.GetPreview().GetFill()), 128);

        input.DragSlider(dlg.GetSlider(), 20);
        EXPECT_EQ(dlg.GetEdit().GetWindowText(), CString(L"20"));
        EXPECT_EQ(LevelOf(dlg.GetPreview().GetFill()), 51);
        EXPECT_EQ(LevelOf(dlg.GetTrans().get()), 51);

        // Typing 250 and moving on clamps to 100.
        dlg.GetEdit().SetFocus();
        dlg.GetEdit().SetSel(0, -1);
        input.Type(L"250");
        EXPECT_EQ(LevelOf(dlg.GetPreview().GetFill()), 51); // nothing happens while typing
        input.MoveFocus(&dlg.GetSlider());
        EXPECT_EQ(dlg.GetEdit().GetWindowText(), CString(L"100"));
        EXPECT_EQ(dlg.GetSlider().GetPos(), 100);
        EXPECT_EQ(LevelOf(dlg.GetPreview().GetFill()), 255);

        // A spin step down from what the edit shows.
        input.ClickSpin(dlg.GetSpin(), false);
        EXPECT_EQ(dlg.GetEdit().GetWindowText(), CString(L"99"));
        EXPECT_EQ(dlg.GetSlider().GetPos(), 99);
        EXPECT_EQ(LevelOf(dlg.GetPreview().GetFill()), 252);

        // A typed value is taken when OK takes the focus.
        dlg.GetEdit().SetFocus();
        dlg.GetEdit().SetSel(0, -1);
        input.Type(L"10");
        input.ClickButton(dlg, KestoPlatform::IDOK);
    });
    ASSERT_EQ(dialog.DoModal(), KestoPlatform::IDOK);
    EXPECT_EQ(LevelOf(dialog.GetTrans().get()), 26);
    EXPECT_EQ(LevelOf(&original), 128); // the caller's transparency is never touched
}

TEST_P(SolidTransparencyDlgTest, WithoutATransparencyItStartsFullyTransparent)
{
    CSolidTransparencyDlg dialog(nullptr, nullptr);
    EXPECT_EQ(LevelOf(dialog.GetTrans().get()), 255);
    input.SetModalScript([this](KestoPlatform::CDialog& d) {
        auto& dlg = static_cast<CSolidTransparencyDlg&>(d);
        EXPECT_EQ(dlg.GetEdit().GetWindowText(), CString(L"100"));
        input.ClickButton(dlg, KestoPlatform::IDCANCEL);
    });
    EXPECT_EQ(dialog.DoModal(), KestoPlatform::IDCANCEL);
}

TEST_P(SolidTransparencyDlgTest, SetTransHoldsACopyAndOnlyUpdateTransShowsIt)
{
    CSolidTransparencyDlg dialog(nullptr, nullptr);
    const CTransparencyFlat quarter = Flat(64);
    dialog.SetTrans(&quarter);
    EXPECT_EQ(LevelOf(dialog.GetTrans().get()), 64);
    EXPECT_EQ(dialog.GetPreview().GetFill(), nullptr);
    dialog.UpdateTrans(&quarter);
    EXPECT_EQ(LevelOf(dialog.GetPreview().GetFill()), 64);
    EXPECT_NE(dialog.GetTrans().get(), dialog.GetTrans().get()); // each call a new copy
}

INSTANTIATE_TEST_SUITE_P(Backends, SolidTransparencyDlgTest, testing::ValuesIn(KestoTest::UserInputs()),
                         KestoTest::UserInputName());
