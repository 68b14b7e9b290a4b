#include "kestotool/platform/HeadlessBackend.h"

#include "kestotool/platform/CButton.h"
#include "kestotool/platform/CDialog.h"
#include "kestotool/platform/CEdit.h"
#include "kestotool/platform/CSliderCtrl.h"
#include "kestotool/platform/CSpinButtonCtrl.h"

namespace KestoPlatform {

HeadlessBackend& Headless()
{
    static HeadlessBackend backend;
    return backend;
}

namespace {

WindowBackend* g_backend = nullptr;

// Headless windows have nothing to show; the peer only counts what would be shown.
class HeadlessPeer final : public WindowPeer {
public:
    HeadlessPeer(CWnd& window, long long& changes) : WindowPeer(window), m_changes(changes) {}
    void Update() override { ++m_changes; }

private:
    long long& m_changes;
};

} // namespace

WindowBackend& Backend()
{
    return g_backend ? *g_backend : Headless();
}

WindowBackend* SetBackend(WindowBackend* backend)
{
    WindowBackend* previous = &Backend();
    g_backend = backend;
    return previous;
}

std::unique_ptr<WindowPeer> HeadlessBackend::CreatePeer(CWnd& window, WindowKind)
{
    return std::make_unique<HeadlessPeer>(window, m_changes);
}

void HeadlessBackend::SetTimer(CWnd* window, int id, int milliseconds)
{
    m_clock.SetTimer(window, id, milliseconds);
}

void HeadlessBackend::KillTimer(CWnd* window, int id)
{
    m_clock.KillTimer(window, id);
}

void HeadlessBackend::WindowDestroyed(CWnd* window)
{
    m_clock.Forget(window);
    if (m_focus == window)
        m_focus = nullptr;
}

int HeadlessBackend::RunModal(CDialog& dialog)
{
    if (m_script)
        m_script(dialog);
    return IDCANCEL;
}

void HeadlessBackend::Type(const CString& text)
{
    for (int i = 0; i < text.GetLength(); ++i) {
        if (m_focus)
            m_focus->OnChar(static_cast<unsigned>(text[i]), 1, 0);
    }
}

void HeadlessBackend::EnterText(const CString& text)
{
    if (auto* edit = dynamic_cast<CEdit*>(m_focus))
        edit->SetTextFromUser(text);
}

void HeadlessBackend::PressKey(unsigned key)
{
    if (m_focus)
        m_focus->OnKeyDown(key, 1, 0);
    if (key == VK_BACK && m_focus)
        m_focus->OnChar(VK_BACK, 1, 0);
    if (m_focus)
        m_focus->OnKeyUp(key, 1, 0);
}

void HeadlessBackend::MoveFocus(CWnd* window)
{
    if (window)
        window->SetFocus();
}

void HeadlessBackend::DragSlider(CSliderCtrl& slider, int pos)
{
    slider.SetPos(pos);
    if (CWnd* parent = slider.GetParent()) {
        parent->OnHScroll(SB_THUMBTRACK, slider.GetPos(), &slider);
        parent->OnHScroll(SB_ENDSCROLL, slider.GetPos(), &slider);
    }
}

void HeadlessBackend::ClickSpin(CSpinButtonCtrl& spin, bool up)
{
    spin.Click(up);
}

void HeadlessBackend::ClickButton(CWnd& dialog, int id)
{
    // A click focuses the button first, so an edit box being typed in loses the focus.
    if (auto* button = dynamic_cast<CButton*>(dialog.GetDlgItem(id))) {
        button->Click();
    } else if (CWnd* item = dialog.GetDlgItem(id)) {
        item->SetFocus();
        item->NotifyParent(BN_CLICKED);
    }
}

void HeadlessBackend::DragMouse(CWnd& window, CPoint from, CPoint to, unsigned flags)
{
    window.OnLButtonDown(flags | MK_LBUTTON, from);
    // Half way first, so a drag is seen moving and not only arriving.
    window.OnMouseMove(flags | MK_LBUTTON, CPoint((from.x + to.x) / 2, (from.y + to.y) / 2));
    window.OnMouseMove(flags | MK_LBUTTON, to);
    window.OnLButtonUp(flags, to);
}

bool HeadlessBackend::ChooseColour(CWnd*, COLORREF initial, COLORREF* chosen)
{
    const std::optional<COLORREF> answer = m_colourScript ? m_colourScript(initial) : std::nullopt;
    if (answer && chosen)
        *chosen = *answer;
    return answer.has_value();
}

} // namespace KestoPlatform
