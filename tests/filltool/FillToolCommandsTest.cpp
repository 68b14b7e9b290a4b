#include "kestotool/filltool/FillTool.h"

#include "kestotool/filltool/FillCommands.h"
#include "kestotool/filltool/FillToolFactory.h"
#include "kestotool/filltool/FillToolImages.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/gdi/CFillVector.h"
#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/CTransparencyFlat.h"
#include "kestotool/kernel/VerifyReporter.h"
#include "kestotool/platform/CCmdUI.h"
#include "kestotool/platform/CDialog.h"
#include "kestotool/platform/CSliderCtrl.h"
#include "kestotool/platform/CXTPControlComboBox.h"
#include "kestotool/platform/CXTPControlPopupColor.h"
#include "kestotool/platform/HeadlessBackend.h"
#include "kestotool/platform/ScreenMetrics.h"
#include "kestotool/resources/ResourceIds.h"
#include "kestotool/tool/NullToolSite.h"
#include "kestotool/tool/ToolIdMap.h"
#include "kestotool/ui/FillPreview.h"
#include "support/TestDocument.h"
#include "support/TestToolSite.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

using namespace KestoTool;
using KestoPlatform::CXTPControl;
using KestoPlatform::XTPControlType;

namespace {

// A tool on the test host with its bars, after the host granted IDs 30000..30100.
class CommandsTest : public testing::Test {
protected:
    KestoTest::TestToolSite site;
    KestoTest::TestDocument document;
    KestoPlatform::CXTPCommandBars bars;
    int base = 0;

    void SetUp() override
    {
        KestoTool::Init(30000, 30100);
        base = ToolIdMap::GetInstance().AllocateRange(FillToolKey, FillCommands::Count());
        ASSERT_EQ(base, 30000);
        site.document = &document;
        site.bars = &bars;
    }
    void TearDown() override { KestoPlatform::Headless().SetModalScript(nullptr); }

    std::unique_ptr<FillTool> Tool(const CFill& fill)
    {
        auto tool = std::make_unique<FillTool>(&fill, &site);
        site.tool = tool.get();
        return tool;
    }
    int Host(int number) const { return base + number; }
    bool Command(FillTool& tool, int number)
    {
        return tool.OnCmdMsg(Host(number), KestoPlatform::CN_COMMAND, nullptr, nullptr);
    }
};

// Opens the hint composer to the tests.
class HintTool : public FillTool {
public:
    using FillTool::ComposeHintLine;
    using FillTool::FillTool;
};

} // namespace

TEST_F(CommandsTest, ContextBarGetsTheEditCommandTheContextItemAndAFilledTypeCombo)
{
    auto tool = Tool(KestoGDI::CFillRadial());
    tool->InitContextButtons(&bars);
    EXPECT_EQ(site.contextItems, (std::vector<int>{Host(FillCmdEdit), 0, Host(FillCmdEditType)}));
    ASSERT_EQ(bars.GetCount(), 3);
    const CXTPControl* edit = bars.GetAt(0);
    EXPECT_EQ(edit->GetStyle(), KestoPlatform::XTPButtonStyle::IconAndCaption);
    EXPECT_EQ(edit->GetPrompt(),
              CString(L"Edit the selected object's fill properties.\nFill editor dialog\nEdit Fill"));
    auto* combo = dynamic_cast<KestoPlatform::CXTPControlComboBox*>(bars.GetAt(2));
    ASSERT_NE(combo, nullptr);
    EXPECT_EQ(combo->GetCount(), 13);
    EXPECT_EQ(combo->GetItemData(combo->GetCurSel()), KestoGDI::FillType::Radial);
}

TEST_F(CommandsTest, IconsAreRegisteredOnceAcrossTools)
{
    auto first = Tool(KestoGDI::CFillLinear());
    first->InitContextButtons(&bars);
    EXPECT_EQ(bars.GetImageManager()->GetImageCount(), 14 * 4);
    KestoPlatform::CXTPCommandBars otherBars;
    site.bars = &otherBars;
    auto second = Tool(KestoGDI::CFillLinear());
    second->InitContextButtons(&otherBars);
    EXPECT_EQ(otherBars.GetImageManager()->GetImageCount(), 0);
}

struct CreateRow {
    const char* name;
    int number;
    bool toolBar;
    bool handled;
    XTPControlType type; // the control the bars end up with
};

