#include "kestotool/dialogs/EditorEntryPoints.h"

#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/CFillDiscreteMesh.h"
#include "kestotool/gdi/CFillFourColour.h"
#include "kestotool/gdi/CFillFractal.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillNone.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CFillThreeColour.h"
#include "kestotool/gdi/CFillVector.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/CTransparencyBitmap.h"
#include "kestotool/gdi/CTransparencyFlat.h"
#include "kestotool/gdi/CTransparencyFractal.h"
#include "kestotool/gdi/CTransparencyLinear.h"
#include "kestotool/gdi/CTransparencyNone.h"
#include "kestotool/gdi/CTransparencyThreePoint.h"
#include "kestotool/platform/CXTPControlComboBox.h"
#include "kestotool/resources/ResourceIds.h"
#include "kestotool/ui/KCResourceDialog.h"
#include "support/TestDocument.h"
#include "support/UserInput.h"

#include <gtest/gtest.h>

#include <functional>

using namespace KestoTool;
using namespace KestoGDI;
using KestoTest::UserInput;

namespace {

constexpr int kChooser = -2; // the host's colour chooser rather than a dialog
constexpr int kNothing = -3; // no editor at all

// Runs on every window back end.
struct EditorTest : testing::TestWithParam<UserInput*> {
    UserInput& input = *GetParam();
    KestoTest::TestDocument document;
    int opened = kNothing;
    KestoPlatform::CWnd* openedParent = reinterpret_cast<KestoPlatform::CWnd*>(1);
    bool thirdButtonShown = false;

    // Each modal run records which template it showed, then confirms (or cancels).
    void Script(bool confirm)
    {
        input.SetModalScript([this, confirm](KestoPlatform::CDialog& d) {
            opened = static_cast<KestoUI::KCResourceDialog&>(d).GetTemplateId();
            openedParent = d.GetParent();
            if (KestoPlatform::CWnd* third = d.GetDlgItem(IDC_PREVIEW_EXPAND))
                thirdButtonShown = third->IsWindowVisible();
            input.ClickButton(d, confirm ? KestoPlatform::IDOK : KestoPlatform::IDCANCEL);
        });
    }
    void SetUp() override { input.Install(); }
    void TearDown() override { input.Uninstall(); }

    RefPtr<CFill> Edit(const CFill& fill)
    {
        opened = kNothing;
        const std::size_t picks = document.helper.pickerCurrents.size();
        RefPtr<CFill> result = EditFill(&document, &fill, CRect(0, 0, 100, 100), nullptr, {});
        if (document.helper.pickerCurrents.size() > picks)
            opened = kChooser;
        return result;
    }
};

struct RouteRow {
    std::function<RefPtr<CFill>()> make;
    int expected;
};

} // namespace

TEST_P(EditorTest, EachFillReachesItsEditorAndComesBackAsANewEqualFill)
{
    Script(true);
    const RouteRow rows[] = {
        {[] { return KestoKernel::MakeRef<CFillLinear>(); }, IDD_GRADIENT_FILL},
        {[] { return KestoKernel::MakeRef<CFillThreeColour>(); }, IDD_THREE_FOUR_COLOUR_FILL},
        {[] { return KestoKernel::MakeRef<CFillFourColour>(); }, IDD_THREE_FOUR_COLOUR_FILL},
        {[] { return KestoKernel::MakeRef<CFillFractal>(); }, IDD_PLASMA_FILL},
        {[] { return KestoKernel::MakeRef<CFillVector>(); }, IDD_VECTOR_FILL},
        {[] { return KestoKernel::MakeRef<CFillBitmap>(); }, kNothing},
        {[] { return KestoKernel::MakeRef<CFillDiscreteMesh>(); }, kNothing},
    };
    for (const auto& row : rows) {
        const RefPtr<CFill> fill = row.make();
        const RefPtr<CFill> before = fill->Clone();
        const RefPtr<CFill> result = Edit(*fill);
        SCOPED_TRACE(fill->GetRuntimeClass()->m_lpszClassName);
        EXPECT_EQ(opened, row.expected);
        EXPECT_EQ(bool(result), row.expected != kNothing);
        if (result) {
            EXPECT_NE(result.get(), fill.get());
            EXPECT_TRUE(result->IsEqual(*fill));
        }
        EXPECT_TRUE(fill->IsEqual(*before));
    }
}

TEST_P(EditorTest, CancelGivesNothingAndTheHelperSettingReachesTheDialog)
{
    Script(false);
    document.helper.dialogSetting = false;
    EXPECT_FALSE(Edit(CFillLinear()));
    EXPECT_EQ(opened, IDD_GRADIENT_FILL);
    EXPECT_FALSE(thirdButtonShown);
    Script(true);
    document.helper.dialogSetting = true;
    EXPECT_TRUE(Edit(CFillLinear()));
    EXPECT_TRUE(thirdButtonShown);
}

