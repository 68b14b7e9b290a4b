#pragma once

#include "kestotool/platform/CListItems.h"
#include "kestotool/platform/CWnd.h"
#include "kestotool/platform/Export.h"

namespace KestoPlatform {

// A drop-down list window.
class KESTO_API CComboBox : public CWnd, public CListItems {
    KESTO_DECLARE_DYNAMIC(CComboBox)
protected:
    WindowKind GetWindowKind() const override { return WindowKind::ComboBox; }
    void OnItemsChanged() override { StateChanged(); }
};

} // namespace KestoPlatform
