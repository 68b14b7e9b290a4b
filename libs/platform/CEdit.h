#pragma once

#include "platform/CWnd.h"

namespace Platform {

// A single-line edit box: typed characters replace the selection within the character limit,
// Backspace removes; it tells its parent EN_CHANGE when typing changes the text and
// EN_KILLFOCUS when it loses the focus.
class CEdit : public CWnd {
    KESTO_DECLARE_DYNAMIC(CEdit)
public:
    // 0 for no limit.
    void LimitText(int maximum) { m_limit = maximum; }
    int GetLimitText() const { return m_limit; }
    // Selects [start, end); an end of -1 means the end of the text.
    void SetSel(int start, int end);
    void GetSel(int& start, int& end) const;
    // Replaces the selection with text, as far as the limit allows.
    void ReplaceSel(const CString& text);

    void OnChar(unsigned ch, unsigned repeat, unsigned flags) override;
    void OnKillFocus(CWnd* next) override;

private:
    int m_limit = 0;
    int m_selStart = 0;
    int m_selEnd = 0;
};

} // namespace Platform
