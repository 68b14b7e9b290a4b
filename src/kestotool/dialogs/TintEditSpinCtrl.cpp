#include "kestotool/dialogs/TintEditSpinCtrl.h"

#include "kestotool/kernel/VerifyReporter.h"
#include "kestotool/resources/ResourceIds.h"
#include "kestotool/tool/Module.h"

#include <algorithm>
#include <cwchar>

namespace KestoTool {

using KestoPlatform::CString;

CTintEditSpinCtrl::CTintEditSpinCtrl(bool updateWhileTyping, bool keepSpinBesideEdit)
    : m_updateWhileTyping(updateWhileTyping), m_keepSpinBesideEdit(keepSpinBesideEdit)
{
}

void CTintEditSpinCtrl::SetRange(int minimum, int maximum)
{
    m_minimum = minimum;
    m_maximum = maximum;
}

void CTintEditSpinCtrl::SetTint(int tint)
{
    m_tint = tint;
    UpdateControlFromData();
}

int CTintEditSpinCtrl::Clamped(int tint) const
{
    return std::max(m_minimum, std::min(tint, m_maximum));
}

void CTintEditSpinCtrl::DDX(KestoPlatform::CDataExchange* pDX, int id)
{
    if (IsWindow())
        return;
    if (!SubclassDlgItem(id, pDX->m_pDlgWnd)) {
        KestoKernel::VerifyFailed("KestoUiGdi", "TintEditSpinCtrl", 73, "the dialog has no item with that id to bind");
        return;
    }
    AttachSpinButton();
    UpdateControlFromData();
}

void CTintEditSpinCtrl::AttachSpinButton()
{
    if (KestoPlatform::CWnd* next = GetNextWindow()) {
        m_spin = std::make_unique<KestoUI::KUISpinButtonBuddy>();
        m_spin->Attach(next, this);
    }
}

void CTintEditSpinCtrl::UpdateControlFromData()
{
    CString text;
    if (m_tint == 0)
        text = Module::Get().LoadString(IDS_TINT_ORIGINAL);
    else if (m_tint > 0)
        text.Format(L"%s%d%%", L"+", 100 - m_tint);
    else
        text.Format(L"%s%d%%", L"-", 100 + m_tint);
    SetWindowText(text);
    SetSel(0, -1);
}

int CTintEditSpinCtrl::ParseTint(const CString& text)
{
    if (text.FindOneOf(L"0123456789") < 0)
        return 0;
    CString trimmed = text;
    trimmed.Trim();
    const long n = std::wcstol(trimmed.GetString(), nullptr, 10);
    if (n == 0 && !trimmed.IsEmpty() && trimmed[0] == L'-')
        return -100;
    if (n < -100 || n > 100)
        return 0;
    return n >= 0 ? static_cast<int>(100 - n) : static_cast<int>(-100 - n);
}

void CTintEditSpinCtrl::UpdateDataFromControl()
{
    m_tint = Clamped(ParseTint(GetWindowText()));
}

void CTintEditSpinCtrl::OnUserEdit()
{
    if (m_updateWhileTyping)
        SetTimer(TypingTimer, TypingDelayMs);
}

void CTintEditSpinCtrl::OnTimer(int id)
{
    if (id != TypingTimer) {
        CEdit::OnTimer(id);
        return;
    }
    KillTimer(TypingTimer);
    UpdateDataFromControl();
    UpdateControlFromData();
    SendNotification(TintChanged);
}

void CTintEditSpinCtrl::OnKeyUp(unsigned key, unsigned repeat, unsigned flags)
{
    if (key == KestoPlatform::VK_RETURN)
        UpdateDataFromControl();
    CEdit::OnKeyUp(key, repeat, flags);
}

void CTintEditSpinCtrl::OnKillFocus(KestoPlatform::CWnd* next)
{
    CEdit::OnKillFocus(next);
    UpdateDataFromControl();
    UpdateControlFromData();
    SendNotification(TintChanged);
    SendNotification(TintChangeFinished);
}

void CTintEditSpinCtrl::OnVScroll(int code, int, KestoPlatform::CWnd*)
{
    if (code == KestoPlatform::SB_ENDSCROLL) {
        SendNotification(TintChanged);
        SendNotification(TintChangeFinished);
        return;
    }
    UpdateDataFromControl();
    if (code == KestoPlatform::SB_LINEUP)
        ++m_tint;
    else if (code == KestoPlatform::SB_LINEDOWN)
        --m_tint;
    m_tint = Clamped(m_tint);
    UpdateControlFromData();
    SendNotification(TintChanged);
}

KestoPlatform::CWnd* CTintEditSpinCtrl::SpinWindow() const
{
    // The spin lives and dies with the dialog; once this box is gone it may be gone too.
    return IsWindow() && m_spin ? m_spin->GetWindow() : nullptr;
}

void CTintEditSpinCtrl::OnShowWindow(bool show, int status)
{
    CEdit::OnShowWindow(show, status);
    if (KestoPlatform::CWnd* spin = SpinWindow())
        spin->ShowWindow(show ? KestoPlatform::SW_SHOW : KestoPlatform::SW_HIDE);
}

void CTintEditSpinCtrl::OnEnable(bool enable)
{
    CEdit::OnEnable(enable);
    // The spin goes with the edit box: a spin left live beside a disabled box would change a
    // value the user has been told is not editable.
    if (KestoPlatform::CWnd* spin = SpinWindow())
        spin->EnableWindow(enable);
}

void CTintEditSpinCtrl::OnWindowPosChanging(KestoPlatform::WINDOWPOS* pos)
{
    CEdit::OnWindowPosChanging(pos);
    KestoPlatform::CWnd* spin = SpinWindow();
    if ((pos->flags & KestoPlatform::SWP_NOMOVE) || !m_keepSpinBesideEdit || !spin)
        return;
    const CRect now = GetWindowRect();
    const CRect spinRect = spin->GetWindowRect();
    spin->SetWindowPos(spinRect.left + (pos->x - now.left), spinRect.top + (pos->y - now.top), 0, 0,
                       KestoPlatform::SWP_NOSIZE | KestoPlatform::SWP_NOZORDER | KestoPlatform::SWP_NOACTIVATE);
}

} // namespace KestoTool
