#pragma once

#include "platform/CXTPControl.h"
#include "platform/CXTPImageManager.h"

#include <memory>
#include <vector>

namespace Platform {

// What a client fills in when the toolkit asks it to create the control for a command.
struct XTP_COMMANDBARS_CREATECONTROL {
    int nID = 0;
    XTPControlType controlType = XTPControlType::Button;
    // The client's control, if it made one; the bars take it over.
    std::unique_ptr<CXTPControl> pControl;
};

struct NMHDR {
    int idFrom = 0;
    int code = 0;
};

// A notification from a control (a combo selection, an edit box change).
struct NMXTPCONTROL {
    NMHDR hdr;
    CXTPControl* pControl = nullptr;
};

// The context command bar of a host: its controls in order, and its image manager.
class CXTPCommandBars {
public:
    CXTPImageManager* GetImageManager() { return &m_images; }

    // Appends a control of the type's class for the command and answers it.
    CXTPControl* Add(XTPControlType type, int id);
    // Appends a control a client made; null is ignored and answers null.
    CXTPControl* Add(std::unique_ptr<CXTPControl> control);
    int GetCount() const { return static_cast<int>(m_controls.size()); }
    CXTPControl* GetAt(int index) const;
    // The first control for the command, or null.
    CXTPControl* FindControl(int id) const;
    void RemoveAll() { m_controls.clear(); }

private:
    CXTPImageManager m_images;
    std::vector<std::unique_ptr<CXTPControl>> m_controls;
};

} // namespace Platform
