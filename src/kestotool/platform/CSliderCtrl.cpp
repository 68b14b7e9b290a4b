#include "kestotool/platform/CSliderCtrl.h"

#include <algorithm>

namespace KestoPlatform {

KESTO_IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)

void CSliderCtrl::SetRange(int minimum, int maximum, bool)
{
    m_min = std::min(minimum, maximum);
    m_max = std::max(minimum, maximum);
    SetPos(m_pos);
}

void CSliderCtrl::SetPos(int pos)
{
    m_pos = std::clamp(pos, m_min, m_max);
    StateChanged();
}

} // namespace KestoPlatform
