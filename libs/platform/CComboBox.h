#pragma once

#include "platform/CListItems.h"
#include "platform/CWnd.h"

namespace Platform {

// A drop-down list window.
class CComboBox : public CWnd, public CListItems {
    KESTO_DECLARE_DYNAMIC(CComboBox)
protected:
    WindowKind GetWindowKind() const override { return WindowKind::ComboBox; }
    void OnItemsChanged() override { StateChanged(); }
};

} // namespace Platform
