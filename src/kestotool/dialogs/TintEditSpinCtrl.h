#pragma once

#include "kestotool/platform/CDataExchange.h"
#include "kestotool/platform/CEdit.h"
#include "kestotool/platform/Export.h"
#include "kestotool/ui/KUISpinButtonBuddy.h"

#include <memory>

namespace KestoTool {

// An edit box with a spin buddy for a tint from -100 (black) to 100 (white). Its text counts
// from the extreme: tint 30 shows "+70%", -30 shows "-70%", 0 shows "original". It tells its
// parent TintChanged (0x0F00) when the tint changes and TintChangeFinished (0x0F01) when an
// edit ends, as command messages under its id.
class KESTO_API CTintEditSpinCtrl : public KestoPlatform::CEdit {
public:
    static constexpr int TintChanged = 0x0F00;
    static constexpr int TintChangeFinished = 0x0F01;
    static constexpr int TypingTimer = 1;
    static constexpr int TypingDelayMs = 500;

    CTintEditSpinCtrl(bool updateWhileTyping, bool keepSpinBesideEdit);

    // Stored as given; the current tint is not re-clamped.
    void SetRange(int minimum, int maximum);
    // Stored unclamped; the text is rewritten.
    void SetTint(int tint);
    int GetTint() const { return m_tint; }

    // Binds to the dialog item with that id once, then attaches the spin and shows the tint.
    void DDX(KestoPlatform::CDataExchange* pDX, int id);
    // Attaches the window after this one in the dialog's window order as the spin.
    void AttachSpinButton();
    void UpdateControlFromData();
    void UpdateDataFromControl();
    void SendNotification(int code) { NotifyParent(code); }
    KestoUI::KUISpinButtonBuddy* GetSpinCtrl() const { return m_spin.get(); }

    void OnKeyUp(unsigned key, unsigned repeat, unsigned flags) override;
    void OnKillFocus(KestoPlatform::CWnd* next) override;
    void OnTimer(int id) override;
    void OnVScroll(int code, int pos, KestoPlatform::CWnd* bar) override;
    void OnShowWindow(bool show, int status) override;
    void OnEnable(bool enable) override;
    void OnWindowPosChanging(KestoPlatform::WINDOWPOS* pos) override;

    // The tint a text stands for, before clamping: see the class comment for the notation.
    static int ParseTint(const KestoPlatform::CString& text);

protected:
    // Each edit by the user, a keystroke or a whole new text, restarts the typing timer.
    void OnUserEdit() override;

private:
    int Clamped(int tint) const;
    KestoPlatform::CWnd* SpinWindow() const;

    int m_tint = 0;
    bool m_updateWhileTyping;
    bool m_keepSpinBesideEdit;
    int m_minimum = -100;
    int m_maximum = 100;
    std::unique_ptr<KestoUI::KUISpinButtonBuddy> m_spin;
};

} // namespace KestoTool
