#pragma once

#include "kestotool/platform/CWnd.h"
#include "kestotool/platform/Export.h"

namespace KestoPlatform {

// A single-line edit box. The user edits it in one of two ways, depending on the back end:
// keystrokes (typed characters replace the selection within the character limit, Backspace
// removes), or a whole new text that the widget already shows (SetTextFromUser). Either way
// OnUserEdit runs and the parent hears EN_CHANGE when the text changed; it hears EN_KILLFOCUS
// when the box loses the focus.
class KESTO_API CEdit : public CWnd {
    KESTO_DECLARE_DYNAMIC(CEdit)
public:
    // 0 for no limit.
    void LimitText(int maximum) { m_limit = maximum; }
    int GetLimitText() const { return m_limit; }
    // Selects [start, end); an end of -1 means the end of the text. The widget shows it.
    void SetSel(int start, int end);
    void GetSel(int& start, int& end) const;
    // Replaces the selection with text, as far as the limit allows.
    void ReplaceSel(const CString& text);

    // The edit path of a back end whose widget edits the text itself: the text is taken without
    // being shown back, the caret goes to its end.
    void SetTextFromUser(const CString& text);

    void OnChar(unsigned ch, unsigned repeat, unsigned flags) override;
    void OnKillFocus(CWnd* next) override;

protected:
    // The user edited the box (by a keystroke, also one that changed nothing, or a whole text).
    virtual void OnUserEdit() {}
    WindowKind GetWindowKind() const override { return WindowKind::Edit; }

private:
    void UserEdited(const CString& before);

    int m_limit = 0;
    int m_selStart = 0;
    int m_selEnd = 0;
};

} // namespace KestoPlatform
