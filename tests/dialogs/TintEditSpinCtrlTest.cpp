#include "kestotool/dialogs/TintEditSpinCtrl.h"

#include "kestotool/kernel/VerifyReporter.h"
#include "kestotool/platform/CDialog.h"
#include "kestotool/platform/CSpinButtonCtrl.h"
#include "support/UserInput.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace KestoTool;
using KestoPlatform::CString;
using KestoTest::UserInput;

namespace {

constexpr int kTintId = 100;
constexpr int kSpinId = 101;
constexpr int kOtherId = 102;

const KestoPlatform::DialogTemplate kTemplate{
    1,
    L"Tint",
    KestoPlatform::CRect(0, 0, 200, 100),
    {{"Edit", kTintId, KestoPlatform::CRect(10, 10, 60, 30), L""},
     {"Spin", kSpinId, KestoPlatform::CRect(60, 10, 75, 30), L""},
     {"Edit", kOtherId, KestoPlatform::CRect(10, 40, 60, 60), L""}},
};

// A dialog holding a tint control; it logs the commands its children send.
class TintDialog : public KestoPlatform::CDialog {
public:
    explicit TintDialog(bool updateWhileTyping, int bindId = kTintId)
        : CDialog(&kTemplate, nullptr), tint(updateWhileTyping, true), m_bindId(bindId)
    {
    }
    CTintEditSpinCtrl tint;
    std::vector<std::string> commands;

    bool OnCommand(unsigned param, KestoPlatform::CWnd* control) override
    {
        const int code = KestoPlatform::CommandCode(param);
        if (KestoPlatform::CommandId(param) == kTintId && code != KestoPlatform::EN_CHANGE)
            commands.push_back(code == CTintEditSpinCtrl::TintChanged          ? "changed"
                               : code == CTintEditSpinCtrl::TintChangeFinished ? "finished"
                                                                               : "other");
        return CDialog::OnCommand(param, control);
    }
    KestoPlatform::CSpinButtonCtrl& Spin()
    {
        return dynamic_cast<KestoPlatform::CSpinButtonCtrl&>(*GetDlgItem(kSpinId));
    }

protected:
    void DoDataExchange(KestoPlatform::CDataExchange* pDX) override { tint.DDX(pDX, m_bindId); }

private:
    int m_bindId;
};

using Script = std::function<void(TintDialog&)>;

// Runs on every window back end.
class TintEditSpinCtrl : public testing::TestWithParam<UserInput*> {
protected:
    void SetUp() override { input.Install(); }
    void TearDown() override { input.Uninstall(); }

    void RunModal(TintDialog& dialog, const Script& script)
    {
        input.SetModalScript([&](KestoPlatform::CDialog& d) { script(static_cast<TintDialog&>(d)); });
        dialog.DoModal();
        input.SetModalScript(nullptr);
    }

    UserInput& input = *GetParam();
};

using Commands = std::vector<std::string>;

} // namespace

TEST(TintEditSpinCtrlText, TextFormsAndParsing)
{
    const struct {
        int tint;
        const wchar_t* text;
    } shown[] = {{0, L"original"}, {30, L"+70%"}, {-30, L"-70%"}, {100, L"+0%"}, {-100, L"-0%"}, {1, L"+99%"}};
    CTintEditSpinCtrl control(false, false);
    for (const auto& row : shown) {
        control.SetTint(row.tint);
        EXPECT_EQ(control.GetWindowText(), CString(row.text)) << row.tint;
        EXPECT_EQ(CTintEditSpinCtrl::ParseTint(control.GetWindowText()), row.tint) << row.tint;
    }
    const struct {
        const wchar_t* text;
        int tint;
    } parsed[] = {{L"0", 100},    {L"-0", -100}, {L"abc", 0}, {L"150", 0},  {L"+70", 30},
                  {L" 70% ", 30}, {L"-70", -30}, {L"100", 0}, {L"-101", 0}, {L"", 0}};
    for (const auto& row : parsed)
        EXPECT_EQ(CTintEditSpinCtrl::ParseTint(row.text), row.tint) << CString(row.text).ToUtf8();
}

