#include "kestotool/qt/QtCommandBar.h"

#include "kestotool/qt/QtConvert.h"

#include "kestotool/platform/CCmdTarget.h"
#include "kestotool/platform/CCmdUI.h"
#include "kestotool/platform/CXTPControlComboBox.h"
#include "kestotool/platform/CXTPControlPopupColor.h"
#include "kestotool/platform/ScreenMetrics.h"

#include <QAbstractEventDispatcher>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QImage>
#include <QKeyEvent>
#include <QPixmap>
#include <QToolBar>
#include <QToolButton>

#include <functional>
#include <utility>

namespace KestoToolQt {

using KestoPlatform::CXTPControl;
using KestoPlatform::XTPControlType;

namespace {

// A prompt holds a description, a tooltip title and a short caption, one per line.
QStringList PromptParts(const CXTPControl& control)
{
    return ToQString(control.GetPrompt()).split(QLatin1Char('\n'));
}

// The command's picture for the screen's resolution and, beside it, the image manager's larger
// ones (120, 144 and 192 dpi), each marked for the device pixels per pixel it is drawn for: Qt
// draws the 144-dpi picture at 1.5 and the 192-dpi one at 2, instead of blowing the small one up.
QIcon IconOf(KestoPlatform::CXTPCommandBars& bars, int id)
{
    using KestoPlatform::CXTPImageManager;
    const int screen = KestoPlatform::ScreenMetrics::GetLogPixelsX();
    const KestoPlatform::XTPImage* own =
        bars.GetImageManager()->GetImage(id, CXTPImageManager::GetPreferredIconSizeforDPI(screen));
    if (!own)
        return {};
    QIcon icon = ToQIcon(*own);
    for (const int dpi : {120, 144, 192}) {
        const KestoPlatform::XTPImage* larger =
            dpi > screen ? bars.GetImageManager()->GetImage(id, CXTPImageManager::GetPreferredIconSizeforDPI(dpi))
                         : nullptr;
        if (larger && larger->width > own->width) {
            QPixmap sharp = ToQPixmap(*larger);
            sharp.setDevicePixelRatio(static_cast<qreal>(larger->width) / own->width);
            icon.addPixmap(sharp);
        }
    }
    return icon;
}

QIcon Swatch(KestoPlatform::COLORREF colour, int side)
{
    QPixmap pixmap(side, side);
    pixmap.fill(ToQColor(colour));
    return QIcon(pixmap);
}

// Enter and Escape in a box end the edit: Enter after the box has taken its text, Escape
// instead of it. Owned by the box.
class EditEnds final : public QObject {
public:
    EditEnds(QAbstractSpinBox& box, std::function<void(bool escape)> ended)
        : QObject(&box), m_box(box), m_ended(std::move(ended))
    {
        box.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape) {
            m_ended(true);
            return true;
        }
        if (key != Qt::Key_Return && key != Qt::Key_Enter)
            return false;
        m_box.event(event); // the box takes its text and tells that the edit finished
        m_ended(false);
        return true;
    }

private:
    QAbstractSpinBox& m_box;
    std::function<void(bool)> m_ended;
};

} // namespace

QtCommandBar::QtCommandBar(QToolBar& toolbar) : m_toolbar(toolbar)
{
    if (auto* dispatcher = QAbstractEventDispatcher::instance())
        QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, &m_context, [this] { UpdateControls(); });
}

QtCommandBar::~QtCommandBar()
{
    Clear();
}

void QtCommandBar::Clear()
{
    for (const Shown& shown : m_shown)
        delete shown.widget;
    m_shown.clear();
    m_toolbar.clear();
    m_bars = nullptr;
    m_target = nullptr;
}

void QtCommandBar::Show(KestoPlatform::CXTPCommandBars& bars, KestoPlatform::CCmdTarget& target)
{
    Clear();
    m_bars = &bars;
    m_target = &target;
    for (int i = 0; i < bars.GetCount(); ++i) {
        CXTPControl& control = *bars.GetAt(i);
        // Command 0 is no command: the toolkit shows a separator there.
        if (control.GetID() == 0) {
            m_toolbar.addSeparator();
            continue;
        }
        QWidget* widget = MakeWidget(control);
        const QStringList prompt = PromptParts(control);
        widget->setToolTip(prompt.value(1, prompt.value(0)));
        widget->setStatusTip(prompt.value(0));
        m_toolbar.addWidget(widget);
        m_shown.push_back({&control, widget});
    }
    UpdateControls();
}

