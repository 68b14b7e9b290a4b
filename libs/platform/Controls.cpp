// Run-time classes of the controls whose behaviour is all in their headers.
#include "platform/CButton.h"
#include "platform/CComboBox.h"
#include "platform/CStatic.h"

namespace Platform {

KESTO_IMPLEMENT_DYNAMIC(CButton, CWnd)
KESTO_IMPLEMENT_DYNAMIC(CComboBox, CWnd)
KESTO_IMPLEMENT_DYNAMIC(CStatic, CWnd)

} // namespace Platform
