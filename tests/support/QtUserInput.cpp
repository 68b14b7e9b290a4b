// The user's input through real Qt widgets: key events into the focused widget, an input
// method's commit, mouse clicks on buttons, the slider's thumb pressed, moved and let go.
#include "support/UserInput.h"

#include "kestotool/qt/QtBackend.h"
#include "kestotool/qt/QtConvert.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSlider>
#include <QTest>
#include <QToolButton>

#include <cstdlib>

namespace KestoTest {

namespace {

using KestoToolQt::QtBackend;
using KestoToolQt::ToQString;

// The application for every Qt test of the process; without a display it draws offscreen.
void EnsureApplication()
{
    if (qApp)
        return;
    if (!std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 0);
    static int argc = 1;
    static char name[] = "KestoToolTests";
    static char* argv[] = {name, nullptr};
    // Lives as long as the process: widgets may still be going away when tests end.
    new QApplication(argc, argv);
}

class QtInput final : public UserInput {
public:
    std::string Name() const override { return "Qt"; }
    void Install() override
    {
        EnsureApplication();
        if (!m_backend) {
            m_backend = std::make_unique<QtBackend>();
            m_backend->UseManualClock(true);
        }
        KestoPlatform::SetBackend(m_backend.get());
    }
    void Uninstall() override
    {
        m_backend->SetModalScript(nullptr);
        m_backend->SetColourScript(nullptr);
        KestoPlatform::SetBackend(nullptr);
    }
    void SetModalScript(std::function<void(KestoPlatform::CDialog&)> script) override
    {
        m_backend->SetModalScript(std::move(script));
    }
    void Type(const KestoPlatform::CString& text) override
    {
        if (QWidget* widget = Focused())
            QTest::keyClicks(widget, ToQString(text));
    }
    void EnterText(const KestoPlatform::CString& text) override
    {
        auto* line = qobject_cast<QLineEdit*>(Focused());
        if (!line)
            return;
        line->selectAll();
        QInputMethodEvent commit;
        commit.setCommitString(ToQString(text));
        QApplication::sendEvent(line, &commit);
    }
    void PressKey(unsigned key) override
    {
        if (QWidget* widget = Focused())
            QTest::keyClick(widget, KestoToolQt::ToQtKey(key));
    }
    void MoveFocus(KestoPlatform::CWnd* window) override
    {
        if (QWidget* widget = window ? QtBackend::WidgetOf(*window) : nullptr)
            widget->setFocus(Qt::TabFocusReason);
    }
    void DragSlider(KestoPlatform::CSliderCtrl& slider, int pos) override
    {
        auto* widget = qobject_cast<QSlider*>(QtBackend::WidgetOf(slider));
        if (!widget)
            return;
        widget->setSliderDown(true);
        widget->setSliderPosition(pos);
        widget->setSliderDown(false);
    }
    void ClickSpin(KestoPlatform::CSpinButtonCtrl& spin, bool up) override
    {
        QWidget* widget = QtBackend::WidgetOf(spin);
        if (auto* arrow = widget ? widget->findChild<QToolButton*>(up ? "up" : "down") : nullptr)
            QTest::mouseClick(arrow, Qt::LeftButton);
    }
    void ClickButton(KestoPlatform::CWnd& dialog, int id) override
    {
        KestoPlatform::CWnd* item = dialog.GetDlgItem(id);
        if (auto* button = item ? qobject_cast<QAbstractButton*>(QtBackend::WidgetOf(*item)) : nullptr)
            QTest::mouseClick(button, Qt::LeftButton);
    }
    void AdvanceClock(int milliseconds) override { m_backend->AdvanceClock(milliseconds); }
    void DragMouse(KestoPlatform::CWnd& window, KestoPlatform::CPoint from, KestoPlatform::CPoint to,
                   unsigned flags) override
    {
        QWidget* widget = QtBackend::WidgetOf(window);
        if (!widget)
            return;
        const Qt::KeyboardModifiers modifiers =
            (flags & KestoPlatform::MK_SHIFT ? Qt::ShiftModifier : Qt::NoModifier) |
            (flags & KestoPlatform::MK_CONTROL ? Qt::ControlModifier : Qt::NoModifier);
        const double scale = QtBackend::PixelsPerUnit();
        const auto send = [&](QEvent::Type type, KestoPlatform::CPoint at, Qt::MouseButtons buttons) {
            const QPointF local(at.x * scale, at.y * scale);
            QMouseEvent event(type, local, widget->mapToGlobal(local), Qt::LeftButton, buttons, modifiers);
            QApplication::sendEvent(widget, &event);
        };
        send(QEvent::MouseButtonPress, from, Qt::LeftButton);
        send(QEvent::MouseMove, KestoPlatform::CPoint((from.x + to.x) / 2, (from.y + to.y) / 2), Qt::LeftButton);
        send(QEvent::MouseMove, to, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, to, Qt::NoButton);
    }
    void SelectItem(KestoPlatform::CComboBox& combo, int index) override
    {
        if (auto* box = qobject_cast<QComboBox*>(QtBackend::WidgetOf(combo))) {
            box->setCurrentIndex(index);
            emit box->activated(index);
        }
    }
    void SetColourScript(ColourScript script) override { m_backend->SetColourScript(std::move(script)); }

private:
    // The widget of the window that has the focus: where the user's keys go.
    QWidget* Focused() const
    {
        KestoPlatform::CWnd* focus = m_backend->GetFocus();
        return focus ? QtBackend::WidgetOf(*focus) : nullptr;
    }

    std::unique_ptr<QtBackend> m_backend;
};

} // namespace

UserInput& QtUserInput()
{
    static QtInput input;
    return input;
}

} // namespace KestoTest
