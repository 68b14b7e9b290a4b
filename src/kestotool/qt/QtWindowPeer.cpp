#include "kestotool/qt/QtWindowPeer.h"

#include "kestotool/qt/QtBackend.h"
#include "kestotool/qt/QtConvert.h"
#include "kestotool/qt/QtFillPreview.h"

#include "kestotool/platform/CButton.h"
#include "kestotool/platform/CComboBox.h"
#include "kestotool/platform/CEdit.h"
#include "kestotool/platform/CSliderCtrl.h"
#include "kestotool/platform/CSpinButtonCtrl.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <functional>

namespace KestoToolQt {

using KestoPlatform::CWnd;
using KestoPlatform::WindowKind;

namespace {

int Scaled(int units)
{
    return static_cast<int>(std::lround(units * QtBackend::PixelsPerUnit()));
}

// A dialog whose close button, Escape key and reject() cancel through the dialog's own
// IDCANCEL command, so that the dialog's OnCancel decides.
class PeerDialog final : public QDialog {
public:
    PeerDialog(QWidget* parent, std::function<void()> cancel) : QDialog(parent), m_cancel(std::move(cancel)) {}
    void reject() override { m_cancel(); }

private:
    std::function<void()> m_cancel;
};

class DialogPeer final : public QtWindowPeer {
public:
    DialogPeer(CWnd& window, QtBackend& backend, QWidget* parent)
        : QtWindowPeer(window, backend, new PeerDialog(parent, [this] {
                           GetWindow().OnCommand(
                               KestoPlatform::MakeCommandParam(KestoPlatform::IDCANCEL, KestoPlatform::BN_CLICKED),
                               nullptr);
                       }))
    {
    }

protected:
    void ShowGeometry() override
    {
        const KestoPlatform::CRect r = GetWindow().GetWindowRect();
        Widget()->setFixedSize(Scaled(r.Width()), Scaled(r.Height()));
    }
    void ShowState() override { Widget()->setWindowTitle(ToQString(GetWindow().GetWindowText())); }
};

// A line edit that lets its window see the keys it handles before the widget does; the
// window keeps Return, so that Enter in an edit box does not press the dialog's default button.
class PeerLineEdit final : public QLineEdit {
public:
    PeerLineEdit(QWidget* parent, CWnd& window) : QLineEdit(parent), m_window(&window) {}
    void Retarget(CWnd& window) { m_window = &window; }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        const unsigned key = ToVirtualKey(event->key());
        if (key)
            m_window->OnKeyDown(key, 1, 0);
        if (key == KestoPlatform::VK_RETURN)
            return;
        QLineEdit::keyPressEvent(event);
    }
    void keyReleaseEvent(QKeyEvent* event) override
    {
        if (const unsigned key = ToVirtualKey(event->key()))
            m_window->OnKeyUp(key, 1, 0);
        QLineEdit::keyReleaseEvent(event);
    }

private:
    CWnd* m_window;
};

// The widget edits the text itself and hands the whole new text to the window's edit path.
class EditPeer final : public QtWindowPeer {
public:
    EditPeer(CWnd& window, QtBackend& backend, QWidget* parent)
        : QtWindowPeer(window, backend, new PeerLineEdit(parent, window))
    {
        QObject::connect(LineEdit(), &QLineEdit::textEdited, LineEdit(), [this](const QString& text) {
            if (Updating())
                return;
            if (auto* edit = dynamic_cast<KestoPlatform::CEdit*>(&GetWindow()))
                edit->SetTextFromUser(ToCString(text));
        });
    }

protected:
    void ShowState() override
    {
        PeerLineEdit* line = LineEdit();
        line->Retarget(GetWindow());
        const auto* edit = dynamic_cast<const KestoPlatform::CEdit*>(&GetWindow());
        if (!edit)
            return;
        line->setMaxLength(edit->GetLimitText() > 0 ? edit->GetLimitText() : 32767);
        const QString text = ToQString(edit->GetWindowText());
        if (line->text() != text)
            line->setText(text);
        int start = 0;
        int end = 0;
        edit->GetSel(start, end);
        start = std::clamp(start, 0, static_cast<int>(text.size()));
        end = std::clamp(end, start, static_cast<int>(text.size()));
        line->setSelection(start, end - start);
    }

private:
    PeerLineEdit* LineEdit() const { return static_cast<PeerLineEdit*>(Widget()); }
};

class SliderPeer final : public QtWindowPeer {
public:
    SliderPeer(CWnd& window, QtBackend& backend, QWidget* parent)
        : QtWindowPeer(window, backend, new QSlider(Qt::Horizontal, parent))
    {
        QObject::connect(Slider(), &QSlider::valueChanged, Slider(), [this](int value) {
            if (Updating())
                return;
            Scroll(KestoPlatform::SB_THUMBTRACK, value);
            if (!Slider()->isSliderDown())
                Scroll(KestoPlatform::SB_ENDSCROLL, value);
        });
        QObject::connect(Slider(), &QSlider::sliderReleased, Slider(),
                         [this] { Scroll(KestoPlatform::SB_ENDSCROLL, Slider()->value()); });
    }

protected:
    void ShowState() override
    {
        if (const auto* slider = dynamic_cast<const KestoPlatform::CSliderCtrl*>(&GetWindow())) {
            Slider()->setRange(slider->GetRangeMin(), slider->GetRangeMax());
            Slider()->setValue(slider->GetPos());
        }
    }

private:
    QSlider* Slider() const { return static_cast<QSlider*>(Widget()); }
    // The user moved the slider: it takes the position and tells its parent, as a scroll bar.
    void Scroll(int code, int value)
    {
        auto* slider = dynamic_cast<KestoPlatform::CSliderCtrl*>(&GetWindow());
        if (!slider)
            return;
        if (code == KestoPlatform::SB_THUMBTRACK)
            slider->SetPos(value);
        if (CWnd* parent = slider->GetParent())
            parent->OnHScroll(code, slider->GetPos(), slider);
    }
};

// A spin button is a pair of arrow buttons beside its buddy; a click steps it. The arrows
// never take the focus, so the buddy keeps it while the user steps.
class SpinPeer final : public QtWindowPeer {
public:
    SpinPeer(CWnd& window, QtBackend& backend, QWidget* parent) : QtWindowPeer(window, backend, new QWidget(parent))
    {
        auto* layout = new QVBoxLayout(Widget());
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        for (const bool up : {true, false}) {
            auto* arrow = new QToolButton(Widget());
            arrow->setArrowType(up ? Qt::UpArrow : Qt::DownArrow);
            arrow->setAutoRepeat(true);
            arrow->setFocusPolicy(Qt::NoFocus);
            arrow->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
            arrow->setObjectName(up ? QStringLiteral("up") : QStringLiteral("down"));
            layout->addWidget(arrow);
            QObject::connect(arrow, &QToolButton::clicked, arrow, [this, up] {
                if (auto* spin = dynamic_cast<KestoPlatform::CSpinButtonCtrl*>(&GetWindow()))
                    spin->Click(up);
            });
        }
    }
};

class ComboPeer final : public QtWindowPeer {
public:
    ComboPeer(CWnd& window, QtBackend& backend, QWidget* parent) : QtWindowPeer(window, backend, new QComboBox(parent))
    {
        QObject::connect(Combo(), &QComboBox::activated, Combo(), [this](int index) {
            if (Updating())
                return;
            if (auto* combo = dynamic_cast<KestoPlatform::CComboBox*>(&GetWindow())) {
                combo->SetCurSel(index);
                combo->NotifyParent(KestoPlatform::CBN_SELCHANGE);
            }
        });
    }

protected:
    void ShowState() override
    {
        if (const auto* combo = dynamic_cast<const KestoPlatform::CComboBox*>(&GetWindow())) {
            ShowListItems(*Combo(), *combo);
            FitListToItems(*Combo());
        }
    }

private:
    QComboBox* Combo() const { return static_cast<QComboBox*>(Widget()); }
};

// A click focuses the button and tells its parent, as a click on a classic push button does. A
// button with an image shows it before its text.
class ButtonPeer : public QtWindowPeer {
public:
    ButtonPeer(CWnd& window, QtBackend& backend, QAbstractButton* button) : QtWindowPeer(window, backend, button)
    {
        QObject::connect(button, &QAbstractButton::clicked, button, [this] {
            if (auto* clicked = dynamic_cast<KestoPlatform::CButton*>(&GetWindow()))
                clicked->Click();
        });
    }
    static ButtonPeer* Push(CWnd& window, QtBackend& backend, QWidget* parent)
    {
        auto* push = new QPushButton(parent);
        push->setAutoDefault(false);
        return new ButtonPeer(window, backend, push);
    }

protected:
    void ShowState() override
    {
        const auto* button = dynamic_cast<const KestoPlatform::CButton*>(&GetWindow());
        const QIcon icon = button ? ToQIcon(button->GetImage()) : QIcon();
        Button()->setIcon(icon);
        Button()->setText(ToQString(GetWindow().GetWindowText()));
        if (auto* push = qobject_cast<QPushButton*>(Button()))
            push->setDefault(GetWindow().GetDlgCtrlID() == KestoPlatform::IDOK);
        if (const auto* box = dynamic_cast<const KestoPlatform::CCheckBox*>(button))
            Button()->setChecked(box->GetCheck());
    }