TEST_F(CommandsTest, ControlsAreCreatedByEachBranch)
{
    KestoPlatform::ScreenMetrics::SetLogPixelsX(144);
    auto tool = Tool(KestoGDI::CFillLinear());
    const CreateRow rows[] = {
        {"described popup on a toolbar: the toolkit makes it", FillCmdOpacityStart, true, true, XTPControlType::Popup},
        {"described popup off a toolbar: a plain button", FillCmdOpacityStart, false, true, XTPControlType::Button},
        {"popup-derived class off a toolbar: the tool's button", FillCmdFitFill, false, true, XTPControlType::Button},
        {"popup-derived class on a toolbar: made as described", FillCmdFitFill, true, true,
         XTPControlType::SplitButtonPopup},
        {"combo made as described", FillCmdEditType, true, true, XTPControlType::ComboBox},
        {"colour command: the helper's control", FillCmdSolid, true, true, XTPControlType::PopupColor},
        {"no description", FillCmdRotateLeft, true, false, XTPControlType::Button},
    };
    for (const auto& row : rows) {
        bool handled = false;
        CXTPControl* made = bars.CreateControl(
            Host(row.number), row.toolBar,
            [&](KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) { return handled = tool->OnCreateControl(cc) != 0; },
            [&](KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) { tool->OnAfterCreateControl(cc); });
        EXPECT_EQ(handled, row.handled) << row.name;
        EXPECT_EQ(made->GetType(), row.type) << row.name;
    }
    EXPECT_EQ(document.helper.colourControlsCreated, 1);
    EXPECT_EQ(bars.FindControl(Host(FillCmdEditType))->GetRect(), CRect(0, 0, 180, 33)); // 120 x 22 at 144 dpi
    EXPECT_EQ(bars.FindControl(Host(FillCmdOpacityStart))->GetStyle(), KestoPlatform::XTPButtonStyle::Caption);
    KestoPlatform::XTP_COMMANDBARS_CREATECONTROL foreign;
    foreign.nID = 12;
    EXPECT_FALSE(tool->OnCreateControl(&foreign));
}

