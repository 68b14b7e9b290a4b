#include "kestotool/ui/KUISpinButtonBuddy.h"

#include "kestotool/platform/CSpinButtonCtrl.h"

namespace KestoUI {

void KUISpinButtonBuddy::Attach(Platform::CWnd* window, Platform::CWnd* buddy)
{
    m_window = window;
    if (auto* spin = dynamic_cast<Platform::CSpinButtonCtrl*>(window))
        spin->SetScrollTarget(buddy);
}

} // namespace KestoUI
