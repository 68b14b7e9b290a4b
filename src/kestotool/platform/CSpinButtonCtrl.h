#pragma once

#include "kestotool/platform/CWnd.h"
#include "kestotool/platform/Export.h"

namespace KestoPlatform {

// A spin button with a 32-bit range and position and a buddy window (by default the window
// before it in the window order). A click steps the position, writes it into the buddy's text
// and sends the parent a vertical scroll (SB_THUMBPOSITION, then SB_ENDSCROLL). When a scroll
// target is set instead, a click only sends that window SB_LINEUP or SB_LINEDOWN, then
// SB_ENDSCROLL, and leaves the value to it.
class KESTO_API CSpinButtonCtrl : public CWnd {
    KESTO_DECLARE_DYNAMIC(CSpinButtonCtrl)
public:
    void SetRange32(int lower, int upper);
    void GetRange32(int& lower, int& upper) const;
    // Clamped into the range.
    void SetPos32(int pos);
    int GetPos32() const { return m_pos; }
    void SetBuddy(CWnd* buddy) { m_buddy = buddy; }
    CWnd* GetBuddy() const;
    void SetScrollTarget(CWnd* target) { m_scrollTarget = target; }
    CWnd* GetScrollTarget() const { return m_scrollTarget; }

    // The user clicks the up (true) or down arrow.
    void Click(bool up);

protected:
    WindowKind GetWindowKind() const override { return WindowKind::Spin; }

private:
    int m_lower = 0;
    int m_upper = 100;
    int m_pos = 0;
    CWnd* m_buddy = nullptr;
    CWnd* m_scrollTarget = nullptr;
};

} // namespace KestoPlatform
