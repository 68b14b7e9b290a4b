#include "kestotool/platform/CWnd.h"

#include "kestotool/platform/WindowBackend.h"

#include <algorithm>

namespace KestoPlatform {

KESTO_IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

CWnd::~CWnd()
{
    if (m_created)
        DestroyWindow();
}

void CWnd::Create(CWnd* parent, int id, const CRect& rect, const CString& text)
{
    m_created = true;
    m_id = id;
    m_rect = rect;
    m_text = text;
    m_parent = parent;
    if (parent)
        parent->m_children.push_back(this);
    m_peer = Backend().CreatePeer(*this, GetWindowKind());
    StateChanged();
}

void CWnd::DestroyWindow()
{
    if (!m_created)
        return;
    const std::vector<CWnd*> children = m_children;
    for (CWnd* child : children)
        child->DestroyWindow();
    m_owned.clear();
    Backend().WindowDestroyed(this);
    Detach();
    m_peer.reset();
    m_created = false;
}

void CWnd::Detach()
{
    if (m_parent) {
        auto& siblings = m_parent->m_children;
        siblings.erase(std::remove(siblings.begin(), siblings.end(), this), siblings.end());
    }
    m_parent = nullptr;
}

CWnd* CWnd::GetNextWindow() const
{
    if (!m_parent)
        return nullptr;
    const auto& siblings = m_parent->m_children;
    const auto it = std::find(siblings.begin(), siblings.end(), this);
    return it == siblings.end() || it + 1 == siblings.end() ? nullptr : *(it + 1);
}

CWnd* CWnd::GetDlgItem(int id) const
{
    for (CWnd* child : m_children) {
        if (child->m_id == id)
            return child;
    }
    return nullptr;
}

CWnd* CWnd::GetChild(int index) const
{
    return index >= 0 && index < GetChildCount() ? m_children[static_cast<std::size_t>(index)] : nullptr;
}

bool CWnd::SubclassDlgItem(int id, CWnd* parent)
{
    if (m_created || !parent)
        return false;
    CWnd* item = parent->GetDlgItem(id);
    if (!item)
        return false;
    const bool hadFocus = item->HasFocus();
    m_id = item->m_id;
    m_text = item->m_text;
    m_toolTip = item->m_toolTip;
    m_enabled = item->m_enabled;
    m_visible = item->m_visible;
    m_rect = item->m_rect;
    m_parent = parent;
    m_created = true;
    // The item's widget stays when it is already the right kind of widget (an edit box taken
    // over by a special edit); a custom control's plain window gets the widget of its class.
    if (item->m_peer && item->GetWindowKind() == GetWindowKind()) {
        m_peer = std::move(item->m_peer);
        m_peer->Retarget(*this);
    } else {
        m_peer = Backend().CreatePeer(*this, GetWindowKind());
        item->m_peer.reset();
    }
    *std::find(parent->m_children.begin(), parent->m_children.end(), item) = this;
    item->m_parent = nullptr;
    Backend().WindowDestroyed(item);
    item->m_created = false;
    auto& owned = parent->m_owned;
    owned.erase(std::remove_if(owned.begin(), owned.end(), [item](const auto& p) { return p.get() == item; }),
                owned.end());
    if (hadFocus)
        Backend().SetFocus(this);
    StateChanged();
    return true;
}

void CWnd::SetWindowText(const CString& text)
{
    m_text = text;
    StateChanged();
}

void CWnd::EnableWindow(bool enable)
{
    if (m_enabled == enable)
        return;
    m_enabled = enable;
    OnEnable(enable);
    StateChanged();
}

void CWnd::ShowWindow(int command)
{
    const bool show = command != SW_HIDE;
    OnShowWindow(show, 0);
    m_visible = show;
    StateChanged();
}

void CWnd::MoveWindow(const CRect& rect)
{
    SetWindowPos(rect.left, rect.top, rect.Width(), rect.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
}

void CWnd::SetWindowPos(int x, int y, int cx, int cy, unsigned flags)
{
    WINDOWPOS pos{x, y, cx, cy, flags};
    OnWindowPosChanging(&pos);
    CRect r = m_rect;
    if (!(pos.flags & SWP_NOMOVE))
        r = CRect(CPoint(pos.x, pos.y), r.Size());
    if (!(pos.flags & SWP_NOSIZE))
        r = CRect(r.TopLeft(), CSize(pos.cx, pos.cy));
    m_rect = r;
    StateChanged();
}

void CWnd::SetFocus()
{
    CWnd* previous = Backend().GetFocus();
    if (previous == this)
        return;
    Backend().SetFocus(this);
    if (previous)
        previous->OnKillFocus(this);
    OnSetFocus(previous);
}

bool CWnd::HasFocus() const
{
    return Backend().GetFocus() == this;
}

CWnd* CWnd::GetFocus()
{
    return Backend().GetFocus();
}

void CWnd::SetTimer(int id, int milliseconds)
{
    Backend().SetTimer(this, id, milliseconds);
}

void CWnd::KillTimer(int id)
{
    Backend().KillTimer(this, id);
}

bool CWnd::OnCommand(unsigned param, CWnd* control)
{
    return OnCmdMsg(CommandId(param), CommandCode(param), control, nullptr);
}

void CWnd::NotifyParent(int code)
{
    if (m_parent)
        m_parent->OnCommand(MakeCommandParam(m_id, code), this);
}

void CWnd::StateChanged()
{
    if (m_created && m_peer)
        m_peer->Update();
}

// A plain window ignores input; controls and dialogs override what they handle.
void CWnd::OnChar(unsigned, unsigned, unsigned) {}
void CWnd::OnKeyDown(unsigned, unsigned, unsigned) {}
void CWnd::OnKeyUp(unsigned, unsigned, unsigned) {}
void CWnd::OnSetFocus(CWnd*) {}
void CWnd::OnKillFocus(CWnd*) {}
void CWnd::OnTimer(int) {}
void CWnd::OnHScroll(int, int, CWnd*) {}
void CWnd::OnVScroll(int, int, CWnd*) {}
void CWnd::OnShowWindow(bool, int) {}
void CWnd::OnEnable(bool) {}
void CWnd::OnWindowPosChanging(WINDOWPOS*) {}
void CWnd::OnLButtonDown(unsigned, CPoint) {}
void CWnd::OnMouseMove(unsigned, CPoint) {}
void CWnd::OnLButtonUp(unsigned, CPoint) {}

void CWnd::SetToolTipText(const CString& text)
{
    m_toolTip = text;
    StateChanged();
}

} // namespace KestoPlatform