    QAbstractButton* Button() const { return static_cast<QAbstractButton*>(Widget()); }
};

class StaticPeer final : public QtWindowPeer {
public:
    StaticPeer(CWnd& window, QtBackend& backend, QWidget* parent) : QtWindowPeer(window, backend, new QLabel(parent)) {}

protected:
    void ShowState() override { static_cast<QLabel*>(Widget())->setText(ToQString(GetWindow().GetWindowText())); }
};

class PreviewPeer final : public QtWindowPeer {
public:
    PreviewPeer(CWnd& window, QtBackend& backend, QWidget* parent)
        : QtWindowPeer(window, backend, new QtFillPreview(parent, window))
    {
    }

protected:
    void ShowState() override
    {
        auto* preview = static_cast<QtFillPreview*>(Widget());
        preview->SetWindow(GetWindow());
        preview->update();
    }
};

class PlainPeer final : public QtWindowPeer {
public:
    PlainPeer(CWnd& window, QtBackend& backend, QWidget* parent) : QtWindowPeer(window, backend, new QWidget(parent)) {}
};

} // namespace

std::unique_ptr<QtWindowPeer> QtWindowPeer::Make(CWnd& window, WindowKind kind, QtBackend& backend, QWidget* parent)
{
    switch (kind) {
    case WindowKind::Dialog: return std::make_unique<DialogPeer>(window, backend, parent);
    case WindowKind::Edit: return std::make_unique<EditPeer>(window, backend, parent);
    case WindowKind::Slider: return std::make_unique<SliderPeer>(window, backend, parent);
    case WindowKind::Spin: return std::make_unique<SpinPeer>(window, backend, parent);
    case WindowKind::ComboBox: return std::make_unique<ComboPeer>(window, backend, parent);
    case WindowKind::Button: return std::unique_ptr<QtWindowPeer>(ButtonPeer::Push(window, backend, parent));
    case WindowKind::CheckBox: return std::make_unique<ButtonPeer>(window, backend, new QCheckBox(parent));
    case WindowKind::Static: return std::make_unique<StaticPeer>(window, backend, parent);
    case WindowKind::FillPreview:
    case WindowKind::FillControl: return std::make_unique<PreviewPeer>(window, backend, parent);
    case WindowKind::Window: break;
    }
    return std::make_unique<PlainPeer>(window, backend, parent);
}

QtWindowPeer::QtWindowPeer(CWnd& window, QtBackend& backend, QWidget* widget)
    : WindowPeer(window), m_backend(backend), m_registered(widget), m_widget(widget)
{
    m_backend.Register(widget, this);
}

QtWindowPeer::~QtWindowPeer()
{
    m_backend.Unregister(m_registered);
    delete m_widget.data();
}

void QtWindowPeer::Update()
{
    if (!m_widget)
        return;
    const bool wasUpdating = std::exchange(m_updating, true);
    ShowGeometry();
    m_widget->setEnabled(GetWindow().IsWindowEnabled());
    m_widget->setToolTip(ToQString(GetWindow().GetToolTipText()));
    // A top-level window shows when it runs; a child follows its window's visible state.
    if (!m_widget->isWindow())
        m_widget->setVisible(GetWindow().IsWindowVisible());
    ShowState();
    m_updating = wasUpdating;
}

void QtWindowPeer::ShowGeometry()
{
    const KestoPlatform::CRect r = GetWindow().GetWindowRect();
    m_widget->setGeometry(Scaled(r.left), Scaled(r.top), Scaled(r.Width()), Scaled(r.Height()));
}

} // namespace KestoToolQt
