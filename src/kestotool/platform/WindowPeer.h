#pragma once

#include "kestotool/platform/Export.h"

namespace KestoPlatform {

class CWnd;

// What kind of window a peer shows, so that a back end can pick the widget for it.
enum class WindowKind {
    Window,
    Dialog,
    Edit,
    Slider,
    Spin,
    ComboBox,
    Button,
    CheckBox,
    Static,
    FillPreview,
    FillControl
};

// A back end's half of one window: it shows the window's state (the window tree keeps it) and
// feeds the user's input back to the window through its handlers and its edit path
// (CEdit::SetTextFromUser). Made by WindowBackend::CreatePeer when the window is created.
class KESTO_API WindowPeer {
public:
    explicit WindowPeer(CWnd& window) : m_window(&window) {}
    virtual ~WindowPeer() = default;
    WindowPeer(const WindowPeer&) = delete;
    WindowPeer& operator=(const WindowPeer&) = delete;

    // The window's text, state or rectangle changed by the program (not by the user's own
    // edit, which the widget already shows).
    virtual void Update() = 0;

    CWnd& GetWindow() const { return *m_window; }
    // A window object that takes over a dialog item takes over its peer too.
    void Retarget(CWnd& window) { m_window = &window; }

private:
    CWnd* m_window;
};

} // namespace KestoPlatform