TEST_F(CommandsTest, CommandsAndUpdatesAreDispatchedByHostIdAndForeignIdsIgnored)
{
    auto tool = Tool(KestoGDI::CFillLinear());
    document.helper.Answer(KestoGDI::CRGBColour(0x00FF00));
    EXPECT_TRUE(Command(*tool, FillCmdEnd));
    ASSERT_EQ(site.commits.size(), 1u);
    EXPECT_FALSE(tool->OnCmdMsg(base - 1, KestoPlatform::CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(
        tool->OnCmdMsg(FillCmdEnd, KestoPlatform::CN_COMMAND, nullptr, nullptr)); // a library number is no host ID
    EXPECT_EQ(document.helper.pickerCurrents.size(), 1u);

    KestoPlatform::CXTPControlPopupColor colour(Host(FillCmdEnd));
    KestoPlatform::CCmdUI ui(Host(FillCmdEnd), &colour);
    EXPECT_TRUE(ui.DoUpdate(tool.get()));
    EXPECT_EQ(colour.GetColor(), 0x00FF00u); // the end stop, as committed and handed back
    EXPECT_TRUE(ui.IsEnabled());
    EXPECT_TRUE(tool->RecognisedID(static_cast<unsigned>(Host(FillCmdSpaceMode))));
}

TEST_F(CommandsTest, TypeChangeReachesTheSiteAndANonComboIsReported)
{
    auto tool = Tool(KestoGDI::CFillLinear());
    KestoPlatform::CXTPControlComboBox combo(Host(FillCmdEditType));
    combo.AddString(L"Radial");
    combo.SetItemData(0, KestoGDI::FillType::Radial);
    combo.SetCurSel(0);
    KestoPlatform::NMXTPCONTROL notify;
    notify.pControl = &combo;
    long result = 0;
    KestoPlatform::AFX_NOTIFY extra{&result, &notify};
    EXPECT_TRUE(tool->OnCmdMsg(Host(FillCmdEditType), KestoPlatform::CN_NOTIFY(100), &extra, nullptr));
    EXPECT_EQ(site.typeRequests,
              std::vector<const KestoPlatform::CRuntimeClass*>{KestoGDI::CFillRadial::GetThisClass()});

    std::vector<int> lines;
    KestoKernel::ScopedVerifyHandler handler([&](const KestoKernel::VerifyReport& r) { lines.push_back(r.line); });
    KestoPlatform::CXTPControlButton button;
    notify.pControl = &button;
    tool->OnCmdMsg(Host(FillCmdEditType), KestoPlatform::CN_NOTIFY(100), &extra, nullptr);
    EXPECT_EQ(lines, std::vector<int>{1060});
    EXPECT_EQ(site.typeRequests.size(), 1u);
}

TEST_F(CommandsTest, EditFillRoundTripsThroughPageSpaceAndCommitsOnce)
{
    site.objectToSpread += Kesto2D::K2DLtTranslate(1000, 0);
    KestoGDI::CFillLinear fill;
    fill.SetControls(K2DDblPoint(0, 0), K2DDblPoint(100, 0));
    auto tool = Tool(fill);
    KestoPlatform::Headless().SetModalScript([](KestoPlatform::CDialog& d) {
        const KestoGDI::CFill* seen =
            dynamic_cast<const KestoUI::FillPreview*>(d.GetDlgItem(IDC_EDITOR_PREVIEW))->GetFill();
        EXPECT_EQ(seen->GetControlPoint(0), K2DDblPoint(1000, 0)); // the editor works in page space
        KestoPlatform::Headless().ClickButton(d, KestoPlatform::IDOK);
    });
    EXPECT_TRUE(Command(*tool, FillCmdEdit));
    ASSERT_EQ(site.commits.size(), 1u);
    EXPECT_FALSE(site.commits[0].hasName);
    EXPECT_TRUE(site.commits[0].fill->IsEqual(fill));
}

TEST_F(CommandsTest, EditFillKeepsAVectorFillsOwnTransform)
{
    KestoGDI::CFillVector vector;
    K2DLtGeneral own;
    own += Kesto2D::K2DLtScale(2, 2);
    vector.UpdateBBox(CRect(0, 0, 10, 10), own);
    site.objectBox = CRect(0, 0, 50, 40);
    auto tool = Tool(vector);
    KestoPlatform::Headless().SetModalScript(
        [](KestoPlatform::CDialog& d) { KestoPlatform::Headless().ClickButton(d, KestoPlatform::IDOK); });
    Command(*tool, FillCmdEdit);
    ASSERT_EQ(site.commits.size(), 1u);
    const auto& committed = dynamic_cast<const KestoGDI::CFillVector&>(*site.commits[0].fill);
    EXPECT_EQ(committed.GetTransform(), own);
    EXPECT_EQ(committed.GetObjectBox(), CRect(0, 0, 50, 40));
}

TEST_F(CommandsTest, EditTransparencyCommitsTheDialogsTransparency)
{
    KestoGDI::CTransparencyFlat flat;
    auto tool = Tool(flat);
    KestoPlatform::Headless().SetModalScript([](KestoPlatform::CDialog& d) {
        KestoPlatform::Headless().DragSlider(dynamic_cast<KestoPlatform::CSliderCtrl&>(*d.GetDlgItem(IDC_SOLID_SLIDER)),
                                             100);
        KestoPlatform::Headless().ClickButton(d, KestoPlatform::IDOK);
    });
    EXPECT_TRUE(Command(*tool, FillCmdTransEdit));
    ASSERT_EQ(site.commits.size(), 1u);
    EXPECT_TRUE(site.commits[0].transparency);
    EXPECT_FALSE(site.commits[0].flag);
    const auto& committed = dynamic_cast<const KestoGDI::CTransparencyFlat&>(*site.commits[0].fill);
    EXPECT_EQ(dynamic_cast<const KestoGDI::CMonoColour&>(committed.GetColour()).GetLevel(), 255);
}

TEST_F(CommandsTest, HintLinesPutTheSelectionBeforeTheText)
{
    HintTool fillTool(std::make_unique<KestoGDI::CFillLinear>().get(), &site);
    CString hint;
    EXPECT_TRUE(fillTool.ComposeHintLine(&hint, 148, 161));
    EXPECT_EQ(hint.Str(), L"Rectangle: |Drag| to create a new linear fill. |Click| to change selection. "
                          L"Drag colours onto fill line to add handles.");
    HintTool transparencyTool(std::make_unique<KestoGDI::CTransparencyFlat>().get(), &site);
    EXPECT_TRUE(transparencyTool.ComposeHintLine(&hint, 148, 162));
    EXPECT_EQ(hint.Str(), L"Rectangle: Hold |Shift| to constrain the angle of the transparency.");
    CString untouched(L"x");
    EXPECT_FALSE(transparencyTool.ComposeHintLine(&untouched, 148, -1));
    EXPECT_EQ(untouched, CString(L"x"));
    EXPECT_EQ(fillTool.GetHintLine(&untouched), 0);
}

namespace {

// A host written on the null site and helper: only the toolbar's item creation of its own.
class BareSite : public NullToolSite {
public:
    KestoPlatform::CXTPCommandBars bars;
    FillTool* tool = nullptr;
    void AddContextItem(int hostCommand) override
    {
        bars.CreateControl(
            hostCommand, true, [this](KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) { return tool->OnCreateControl(cc); },
            [this](KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) { tool->OnAfterCreateControl(cc); });
    }
};

} // namespace

TEST_F(CommandsTest, TheNullSiteOffersEveryKindConstrainsAnglesAndReportsWhatItIgnores)
{
    std::vector<std::string> reports;
    KestoKernel::ScopedVerifyHandler handler(
        [&](const KestoKernel::VerifyReport& r) { reports.push_back(r.file + ":" + std::to_string(r.line)); });
    BareSite bare;
    KestoGDI::CFillLinear line;
    line.SetControls(K2DDblPoint(0, 0), K2DDblPoint(1000, 0));
    FillTool& tool = *(bare.tool = FillToolFactory::Create(&line, &bare).release());
    const std::unique_ptr<FillTool> owned(&tool);
    tool.InitContextButtons(&bare.bars);
    auto* combo = dynamic_cast<KestoPlatform::CXTPControlComboBox*>(bare.bars.FindControl(Host(FillCmdEditType)));
    ASSERT_NE(combo, nullptr);
    EXPECT_EQ(combo->GetCount(), 13); // every kind, none and solid included

    // Shift on the end handle: the line turns onto the nearest 15 degrees, keeping its length.
    CPoint press(1000, 0), move(1600, 100);
    tool.OnDragStart(press, 0);
    tool.OnDragChange(move, DragFlagShift);
    tool.OnDragEnd(move, DragFlagShift);
    const auto* edited = dynamic_cast<const KestoGDI::CFillLinear*>(tool.GetFill());
    ASSERT_NE(edited, nullptr);
    const K2DDblPoint end = edited->GetEnd();
    EXPECT_NEAR(std::atan2(end.y, end.x), 0.0, 1e-9) << end.x << "," << end.y; // 3.6 degrees: to 0
    EXPECT_NEAR(end.x, std::hypot(1600.0, 100.0), 1.0);

    // A kind chosen in the combo reaches a site that ignores it: said once, with the fix.
    combo->SetCurSel(1);
    KestoPlatform::NMXTPCONTROL notify;
    notify.pControl = combo;
    long result = 0;
    KestoPlatform::AFX_NOTIFY extra{&result, &notify};
    for (int i = 0; i < 2; ++i)
        tool.OnCmdMsg(Host(FillCmdEditType), KestoPlatform::CN_NOTIFY(100), &extra, nullptr);
    // So is a combo left empty by a helper that offers nothing.
    for (int type = 0; type < 20; ++type)
        document.helper.unavailableFillTypes.insert(type);
    for (int i = 0; i < 2; ++i) {
        auto other = Tool(KestoGDI::CFillLinear());
        KestoPlatform::CXTPCommandBars more;
        site.bars = &more;
        other->InitContextButtons(&more);
    }
    EXPECT_EQ(reports, (std::vector<std::string>{"NullToolSite:1", "TypeCombos:1"}));
}

TEST_F(CommandsTest, ACommandsHostIdIsFoundDirectlyAndBack)
{
    struct Row {
        int number;
        int hostId;
    };
    for (const Row& row : {Row{FillCmdContext, 30000}, Row{FillCmdRotateLeft, 30006},
                           Row{FillCmdSpaceMode, 30000 + FillCommands::Count() - 1}, Row{-1, -1},
                           Row{FillCommands::Count(), -1}}) {
        EXPECT_EQ(FillCommands::HostId(row.number), row.hostId) << row.number;
        if (row.hostId != -1) {
            EXPECT_EQ(FillCommands::CommandOf(row.hostId), row.number);
        }
    }
    EXPECT_EQ(FillCommands::CommandOf(29999), -1);
    EXPECT_EQ(FillCommands::CommandOf(30000 + FillCommands::Count()), -1);
}
