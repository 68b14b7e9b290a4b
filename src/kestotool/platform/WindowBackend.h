#pragma once

#include "kestotool/platform/ColourRef.h"
#include "kestotool/platform/Export.h"
#include "kestotool/platform/WindowPeer.h"

#include <memory>

namespace KestoPlatform {

class CDialog;

// What a window system supplies to the window tree: a peer per window that shows it, a clock
// and timers, the keyboard focus and modal runs. The headless back end is installed until
// another one is.
class KESTO_API WindowBackend {
public:
    virtual ~WindowBackend() = default;

    // The peer of a window being created.
    virtual std::unique_ptr<WindowPeer> CreatePeer(CWnd& window, WindowKind kind) = 0;

    virtual void SetTimer(CWnd* window, int id, int milliseconds) = 0;
    virtual void KillTimer(CWnd* window, int id) = 0;
    virtual CWnd* GetFocus() const = 0;
    // Records the new focus; the window tree sends the focus handlers.
    virtual void SetFocus(CWnd* window) = 0;
    // Runs the dialog modally and answers how it ended (IDOK, IDCANCEL, ...).
    virtual int RunModal(CDialog& dialog) = 0;
    // The dialog ended itself (EndDialog): leave its modal run.
    virtual void EndModal(CDialog& dialog, int result) = 0;
    // A window is going away: forget its timers and its focus.
    virtual void WindowDestroyed(CWnd* window) = 0;
    // The system's colour chooser, modal over owner, starting at initial: true with the colour
    // the user chose, false when the user cancelled.
    virtual bool ChooseColour(CWnd* owner, COLORREF initial, COLORREF* chosen) = 0;
};

// The installed back end.
KESTO_API WindowBackend& Backend();
// Installs a back end (null reinstalls the headless one) and answers the previous one.
KESTO_API WindowBackend* SetBackend(WindowBackend* backend);

} // namespace KestoPlatform
