#pragma once

#include "platform/CWnd.h"

namespace Platform {

// A text label of a dialog: it shows its window text and takes no input.
class CStatic : public CWnd {
    KESTO_DECLARE_DYNAMIC(CStatic)
protected:
    WindowKind GetWindowKind() const override { return WindowKind::Static; }
};

} // namespace Platform