TEST_P(TintEditSpinCtrl, ParsedValuesAreClampedToTheRange)
{
    TintDialog dialog(false);
    dialog.tint.SetRange(-50, 50);
    RunModal(dialog, [this](TintDialog& d) {
        d.tint.SetWindowText(L"10"); // tint 90
        d.tint.UpdateDataFromControl();
        EXPECT_EQ(d.tint.GetTint(), 50);
    });
}

TEST_P(TintEditSpinCtrl, TypingWithUpdateWhileTypingNotifiesAfterHalfASecondOfQuiet)
{
    TintDialog dialog(true);
    RunModal(dialog, [this](TintDialog& d) {
        d.tint.SetFocus();
        d.tint.SetSel(0, -1);
        input.Type(L"8");
        input.AdvanceClock(400);
        input.Type(L"0"); // restarts the timer
        input.AdvanceClock(499);
        EXPECT_TRUE(d.commands.empty());
        input.AdvanceClock(1);
        EXPECT_EQ(d.commands, Commands{"changed"});
        EXPECT_EQ(d.tint.GetTint(), 20);
        EXPECT_EQ(d.tint.GetWindowText(), CString(L"+80%"));
        input.AdvanceClock(5000); // the timer stopped itself
        EXPECT_EQ(d.commands.size(), 1u);
    });
}

TEST_P(TintEditSpinCtrl, AWholeTextFromTheBackEndActsAsTypingItKeyByKey)
{
    // A back end whose widget edits the text itself hands over the whole new text at once.
    const auto play = [this](bool wholeText) {
        TintDialog dialog(true);
        Commands seen;
        int tint = 0;
        RunModal(dialog, [&, this](TintDialog& d) {
            d.tint.SetFocus();
            d.tint.SetSel(0, -1);
            if (wholeText)
                input.EnterText(L"80");
            else
                input.Type(L"80");
            input.AdvanceClock(499);
            EXPECT_TRUE(d.commands.empty());
            input.AdvanceClock(1);
            seen = d.commands;
            tint = d.tint.GetTint();
        });
        return std::make_pair(seen, tint);
    };
    EXPECT_EQ(play(true), play(false));
    EXPECT_EQ(play(true), std::make_pair(Commands{"changed"}, 20));
}

TEST_P(TintEditSpinCtrl, TypingWithoutUpdateWaitsForEnterOrFocusLoss)
{
    TintDialog dialog(false);
    RunModal(dialog, [this](TintDialog& d) {
        d.tint.SetFocus();
        d.tint.SetSel(0, -1);
        input.Type(L"-40");
        input.AdvanceClock(1000);
        EXPECT_EQ(d.tint.GetTint(), 0);
        input.PressKey(KestoPlatform::VK_RETURN); // parses, but neither redraws nor notifies
        EXPECT_EQ(d.tint.GetTint(), -60);
        EXPECT_EQ(d.tint.GetWindowText(), CString(L"-40"));
        EXPECT_TRUE(d.commands.empty());
        input.MoveFocus(d.GetDlgItem(kOtherId));
        EXPECT_EQ(d.tint.GetWindowText(), CString(L"-40%"));
        EXPECT_EQ(d.commands, (Commands{"other", "changed", "finished"})); // EN_KILLFOCUS first
    });
}

