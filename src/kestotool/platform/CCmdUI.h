#pragma once

#include "kestotool/platform/Export.h"

namespace KestoPlatform {

class CCmdTarget;
class CXTPControl;

// An update request for one command: handlers enable, check or reach the control behind it.
// Without a control the state is only recorded, which is what headless hosts and tests read.
class KESTO_API CCmdUI {
public:
    explicit CCmdUI(int id, CXTPControl* control = nullptr) : m_nID(id), m_pControl(control) {}
    virtual ~CCmdUI() = default;

    int GetID() const { return m_nID; }
    CXTPControl* GetControl() const { return m_pControl; }

    virtual void Enable(bool on = true);
    // 0 unchecked, 1 checked, 2 indeterminate.
    virtual void SetCheck(int check = 1);

    bool IsEnabled() const { return m_enabled; }
    int GetCheck() const { return m_check; }
    bool WasHandled() const { return m_handled; }

    // Routes this update request to the target; answers whether a handler took it.
    bool DoUpdate(CCmdTarget* target);

private:
    int m_nID;
    CXTPControl* m_pControl;
    bool m_enabled = false;
    int m_check = 0;
    bool m_handled = false;
};

} // namespace KestoPlatform
