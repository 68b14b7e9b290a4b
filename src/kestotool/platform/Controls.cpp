// The small controls: run-time classes, and the behaviour the headers do not hold.
#include "kestotool/platform/CButton.h"
#include "kestotool/platform/CComboBox.h"
#include "kestotool/platform/CStatic.h"
#include "kestotool/platform/WindowTypes.h"

namespace KestoPlatform {

KESTO_IMPLEMENT_DYNAMIC(CButton, CWnd)
KESTO_IMPLEMENT_DYNAMIC(CCheckBox, CButton)
KESTO_IMPLEMENT_DYNAMIC(CComboBox, CWnd)
KESTO_IMPLEMENT_DYNAMIC(CStatic, CWnd)

void CButton::SetImage(XTPImage image)
{
    m_image = std::move(image);
    StateChanged();
}

void CButton::Click()
{
    SetFocus();
    OnClicked();
    NotifyParent(BN_CLICKED);
}

void CCheckBox::SetCheck(bool checked)
{
    m_checked = checked;
    StateChanged();
}

} // namespace KestoPlatform
