#pragma once

#include "kestotool/platform/CCmdTarget.h"
#include "kestotool/platform/CPoint.h"
#include "kestotool/platform/CRect.h"
#include "kestotool/platform/CString.h"
#include "kestotool/platform/Export.h"
#include "kestotool/platform/WindowPeer.h"
#include "kestotool/platform/WindowTypes.h"

#include <memory>
#include <vector>

namespace KestoPlatform {

// A window of the portable window tree: an id, a parent and ordered children, text, enabled
// and visible state, a rectangle in its parent's client coordinates, timers and the keyboard
// focus. The state lives here; the window's peer, made by the back end, shows it (the headless
// one only counts changes) and feeds user input back through the On... handlers.
class KESTO_API CWnd : public CCmdTarget {
    KESTO_DECLARE_DYNAMIC(CWnd)
public:
    CWnd() = default;
    ~CWnd() override;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    // Makes this a live window: a child of parent (appended to its window order) when given.
    void Create(CWnd* parent, int id, const CRect& rect, const CString& text = {});
    // Ends the window: its children are destroyed with it and it leaves its parent.
    void DestroyWindow();
    bool IsWindow() const { return m_created; }
    // The back end's half of this window; null while the window is not live.
    WindowPeer* GetPeer() const { return m_peer.get(); }

    int GetDlgCtrlID() const { return m_id; }
    CWnd* GetParent() const { return m_parent; }
    // The window after this one in its parent's window order, or null.
    CWnd* GetNextWindow() const;
    CWnd* GetDlgItem(int id) const;
    int GetChildCount() const { return static_cast<int>(m_children.size()); }
    CWnd* GetChild(int index) const;

    // Takes over the dialog item with that id of parent: this window steps into its place in
    // the window order with its id, text, rectangle and state. False when there is no such
    // item or this window is already live.
    bool SubclassDlgItem(int id, CWnd* parent);

    void SetWindowText(const CString& text);
    CString GetWindowText() const { return m_text; }

    void EnableWindow(bool enable);
    bool IsWindowEnabled() const { return m_enabled; }
    void ShowWindow(int command);
    bool IsWindowVisible() const { return m_visible; }

    CRect GetWindowRect() const { return m_rect; }
    void MoveWindow(const CRect& rect);
    void SetWindowPos(int x, int y, int cx, int cy, unsigned flags);

    void SetFocus();
    bool HasFocus() const;
    static CWnd* GetFocus();

    void SetTimer(int id, int milliseconds);
    void KillTimer(int id);

    // Sends a command message to this window: notification code and id packed in param.
    virtual bool OnCommand(unsigned param, CWnd* control);
    // Sends this control's notification to its parent as a command message.
    void NotifyParent(int code);

    // Input and state handlers, called by the framework and the back end.
    virtual void OnChar(unsigned ch, unsigned repeat, unsigned flags);
    virtual void OnKeyDown(unsigned key, unsigned repeat, unsigned flags);
    virtual void OnKeyUp(unsigned key, unsigned repeat, unsigned flags);
    virtual void OnSetFocus(CWnd* previous);
    virtual void OnKillFocus(CWnd* next);
    virtual void OnTimer(int id);
    virtual void OnHScroll(int code, int pos, CWnd* bar);
    virtual void OnVScroll(int code, int pos, CWnd* bar);
    virtual void OnShowWindow(bool show, int status);
    virtual void OnEnable(bool enable);
    virtual void OnWindowPosChanging(WINDOWPOS* pos);
    // The left mouse button and the pointer over this window: point in its client coordinates
    // (dialog units), flags the MK_ keys held. Between a press and its release the window has the
    // mouse: moves and the release come to it wherever the pointer is.
    virtual void OnLButtonDown(unsigned flags, CPoint point);
    virtual void OnMouseMove(unsigned flags, CPoint point);
    virtual void OnLButtonUp(unsigned flags, CPoint point);

    // The text shown when the pointer rests on the window; empty shows none.
    void SetToolTipText(const CString& text);
    const CString& GetToolTipText() const { return m_toolTip; }

protected:
    // Lets the peer show a change of this window's state.
    void StateChanged();
    // Takes text the user entered into the widget: stored, not shown back to the peer.
    void TakeUserText(const CString& text) { m_text = text; }
    // Which widget a back end makes for this window.
    virtual WindowKind GetWindowKind() const { return WindowKind::Window; }

private:
    void Detach();

    bool m_created = false;
    std::unique_ptr<WindowPeer> m_peer;
    int m_id = 0;
    CWnd* m_parent = nullptr;
    std::vector<CWnd*> m_children;
    std::vector<std::unique_ptr<CWnd>> m_owned; // children made for a dialog template's items
    CString m_text;
    CString m_toolTip;
    bool m_enabled = true;
    bool m_visible = true;
    CRect m_rect;

    friend class CDialog;
};

} // namespace KestoPlatform
