#pragma once

#include "kestotool/platform/CXTPControl.h"
#include "kestotool/platform/CXTPImageManager.h"
#include "kestotool/platform/Export.h"

#include <functional>
#include <memory>
#include <vector>

namespace KestoPlatform {

// What a client fills in when the toolkit asks it to create the control for a command.
struct XTP_COMMANDBARS_CREATECONTROL {
    int nID = 0;
    // Whether the control is made for a toolbar (rather than a menu).
    bool bToolBar = true;
    // The control the toolkit should make when the client makes none.
    XTPControlType controlType = XTPControlType::None;
    XTPButtonStyle buttonStyle = XTPButtonStyle::Automatic;
    // The client's control, if it made one; the bars take it over.
    std::unique_ptr<CXTPControl> pControl;
};

// Notification codes of command-bar controls: a value chosen or being entered (a combo's
// selection, an edit box as the user types or steps it), and an edit box's value committed
// (Enter or leaving the box). A notification is routed under the low 16 bits of its code, so
// a commit arrives as 0.
constexpr int XTP_NOTIFY_EXECUTE = 100;
constexpr int XTP_NOTIFY_COMMIT = 0x10000;

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
class KESTO_API CXTPCommandBars {
public:
    CXTPImageManager* GetImageManager() { return m_sharedImages ? m_sharedImages : &m_images; }
    // Makes the bars use images, an image manager that a host shares between the bars of its
    // windows (as the toolkit's own is shared), so that pictures registered once show in each;
    // null gives the bars their own again.
    void SetImageManager(CXTPImageManager* images) { m_sharedImages = images; }

    // A new control of the type's class for the command; null for XTPControlType::None.
    static std::unique_ptr<CXTPControl> MakeControl(XTPControlType type, int id);
    // Appends a control of the type's class for the command and answers it.
    CXTPControl* Add(XTPControlType type, int id);
    // Appends a control a client made; null is ignored and answers null.
    CXTPControl* Add(std::unique_ptr<CXTPControl> control);
    int GetCount() const { return static_cast<int>(m_controls.size()); }
    CXTPControl* GetAt(int index) const;

    // The toolkit's way of making the control of a command: the client may make it itself
    // (create answers non-zero with a control in the record) or describe the type to make
    // (non-zero with a type); otherwise a button is made. Then the client sees the made control
    // (after), and it is appended. Answers the control.
    using CreateHook = std::function<int(XTP_COMMANDBARS_CREATECONTROL*)>;
    using AfterCreateHook = std::function<void(XTP_COMMANDBARS_CREATECONTROL*)>;
    CXTPControl* CreateControl(int id, bool toolBar, const CreateHook& create, const AfterCreateHook& after);
    // The first control for the command, or null.
    CXTPControl* FindControl(int id) const;
    void RemoveAll() { m_controls.clear(); }

private:
    CXTPImageManager m_images;
    CXTPImageManager* m_sharedImages = nullptr;
    std::vector<std::unique_ptr<CXTPControl>> m_controls;
};

} // namespace KestoPlatform
