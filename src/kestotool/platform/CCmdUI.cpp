#include "kestotool/platform/CCmdUI.h"

#include "kestotool/platform/CCmdTarget.h"
#include "kestotool/platform/CXTPControl.h"

namespace KestoPlatform {

void CCmdUI::Enable(bool on)
{
    m_enabled = on;
    if (m_pControl)
        m_pControl->SetEnabled(on);
}

void CCmdUI::SetCheck(int check)
{
    m_check = check;
    if (m_pControl)
        m_pControl->SetChecked(check != 0);
}

bool CCmdUI::DoUpdate(CCmdTarget* target)
{
    m_handled = target && target->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
    return m_handled;
}

} // namespace KestoPlatform
