#pragma once

namespace Platform {

class CDialog;
class CWnd;

// What a window system supplies to the window tree: a clock and timers, the keyboard focus,
// modal runs, and a way to show changes of a window's state. The headless back end is
// installed until another one is.
class WindowBackend {
public:
    virtual ~WindowBackend() = default;

    virtual void SetTimer(CWnd* window, int id, int milliseconds) = 0;
    virtual void KillTimer(CWnd* window, int id) = 0;
    virtual CWnd* GetFocus() const = 0;
    // Records the new focus; the window tree sends the focus handlers.
    virtual void SetFocus(CWnd* window) = 0;
    // Runs the dialog modally and answers how it ended (IDOK, IDCANCEL, ...).
    virtual int RunModal(CDialog& dialog) = 0;
    // A window's text, state or rectangle changed.
    virtual void WindowChanged(CWnd* window) = 0;
    // A window is going away: forget its timers and its focus.
    virtual void WindowDestroyed(CWnd* window) = 0;
};

// The installed back end.
WindowBackend& Backend();
// Installs a back end (null reinstalls the headless one) and answers the previous one.
WindowBackend* SetBackend(WindowBackend* backend);

} // namespace Platform
