#include "kestotool/ui/KCResourceDialog.h"

#include "kestotool/platform/CResourceModule.h"

namespace KestoUI {

KCResourceDialog::KCResourceDialog(int templateId, KestoPlatform::CWnd* parent)
    : CDialog(KestoPlatform::CResourceModule::FindDialogTemplate(templateId), parent), m_templateId(templateId)
{
}

} // namespace KestoUI
