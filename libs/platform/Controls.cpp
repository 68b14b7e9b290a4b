// Run-time classes of the controls whose behaviour is all in their headers.
#include "kestotool/platform/CButton.h"
#include "kestotool/platform/CComboBox.h"
#include "kestotool/platform/CStatic.h"

namespace Platform {

KESTO_IMPLEMENT_DYNAMIC(CButton, CWnd)
KESTO_IMPLEMENT_DYNAMIC(CComboBox, CWnd)
KESTO_IMPLEMENT_DYNAMIC(CStatic, CWnd)

} // namespace Platform
