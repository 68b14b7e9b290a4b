#pragma once

#include "kestotool/platform/CWnd.h"
#include "kestotool/platform/Export.h"

namespace KestoUI {

// Ties a spin button to the edit box it steps: the spin's clicks go to the edit box as
// vertical scroll messages, and the edit box decides what a step means.
class KESTO_API KUISpinButtonBuddy {
public:
    // Attaches to window (normally a spin button; anything else just rides along with the
    // edit box) on behalf of buddy.
    void Attach(KestoPlatform::CWnd* window, KestoPlatform::CWnd* buddy);
    KestoPlatform::CWnd* GetWindow() const { return m_window; }

private:
    KestoPlatform::CWnd* m_window = nullptr;
};

} // namespace KestoUI