QWidget* QtCommandBar::MakeWidget(CXTPControl& control)
{
    const int id = control.GetID();
    switch (control.GetType()) {
    case XTPControlType::ComboBox: {
        auto* combo = new QComboBox;
        combo->setSizeAdjustPolicy(QComboBox::AdjustToContents); // every item's name in full
        auto& items = static_cast<KestoPlatform::CXTPControlComboBox&>(control);
        if (items.GetDropDownItemCount() > 0)
            combo->setMaxVisibleItems(items.GetDropDownItemCount());
        QObject::connect(combo, &QComboBox::activated, combo, [this, &items](int index) {
            items.SetCurSel(index);
            QWidget* home = m_focusHome; // the choice may replace this bar's widgets
            Notify(items, KestoPlatform::XTP_NOTIFY_EXECUTE);
            if (home)
                home->setFocus(Qt::OtherFocusReason);
        });
        return combo;
    }
    case XTPControlType::Edit: {
        auto* box = new QDoubleSpinBox;
        box->setDecimals(0);
        box->setRange(0, 100);
        box->setKeyboardTracking(false);
        auto& edit = static_cast<KestoPlatform::CXTPControlEdit&>(control);
        QObject::connect(box, &QDoubleSpinBox::valueChanged, box, [this, &edit](double value) {
            if (m_showing)
                return;
            edit.SetValue(value);
            Notify(edit, KestoPlatform::XTP_NOTIFY_EXECUTE);
        });
        QObject::connect(box, &QDoubleSpinBox::editingFinished, box, [this, &edit, box] {
            edit.SetValue(box->value());
            Notify(edit, KestoPlatform::XTP_NOTIFY_COMMIT);
        });
        new EditEnds(*box, [this, &edit, box](bool escape) {
            if (escape) {
                const bool wasShowing = std::exchange(m_showing, true);
                box->setValue(edit.GetValue());
                m_showing = wasShowing;
            }
            if (m_focusHome)
                m_focusHome->setFocus(Qt::ShortcutFocusReason);
        });
        return box;
    }
    default: {
        auto* button = new QToolButton;
        const bool icon = control.GetStyle() != KestoPlatform::XTPButtonStyle::Caption;
        const bool caption = control.GetStyle() == KestoPlatform::XTPButtonStyle::Caption ||
                             control.GetStyle() == KestoPlatform::XTPButtonStyle::IconAndCaption;
        if (icon && control.GetType() != XTPControlType::PopupColor)
            button->setIcon(IconOf(*m_bars, id));
        // A button with no picture shows its caption, so that it can be read at all. The caption
        // is the prompt's short one, as the toolkit reads it (in the user's language where the
        // library's texts are localised), else the control's own.
        if (caption || (button->icon().isNull() && control.GetType() != XTPControlType::PopupColor)) {
            const QString shortCaption = PromptParts(control).value(2);
            button->setText(shortCaption.isEmpty() ? ToQString(control.GetCaption()) : shortCaption);
        }
        button->setToolButtonStyle(caption && icon ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonFollowStyle);
        QObject::connect(button, &QToolButton::clicked, button, [this, id] {
            if (m_target)
                m_target->OnCmdMsg(id, KestoPlatform::CN_COMMAND, nullptr, nullptr);
        });
        return button;
    }
    }
}

void QtCommandBar::Notify(CXTPControl& control, int code)
{
    if (!m_target)
        return;
    KestoPlatform::NMXTPCONTROL record;
    record.hdr = {control.GetID(), code};
    record.pControl = &control;
    long result = 0;
    KestoPlatform::AFX_NOTIFY extra{&result, &record};
    m_target->OnCmdMsg(control.GetID(), KestoPlatform::CN_NOTIFY(code), &extra, nullptr);
}

void QtCommandBar::UpdateControls()
{
    if (!m_target)
        return;
    for (const Shown& shown : m_shown) {
        CXTPControl& control = *shown.control;
        if (auto* edit = dynamic_cast<KestoPlatform::CXTPControlEdit*>(&control))
            edit->SetFocused(shown.widget->hasFocus());
        KestoPlatform::CCmdUI ui(control.GetID(), &control);
        // A command with no update handler is enabled when something handles it.
        if (!ui.DoUpdate(m_target)) {
            KestoPlatform::AFX_CMDHANDLERINFO handler;
            control.SetEnabled(m_target->OnCmdMsg(control.GetID(), KestoPlatform::CN_COMMAND, nullptr, &handler) ||
                               control.GetType() == XTPControlType::ComboBox ||
                               control.GetType() == XTPControlType::Edit);
        }
        ShowState(shown);
    }
}

void QtCommandBar::ShowState(const Shown& shown)
{
    const CXTPControl& control = *shown.control;
    QWidget* widget = shown.widget;
    const bool wasShowing = std::exchange(m_showing, true);
    if (widget->isEnabled() != control.GetEnabled())
        widget->setEnabled(control.GetEnabled());
    if (widget->isVisibleTo(&m_toolbar) != control.IsVisible())
        widget->setVisible(control.IsVisible());
    if (auto* button = qobject_cast<QToolButton*>(widget)) {
        if (button->isCheckable() != control.GetChecked() && control.GetChecked())
            button->setCheckable(true);
        if (button->isChecked() != control.GetChecked())
            button->setChecked(control.GetChecked());
        if (const auto* colour = dynamic_cast<const KestoPlatform::CXTPControlPopupColor*>(&control)) {
            const QVariant shownColour = button->property("kestoColour");
            if (!shownColour.isValid() || shownColour.toUInt() != colour->GetColor()) {
                button->setIcon(Swatch(colour->GetColor(), button->iconSize().height()));
                button->setProperty("kestoColour", static_cast<unsigned>(colour->GetColor()));
            }
        }
    } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        const auto& items = static_cast<const KestoPlatform::CXTPControlComboBox&>(control);
        ShowListItems(*combo, items);
        for (int i = 0; m_itemIcons && i < combo->count() && i < items.GetCount(); ++i)
            if (combo->itemIcon(i).isNull())
                combo->setItemIcon(i, m_itemIcons(control.GetID(), items.GetItemData(i)));
        FitListToItems(*combo);
    } else if (auto* box = qobject_cast<QDoubleSpinBox*>(widget)) {
        const auto& edit = static_cast<const KestoPlatform::CXTPControlEdit&>(control);
        const QString suffix = edit.GetUnit().IsEmpty() ? QString() : QStringLiteral(" ") + ToQString(edit.GetUnit());
        if (box->suffix() != suffix)
            box->setSuffix(suffix);
        // The box the user is typing in keeps what they type.
        if (!box->hasFocus() && box->value() != edit.GetValue())
            box->setValue(edit.GetValue());
    }
    m_showing = wasShowing;
}

QWidget* QtCommandBar::WidgetOf(int id) const
{
    for (const Shown& shown : m_shown) {
        if (shown.control->GetID() == id)
            return shown.widget;
    }
    return nullptr;
}

} // namespace KestoToolQt
