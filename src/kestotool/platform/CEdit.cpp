#include "kestotool/platform/CEdit.h"

#include <algorithm>

namespace KestoPlatform {

KESTO_IMPLEMENT_DYNAMIC(CEdit, CWnd)

void CEdit::SetSel(int start, int end)
{
    const int length = GetWindowText().GetLength();
    m_selStart = std::clamp(start, 0, length);
    m_selEnd = end < 0 ? length : std::clamp(end, m_selStart, length);
    StateChanged();
}

void CEdit::GetSel(int& start, int& end) const
{
    start = m_selStart;
    end = m_selEnd;
}

void CEdit::ReplaceSel(const CString& text)
{
    std::wstring s = GetWindowText().Str();
    const auto start = static_cast<std::size_t>(std::min(m_selStart, static_cast<int>(s.size())));
    const auto end = static_cast<std::size_t>(std::clamp(m_selEnd, m_selStart, static_cast<int>(s.size())));
    std::wstring insert = text.Str();
    if (m_limit > 0) {
        const std::size_t kept = s.size() - (end - start);
        const auto limit = static_cast<std::size_t>(m_limit);
        insert.resize(std::min(insert.size(), kept >= limit ? 0 : limit - kept));
    }
    s.replace(start, end - start, insert);
    SetWindowText(CString(s));
    m_selStart = m_selEnd = static_cast<int>(start + insert.size());
}

void CEdit::OnChar(unsigned ch, unsigned, unsigned)
{
    const CString before = GetWindowText();
    if (ch == VK_BACK) {
        if (m_selStart == m_selEnd && m_selStart > 0)
            --m_selStart;
        ReplaceSel(CString());
    } else if (ch >= 32) {
        ReplaceSel(CString(std::wstring(1, static_cast<wchar_t>(ch))));
    }
    UserEdited(before);
}

void CEdit::SetTextFromUser(const CString& text)
{
    const CString before = GetWindowText();
    std::wstring taken = text.Str();
    if (m_limit > 0 && taken.size() > static_cast<std::size_t>(m_limit))
        taken.resize(static_cast<std::size_t>(m_limit));
    TakeUserText(CString(taken));
    m_selStart = m_selEnd = static_cast<int>(taken.size());
    UserEdited(before);
}

void CEdit::UserEdited(const CString& before)
{
    OnUserEdit();
    if (!(GetWindowText() == before))
        NotifyParent(EN_CHANGE);
}

void CEdit::OnKillFocus(CWnd*)
{
    NotifyParent(EN_KILLFOCUS);
}

} // namespace KestoPlatform
