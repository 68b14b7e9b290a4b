// Run-time classes of the controls whose behaviour is all in their headers.
#include "platform/CButton.h"
#include "platform/CComboBox.h"

namespace Platform {

KESTO_IMPLEMENT_DYNAMIC(CButton, CWnd)
KESTO_IMPLEMENT_DYNAMIC(CComboBox, CWnd)

} // namespace Platform
