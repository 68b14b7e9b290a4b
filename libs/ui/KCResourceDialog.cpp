#include "kestotool/ui/KCResourceDialog.h"

#include "kestotool/platform/CResourceModule.h"

namespace KestoUI {

KCResourceDialog::KCResourceDialog(int templateId, Platform::CWnd* parent)
    : CDialog(Platform::CResourceModule::FindDialogTemplate(templateId), parent), m_templateId(templateId)
{
}

} // namespace KestoUI
