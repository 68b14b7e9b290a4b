#pragma once

#include "kestotool/platform/CWnd.h"
#include "kestotool/platform/Export.h"

namespace KestoPlatform {

// A text label of a dialog: it shows its window text and takes no input.
class KESTO_API CStatic : public CWnd {
    KESTO_DECLARE_DYNAMIC(CStatic)
protected:
    WindowKind GetWindowKind() const override { return WindowKind::Static; }
};

} // namespace KestoPlatform
