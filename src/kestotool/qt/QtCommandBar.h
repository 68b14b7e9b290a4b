#pragma once

#include <QIcon>
#include <QObject>

#include <cstdint>
#include <functional>
#include <vector>

class QToolBar;
class QWidget;

namespace KestoPlatform {
class CCmdTarget;
class CXTPCommandBars;
class CXTPControl;
} // namespace KestoPlatform

namespace KestoToolQt {

// A command bar model shown on a QToolBar: a tool button per button or popup (its icon from
// the bars' image manager at the screen's icon size, its caption as the style asks, its prompt
// as tooltip and status tip), a combo box per combo, a spin box with its unit per edit box and
// a colour swatch button per colour popup. Clicks, selections and edits go to the target
// through OnCmdMsg, as commands and notifications; whenever the event loop falls idle, each
// control's update request runs against the target and the widgets show the result.
class QtCommandBar {
public:
    // The toolbar must outlive this object; it gets its widgets from Show.
    explicit QtCommandBar(QToolBar& toolbar);
    ~QtCommandBar();
    QtCommandBar(const QtCommandBar&) = delete;
    QtCommandBar& operator=(const QtCommandBar&) = delete;

    // Shows the controls of bars (replacing what the toolbar showed), routed to target. Both
    // must outlive the showing: call Clear first when either goes.
    void Show(KestoPlatform::CXTPCommandBars& bars, KestoPlatform::CCmdTarget& target);
    void Clear();
    // Runs every control's update request now and shows the states (the idle loop does this).
    void UpdateControls();

    // The widget that shows the control with that command id; null when none does.
    QWidget* WidgetOf(int id) const;
    // Where the keyboard goes when Enter or Escape ends an edit in a box (Escape also puts the
    // box's value back): the canvas, as a rule. Null (the default) leaves the focus in the box.
    void SetFocusHome(QWidget* home) { m_focusHome = home; }
    // Pictures for the items of combo boxes: asked for each item shown, with the control's
    // command id and the item's data; a null icon shows none. The host knows what its items are.
    using ItemIcons = std::function<QIcon(int id, std::intptr_t data)>;
    void SetItemIcons(ItemIcons icons) { m_itemIcons = std::move(icons); }

private:
    struct Shown {
        KestoPlatform::CXTPControl* control;
        QWidget* widget;
    };
    QWidget* MakeWidget(KestoPlatform::CXTPControl& control);
    void ShowState(const Shown& shown);
    void Notify(KestoPlatform::CXTPControl& control, int code);

    QToolBar& m_toolbar;
    QObject m_context; // owns the idle connection
    KestoPlatform::CXTPCommandBars* m_bars = nullptr;
    KestoPlatform::CCmdTarget* m_target = nullptr;
    std::vector<Shown> m_shown;
    bool m_showing = false; // widgets being set from the model: their signals are not the user's
    QWidget* m_focusHome = nullptr;
    ItemIcons m_itemIcons;
};

} // namespace KestoToolQt