TEST_P(TintEditSpinCtrl, SpinStepsStopAtTheRangeEndsAndEndOfScrollFinishes)
{
    TintDialog dialog(false);
    dialog.tint.SetRange(-2, 2);
    RunModal(dialog, [this](TintDialog& d) {
        d.tint.SetTint(1);
        input.ClickSpin(d.Spin(), true);
        EXPECT_EQ(d.tint.GetTint(), 2);
        input.ClickSpin(d.Spin(), true);
        EXPECT_EQ(d.tint.GetTint(), 2);
        EXPECT_EQ(d.tint.GetWindowText(), CString(L"+98%"));
        EXPECT_EQ(d.commands, (Commands{"changed", "changed", "finished", "changed", "changed", "finished"}));
        // End of scroll does not read the text again.
        d.commands.clear();
        d.tint.SetWindowText(L"junk 5");
        d.tint.OnVScroll(KestoPlatform::SB_ENDSCROLL, 0, nullptr);
        EXPECT_EQ(d.tint.GetTint(), 2);
        EXPECT_EQ(d.commands, (Commands{"changed", "finished"}));
        input.ClickSpin(d.Spin(), false);
        // "junk 5" has a digit but no leading number: it reads as 0, tint 100, clamped to 2,
        // then stepped down.
        EXPECT_EQ(d.tint.GetTint(), 1);
        d.tint.SetTint(-2);
        input.ClickSpin(d.Spin(), false);
        EXPECT_EQ(d.tint.GetTint(), -2);
        EXPECT_EQ(d.tint.GetWindowText(), CString(L"-98%"));
    });
}

TEST_P(TintEditSpinCtrl, SpinFollowsTheEditBoxWhenShownEnabledOrMoved)
{
    TintDialog dialog(false);
    RunModal(dialog, [this](TintDialog& d) {
        ASSERT_NE(d.tint.GetSpinCtrl(), nullptr);
        EXPECT_EQ(d.tint.GetSpinCtrl()->GetWindow(), &d.Spin());
        d.tint.ShowWindow(KestoPlatform::SW_HIDE);
        EXPECT_FALSE(d.Spin().IsWindowVisible());
        d.tint.ShowWindow(KestoPlatform::SW_SHOW);
        EXPECT_TRUE(d.Spin().IsWindowVisible());
        d.tint.EnableWindow(false);
        EXPECT_FALSE(d.Spin().IsWindowEnabled());
        d.tint.MoveWindow(KestoPlatform::CRect(20, 15, 90, 35)); // moved by (10, 5) and resized
        EXPECT_EQ(d.Spin().GetWindowRect(), KestoPlatform::CRect(70, 15, 85, 35));
        d.tint.SetWindowPos(0, 0, 10, 10, KestoPlatform::SWP_NOMOVE); // a resize alone leaves it
        EXPECT_EQ(d.Spin().GetWindowRect(), KestoPlatform::CRect(70, 15, 85, 35));
    });
}

TEST_P(TintEditSpinCtrl, AfterTheDialogClosesTheControlLeavesItsSpinAloneAndBindsAgain)
{
    TintDialog dialog(false);
    RunModal(dialog, [](TintDialog&) {});
    dialog.tint.ShowWindow(KestoPlatform::SW_HIDE); // the spin window is gone: nothing to touch
    dialog.tint.EnableWindow(false);
    RunModal(dialog, [this](TintDialog& d) {
        ASSERT_TRUE(d.tint.IsWindow());
        EXPECT_EQ(d.tint.GetSpinCtrl()->GetWindow(), &d.Spin());
    });
}

TEST_P(TintEditSpinCtrl, BindingToAMissingItemIsReported)
{
    std::vector<KestoKernel::VerifyReport> reports;
    KestoKernel::ScopedVerifyHandler handler([&](const KestoKernel::VerifyReport& r) { reports.push_back(r); });
    TintDialog dialog(false, 999);
    RunModal(dialog, [this](TintDialog& d) {
        EXPECT_FALSE(d.tint.IsWindow());
        EXPECT_EQ(d.tint.GetSpinCtrl(), nullptr);
    });
    ASSERT_FALSE(reports.empty());
    EXPECT_EQ(reports[0].module, "KestoUiGdi");
    EXPECT_EQ(reports[0].file, "TintEditSpinCtrl");
    EXPECT_EQ(reports[0].line, 73);
}

INSTANTIATE_TEST_SUITE_P(Backends, TintEditSpinCtrl, testing::ValuesIn(KestoTest::UserInputs()),
                         KestoTest::UserInputName());