TEST_P(EditorTest, SolidAndNoneFillsGoToTheColourChooser)
{
    CFillSolid solid(CRGBColour(0x0000FF), true);
    solid.SetBlendMode(BlendMode::Multiply);
    solid.SetOverprint(true);
    document.helper.Answer(CRGBColour(0x00FF00));
    const RefPtr<CFill> recoloured = Edit(solid);
    EXPECT_EQ(opened, kChooser);
    EXPECT_EQ(document.helper.pickerCurrents.back()->GetRGB(), 0x0000FFu);
    const auto& result = dynamic_cast<const CFillSolid&>(*recoloured);
    EXPECT_EQ(result.GetColour().GetRGB(), 0x00FF00u);
    EXPECT_EQ(result.GetBlendMode(), BlendMode::Multiply);
    EXPECT_TRUE(result.GetOverprint());

    document.helper.Answer(CRGBColour(0x00FF00));
    const RefPtr<CFill> fromNone = Edit(CFillNone());
    EXPECT_EQ(document.helper.pickerCurrents.back(), nullptr);
    EXPECT_EQ(fromNone->GetRuntimeClass(), CFillSolid::GetThisClass());
    EXPECT_EQ(fromNone->GetBlendMode(), BlendMode::Normal);
    EXPECT_FALSE(fromNone->GetOverprint());

    document.helper.Cancel();
    EXPECT_FALSE(Edit(solid));
}

TEST_P(EditorTest, TransparenciesReachTheirEditorsWithOrWithoutADocument)
{
    Script(true);
    const RouteRow rows[] = {
        {[] { return KestoKernel::MakeRef<CTransparencyFlat>(); }, IDD_SOLID_TRANSPARENCY},
        {[] { return KestoKernel::MakeRef<CTransparencyNone>(); }, IDD_SOLID_TRANSPARENCY},
        {[] { return KestoKernel::MakeRef<CTransparencyThreePoint>(); }, IDD_THREE_FOUR_COLOUR_TRANSPARENCY},
        {[] { return KestoKernel::MakeRef<CTransparencyFractal>(); }, IDD_PLASMA_FILL},
        {[] { return KestoKernel::MakeRef<CTransparencyLinear>(); }, IDD_GRADIENT_TRANSPARENCY},
        {[] { return KestoKernel::MakeRef<CTransparencyBitmap>(); }, kNothing},
    };
    KestoPlatform::CWnd owner;
    for (const auto& row : rows) {
        const RefPtr<CFill> t = row.make();
        opened = kNothing;
        const RefPtr<CFill> result = EditTransparency(nullptr, t.get(), CRect(0, 0, 10, 10), &owner);
        SCOPED_TRACE(t->GetRuntimeClass()->m_lpszClassName);
        EXPECT_EQ(opened, row.expected);
        EXPECT_EQ(bool(result), row.expected != kNothing);
        if (row.expected == IDD_SOLID_TRANSPARENCY) {
            EXPECT_EQ(openedParent, nullptr); // this dialog never gets the parent
        } else if (row.expected != kNothing) {
            EXPECT_FALSE(thirdButtonShown); // no document: the setting is no
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Backends, EditorTest, testing::ValuesIn(KestoTest::UserInputs()), KestoTest::UserInputName());

TEST(TypeCombos, FilledOnceWithTheOfferedKindsAndKeptInStep)
{
    KestoTest::TestToolHelper helper;
    helper.unavailableFillTypes = {FillType::DiscreteMesh};
    KestoPlatform::CXTPControlComboBox fills;
    PopulateFillTypeCombo(&helper, &fills);
    PopulateFillTypeCombo(&helper, &fills);
    EXPECT_EQ(fills.GetCount(), 12);
    EXPECT_EQ(fills.GetDropDownItemCount(), 13);
    EXPECT_EQ(fills.GetLBText(2), CString(L"Linear"));
    EXPECT_EQ(fills.GetItemData(6), FillType::Plasma);

    SetCurrentFillComboIndex(&fills, std::make_unique<CFillFractal>().get());
    EXPECT_EQ(fills.GetCurSel(), 6);
    SetCurrentFillComboIndex(&fills, std::make_unique<CFillDiscreteMesh>().get());
    EXPECT_EQ(fills.GetCurSel(), -1);

    KestoPlatform::CXTPControlComboBox transparencies;
    PopulateTransTypeCombo(&helper, &transparencies);
    EXPECT_EQ(transparencies.GetCount(), 11);
    EXPECT_EQ(transparencies.GetDropDownItemCount(), 0); // left alone, unlike the fill combo
    SetCurrentTransComboIndex(&transparencies, std::make_unique<CTransparencyLinear>().get());
    EXPECT_EQ(transparencies.GetCurSel(), 2);
    SetCurrentTransComboIndex(&transparencies, std::make_unique<CFillVector>().get());
    EXPECT_EQ(transparencies.GetCurSel(), -1);

    KestoPlatform::CXTPControlButton notACombo;
    PopulateFillTypeCombo(&helper, &notACombo); // ignored
    SetCurrentFillComboIndex(&fills, nullptr);
    EXPECT_EQ(fills.GetCurSel(), -1);
}
