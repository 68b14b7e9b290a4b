#pragma once

#include "kestotool/platform/CPoint.h"
#include "kestotool/platform/Export.h"
#include "kestotool/platform/ManualClock.h"
#include "kestotool/platform/WindowBackend.h"

#include <functional>
#include <optional>

namespace KestoPlatform {

class CSliderCtrl;
class CSpinButtonCtrl;
class CString;

// The back end without a display: window state stays in the window tree, time is a fake clock
// that only moves when told, and a modal run plays a script. Tests and command-line tools drive
// dialogs through it as a user would, deterministically.
class KESTO_API HeadlessBackend : public WindowBackend {
public:
    using ModalScript = std::function<void(CDialog&)>;

    std::unique_ptr<WindowPeer> CreatePeer(CWnd& window, WindowKind kind) override;
    void SetTimer(CWnd* window, int id, int milliseconds) override;
    void KillTimer(CWnd* window, int id) override;
    CWnd* GetFocus() const override { return m_focus; }
    void SetFocus(CWnd* window) override { m_focus = window; }
    // Plays the modal script (if any) on the dialog; a dialog the script did not end is
    // cancelled.
    int RunModal(CDialog& dialog) override;
    // The script's run ends when the script returns; nothing to leave.
    void EndModal(CDialog&, int) override {}
    void WindowDestroyed(CWnd* window) override;
    // Answers from the colour script (cancelled without one).
    bool ChooseColour(CWnd* owner, COLORREF initial, COLORREF* chosen) override;

    // The script the next modal runs play; it stays until replaced.
    void SetModalScript(ModalScript script) { m_script = std::move(script); }
    // What the user picks in the colour chooser from now on: a colour, or nothing to cancel.
    // Null cancels every choice.
    using ColourScript = std::function<std::optional<COLORREF>(COLORREF initial)>;
    void SetColourScript(ColourScript script) { m_colourScript = std::move(script); }

    long long Now() const { return m_clock.Now(); }
    // Moves the clock on, firing every timer that falls due, in time order (a timer repeats
    // until it is killed).
    void AdvanceClock(int milliseconds) { m_clock.Advance(milliseconds); }
    int PendingTimers() const { return m_clock.PendingTimers(); }
    // How many state changes windows have reported.
    long long ChangeCount() const { return m_changes; }

    // User input to the focused window (nothing without a focus): keystrokes one by one, or a
    // whole new text put into an edit box at once, as an input method or a paste delivers it.
    void Type(const CString& text);
    void EnterText(const CString& text);
    void PressKey(unsigned key);
    void MoveFocus(CWnd* window);
    // The user drags a slider to pos and lets go.
    void DragSlider(CSliderCtrl& slider, int pos);
    void ClickSpin(CSpinButtonCtrl& spin, bool up);
    // The user clicks the button with that id in the dialog (focusing it, as a click does).
    void ClickButton(CWnd& dialog, int id);
    // The user presses the left button at from in the window (client dialog units), drags
    // through to and lets go there, holding the MK_ keys in flags.
    void DragMouse(CWnd& window, CPoint from, CPoint to, unsigned flags = 0);

private:
    ManualClock m_clock;
    long long m_changes = 0;
    CWnd* m_focus = nullptr;
    ModalScript m_script;
    ColourScript m_colourScript;
};

// The headless back end that is installed by default.
KESTO_API HeadlessBackend& Headless();

} // namespace KestoPlatform
