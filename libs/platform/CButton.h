#pragma once

#include "kestotool/platform/CWnd.h"
#include "kestotool/platform/Export.h"

namespace Platform {

// A push button: a click tells the parent BN_CLICKED under the button's id.
class KESTO_API CButton : public CWnd {
    KESTO_DECLARE_DYNAMIC(CButton)
protected:
    WindowKind GetWindowKind() const override { return WindowKind::Button; }
};

} // namespace Platform
