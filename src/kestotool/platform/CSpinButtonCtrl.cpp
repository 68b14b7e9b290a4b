#include "kestotool/platform/CSpinButtonCtrl.h"

#include <algorithm>
#include <cwchar>

namespace KestoPlatform {

KESTO_IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)

void CSpinButtonCtrl::SetRange32(int lower, int upper)
{
    m_lower = lower;
    m_upper = upper;
    SetPos32(m_pos);
}

void CSpinButtonCtrl::GetRange32(int& lower, int& upper) const
{
    lower = m_lower;
    upper = m_upper;
}

void CSpinButtonCtrl::SetPos32(int pos)
{
    m_pos = std::clamp(pos, std::min(m_lower, m_upper), std::max(m_lower, m_upper));
    StateChanged();
}

CWnd* CSpinButtonCtrl::GetBuddy() const
{
    if (m_buddy)
        return m_buddy;
    // The window before this one in the parent's order.
    CWnd* parent = GetParent();
    if (!parent)
        return nullptr;
    CWnd* previous = nullptr;
    for (int i = 0; i < parent->GetChildCount(); ++i) {
        if (parent->GetChild(i) == this)
            return previous;
        previous = parent->GetChild(i);
    }
    return nullptr;
}

void CSpinButtonCtrl::Click(bool up)
{
    if (m_scrollTarget) {
        m_scrollTarget->OnVScroll(up ? SB_LINEUP : SB_LINEDOWN, 0, this);
        m_scrollTarget->OnVScroll(SB_ENDSCROLL, 0, this);
        return;
    }
    CWnd* buddy = GetBuddy();
    if (buddy) {
        // Start from what the buddy shows, as the user may have typed since the last step.
        const CString text = buddy->GetWindowText();
        wchar_t* end = nullptr;
        const long shown = std::wcstol(text.GetString(), &end, 10);
        if (end != text.GetString())
            m_pos = static_cast<int>(std::clamp<long>(shown, std::min(m_lower, m_upper), std::max(m_lower, m_upper)));
    }
    SetPos32(m_pos + ((up == (m_upper >= m_lower)) ? 1 : -1));
    if (buddy) {
        CString text;
        text.Format(L"%d", m_pos);
        buddy->SetWindowText(text);
    }
    if (CWnd* parent = GetParent()) {
        parent->OnVScroll(SB_THUMBPOSITION, m_pos, this);
        parent->OnVScroll(SB_ENDSCROLL, m_pos, this);
    }
}

} // namespace KestoPlatform
