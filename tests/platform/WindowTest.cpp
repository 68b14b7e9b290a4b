#include "kestotool/platform/CDialog.h"
#include "kestotool/platform/CEdit.h"
#include "kestotool/platform/CSpinButtonCtrl.h"
#include "kestotool/platform/HeadlessBackend.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace KestoPlatform;

namespace {

// A window that logs what happens to it.
class LogWnd : public CWnd {
public:
    std::vector<std::string>* log = nullptr;
    std::string name;
    void Open(const char* windowName, std::vector<std::string>* into, const CRect& rect = {})
    {
        name = windowName;
        log = into;
        Create(nullptr, 0, rect);
    }
    void OnTimer(int id) override { log->push_back(name + " timer " + std::to_string(id)); }
    void OnKillFocus(CWnd*) override { log->push_back(name + " kill"); }
    void OnSetFocus(CWnd*) override { log->push_back(name + " set"); }
    void OnShowWindow(bool show, int) override { log->push_back(name + (show ? " show" : " hide")); }
    void OnWindowPosChanging(WINDOWPOS* pos) override { log->push_back(name + " pos " + std::to_string(pos->flags)); }
};

const DialogTemplate kTemplate{
    500,
    L"Test",
    CRect(0, 0, 200, 100),
    {{"Edit", 10, CRect(0, 0, 50, 20), L"7"},
     {"Spin", 11, CRect(50, 0, 60, 20), L""},
     {"Custom", 12, CRect(0, 30, 50, 50), L"c"},
     {"Button", IDOK, CRect(0, 60, 50, 80), L"OK"}},
};

class NumberDialog : public CDialog {
public:
    using CDialog::CDialog;
    int value = 3;
    CEdit edit;

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Control(pDX, 10, edit);
        DDX_Text(pDX, 10, value);
    }
};

// The headless back end that also logs what a real back end would be asked to do.
class PeerLog : public HeadlessBackend {
public:
    std::vector<WindowKind> kinds;
    std::vector<std::string> updates;
    std::vector<int> endings;

    std::unique_ptr<WindowPeer> CreatePeer(CWnd& window, WindowKind kind) override
    {
        kinds.push_back(kind);
        return std::make_unique<Peer>(window, updates);
    }
    void EndModal(CDialog&, int result) override { endings.push_back(result); }

private:
    struct Peer : WindowPeer {
        Peer(CWnd& w, std::vector<std::string>& into) : WindowPeer(w), log(into) {}
        void Update() override { log.push_back(GetWindow().GetWindowText().ToUtf8()); }
        std::vector<std::string>& log;
    };
};

} // namespace

