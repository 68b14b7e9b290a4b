#include "kestotool/qt/QtBackend.h"

#include "kestotool/qt/QtConvert.h"
#include "kestotool/qt/QtWindowPeer.h"

#include "kestotool/platform/CDialog.h"
#include "kestotool/platform/ScreenMetrics.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialog>
#include <QScreen>
#include <QTimer>

#include <cmath>

namespace KestoToolQt {

using KestoPlatform::CWnd;

QtBackend::QtBackend()
{
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        KestoPlatform::ScreenMetrics::SetLogPixelsX(static_cast<int>(std::lround(screen->logicalDotsPerInchX())));
    QObject::connect(qApp, &QApplication::focusChanged, &m_context,
                     [this](QWidget*, QWidget* now) { FocusChangedByUser(now); });
}

QtBackend::~QtBackend() = default;

double QtBackend::PixelsPerUnit()
{
    return KestoPlatform::ScreenMetrics::GetLogPixelsX() / 96.0;
}

std::unique_ptr<KestoPlatform::WindowPeer> QtBackend::CreatePeer(CWnd& window, KestoPlatform::WindowKind kind)
{
    QWidget* parent = window.GetParent() ? WidgetOf(*window.GetParent()) : nullptr;
    return QtWindowPeer::Make(window, kind, *this, parent);
}

QWidget* QtBackend::WidgetOf(const CWnd& window)
{
    const auto* peer = dynamic_cast<const QtWindowPeer*>(window.GetPeer());
    return peer ? peer->Widget() : nullptr;
}

CWnd* QtBackend::WindowOf(const QWidget* widget) const
{
    for (; widget; widget = widget->parentWidget()) {
        if (const auto it = m_peers.find(widget); it != m_peers.end())
            return &it->second->GetWindow();
    }
    return nullptr;
}

void QtBackend::SetTimer(CWnd* window, int id, int milliseconds)
{
    KillTimer(window, id);
    if (m_manualClock) {
        m_clock.SetTimer(window, id, milliseconds);
        return;
    }
    auto timer = std::make_unique<QTimer>();
    timer->setInterval(std::max(milliseconds, 1));
    QObject::connect(timer.get(), &QTimer::timeout, &m_context, [window, id] { window->OnTimer(id); });
    timer->start();
    m_timers[{window, id}] = std::move(timer);
}

void QtBackend::KillTimer(CWnd* window, int id)
{
    m_clock.KillTimer(window, id);
    const auto it = m_timers.find({window, id});
    if (it == m_timers.end())
        return;
    // The timer may be the one whose timeout is running: it goes when control is back in the
    // event loop.
    QTimer* timer = it->second.release();
    m_timers.erase(it);
    timer->stop();
    timer->disconnect();
    timer->deleteLater();
}

void QtBackend::UseManualClock(bool manual)
{
    m_manualClock = manual;
}

void QtBackend::SetFocus(CWnd* window)
{
    m_focus = window;
    QWidget* widget = window ? WidgetOf(*window) : nullptr;
    if (!widget || widget->hasFocus())
        return;
    m_settingFocus = true;
    widget->setFocus(Qt::OtherFocusReason);
    m_settingFocus = false;
}

void QtBackend::FocusChangedByUser(QWidget* now)
{
    if (m_settingFocus)
        return;
    CWnd* window = WindowOf(now);
    if (window && window != m_focus)
        window->SetFocus();
}

int QtBackend::RunModal(KestoPlatform::CDialog& dialog)
{
    auto* widget = qobject_cast<QDialog*>(WidgetOf(dialog));
    if (!widget)
        return KestoPlatform::IDCANCEL;
    // Tab moves through the controls in the window order, as the template lists them.
    QWidget* previous = nullptr;
    for (int i = 0; i < dialog.GetChildCount(); ++i) {
        QWidget* child = WidgetOf(*dialog.GetChild(i));
        if (!child || child->focusPolicy() == Qt::NoFocus)
            continue;
        if (previous)
            QWidget::setTabOrder(previous, child);
        previous = child;
    }
    // Shown and made the active window before anything runs in it, so that the keyboard focus
    // is the dialog's from the start (a script's first keys go where the user's would).
    widget->show();
    widget->activateWindow();
    QApplication::setActiveWindow(widget);
    if (m_script) {
        QTimer::singleShot(0, widget, [widget, &dialog, script = m_script] {
            script(dialog);
            if (!dialog.IsEnded())
                widget->done(KestoPlatform::IDCANCEL);
        });
    }
    return widget->exec();
}

void QtBackend::EndModal(KestoPlatform::CDialog& dialog, int result)
{
    if (auto* widget = qobject_cast<QDialog*>(WidgetOf(dialog)))
        widget->done(result);
}

bool QtBackend::ChooseColour(CWnd* owner, KestoPlatform::COLORREF initial, KestoPlatform::COLORREF* chosen)
{
    std::optional<KestoPlatform::COLORREF> answer;
    if (m_colourScript) {
        answer = m_colourScript(initial);
    } else {
        const QColor colour = QColorDialog::getColor(ToQColor(initial), owner ? WidgetOf(*owner) : nullptr);
        if (colour.isValid())
            answer = KestoPlatform::RGB(colour.red(), colour.green(), colour.blue());
    }
    if (answer && chosen)
        *chosen = *answer;
    return answer.has_value();
}

void QtBackend::WindowDestroyed(CWnd* window)
{
    m_clock.Forget(window);
    for (auto it = m_timers.begin(); it != m_timers.end();) {
        const auto next = std::next(it);
        if (it->first.first == window)
            KillTimer(window, it->first.second);
        it = next;
    }
    if (m_focus == window)
        m_focus = nullptr;
}

} // namespace KestoToolQt
