#pragma once

#include "kestotool/platform/CWnd.h"
#include "kestotool/platform/Export.h"

namespace KestoPlatform {

// A slider over a range of integers; moving it sends the parent horizontal scroll messages.
class KESTO_API CSliderCtrl : public CWnd {
    KESTO_DECLARE_DYNAMIC(CSliderCtrl)
public:
    void SetRange(int minimum, int maximum, bool redraw = false);
    int GetRangeMin() const { return m_min; }
    int GetRangeMax() const { return m_max; }
    // Clamped into the range.
    void SetPos(int pos);
    int GetPos() const { return m_pos; }

protected:
    WindowKind GetWindowKind() const override { return WindowKind::Slider; }

private:
    int m_min = 0;
    int m_max = 100;
    int m_pos = 0;
};

} // namespace KestoPlatform