TEST(Window, ABackEndGetsAPeerPerWindowUpdatesButNoEchoOfUserTextAndTheModalEnd)
{
    PeerLog backend;
    WindowBackend* previous = SetBackend(&backend);
    NumberDialog dialog(&kTemplate, nullptr);
    backend.SetModalScript([&](CDialog& d) {
        auto& dlg = static_cast<NumberDialog&>(d);
        dlg.edit.SetFocus();
        backend.updates.clear();
        backend.EnterText(L"12"); // the widget shows it already
        EXPECT_TRUE(backend.updates.empty());
        dlg.edit.SetWindowText(L"15"); // the program's change is shown
        EXPECT_EQ(backend.updates, std::vector<std::string>{"15"});
        backend.ClickButton(dlg, IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    SetBackend(previous);
    EXPECT_EQ(dialog.value, 15);
    EXPECT_EQ(backend.kinds, (std::vector<WindowKind>{WindowKind::Dialog, WindowKind::Edit, WindowKind::Spin,
                                                      WindowKind::Window, WindowKind::Button}));
    EXPECT_EQ(backend.endings, std::vector<int>{IDOK});
}

TEST(Window, TimersFireInTimeOrderOnTheFakeClockUntilKilled)
{
    std::vector<std::string> log;
    LogWnd a, b;
    a.Open("a", &log);
    b.Open("b", &log);
    a.SetTimer(1, 300);
    b.SetTimer(7, 200);
    Headless().AdvanceClock(199);
    EXPECT_TRUE(log.empty());
    Headless().AdvanceClock(401); // to 600: b at 200 and 400, a at 300, then a and b at 600
    EXPECT_EQ(log, (std::vector<std::string>{"b timer 7", "a timer 1", "b timer 7", "a timer 1", "b timer 7"}));
    a.KillTimer(1);
    b.SetTimer(7, 1000); // restarting replaces
    log.clear();
    Headless().AdvanceClock(999);
    EXPECT_TRUE(log.empty());
    b.DestroyWindow();
    Headless().AdvanceClock(5000);
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(Headless().PendingTimers(), 0);
}

TEST(Window, FocusMovesWithKillBeforeSet)
{
    std::vector<std::string> log;
    LogWnd a, b;
    a.Open("a", &log);
    b.Open("b", &log);
    a.SetFocus();
    b.SetFocus();
    b.SetFocus();
    EXPECT_EQ(log, (std::vector<std::string>{"a set", "a kill", "b set"}));
    EXPECT_TRUE(b.HasFocus());
    b.DestroyWindow();
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

TEST(Window, PositionRequestsAreSeenBeforeTheyApply)
{
    std::vector<std::string> log;
    LogWnd w;
    w.Open("w", &log, CRect(10, 10, 30, 20));
    w.SetWindowPos(50, 60, 0, 0, SWP_NOSIZE);
    EXPECT_EQ(w.GetWindowRect(), CRect(50, 60, 70, 70));
    w.SetWindowPos(0, 0, 5, 5, SWP_NOMOVE);
    EXPECT_EQ(w.GetWindowRect(), CRect(50, 60, 55, 65));
    w.ShowWindow(SW_HIDE);
    EXPECT_FALSE(w.IsWindowVisible());
    EXPECT_EQ(log, (std::vector<std::string>{"w pos 1", "w pos 2", "w hide"}));
}

TEST(Window, EditTypingRespectsTheLimitAndTheSelection)
{
    CWnd parent;
    parent.Create(nullptr, 1, {});
    CEdit edit;
    edit.Create(&parent, 2, {}, L"12");
    edit.LimitText(3);
    edit.SetSel(0, -1);
    edit.SetFocus();
    Headless().Type(L"4567");
    EXPECT_EQ(edit.GetWindowText(), CString(L"456"));
    Headless().PressKey(VK_BACK);
    EXPECT_EQ(edit.GetWindowText(), CString(L"45"));
}

TEST(Window, ModalRunBuildsTheTemplateExchangesDataAndEndsWithOk)
{
    NumberDialog dialog(&kTemplate, nullptr);
    Headless().SetModalScript([](CDialog& d) {
        auto& dlg = static_cast<NumberDialog&>(d);
        EXPECT_EQ(dlg.edit.GetWindowText(), CString(L"3")); // loaded from the member
        ASSERT_NE(dlg.GetDlgItem(12), nullptr);
        EXPECT_EQ(dlg.GetDlgItem(12)->GetWindowText(), CString(L"c"));
        // The spin's buddy is the edit box before it.
        auto* spin = dynamic_cast<CSpinButtonCtrl*>(dlg.GetDlgItem(11));
        ASSERT_NE(spin, nullptr);
        EXPECT_EQ(spin->GetBuddy(), &dlg.edit);
        Headless().ClickSpin(*spin, true);
        EXPECT_EQ(dlg.edit.GetWindowText(), CString(L"4"));
        dlg.edit.SetWindowText(L" 42 ");
        Headless().ClickButton(dlg, IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.value, 42);
    EXPECT_FALSE(dialog.edit.IsWindow());
    Headless().SetModalScript(nullptr);
}

TEST(Window, TextThatIsNoNumberFailsTheExchangeAndKeepsTheMember)
{
    NumberDialog dialog(&kTemplate, nullptr);
    Headless().SetModalScript([](CDialog& d) {
        auto& dlg = static_cast<NumberDialog&>(d);
        dlg.edit.SetWindowText(L"4x");
        Headless().ClickButton(dlg, IDOK); // OK refuses: the dialog stays open
        EXPECT_FALSE(dlg.IsEnded());
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.value, 3);
    Headless().SetModalScript(nullptr);
    EXPECT_EQ(CDialog(nullptr, nullptr).DoModal(), -1);
}
