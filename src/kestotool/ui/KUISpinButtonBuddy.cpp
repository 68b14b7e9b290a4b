#include "kestotool/ui/KUISpinButtonBuddy.h"

#include "kestotool/platform/CSpinButtonCtrl.h"

namespace KestoUI {

void KUISpinButtonBuddy::Attach(KestoPlatform::CWnd* window, KestoPlatform::CWnd* buddy)
{
    m_window = window;
    if (auto* spin = dynamic_cast<KestoPlatform::CSpinButtonCtrl*>(window))
        spin->SetScrollTarget(buddy);
}

} // namespace KestoUI
