#pragma once

#include "kestotool/platform/ManualClock.h"
#include "kestotool/platform/WindowBackend.h"

#include <QObject>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>

class QTimer;
class QWidget;

namespace KestoToolQt {

class QtWindowPeer;

// The window back end on Qt widgets: each window of the library's window tree gets a widget
// (a QDialog, QLineEdit, QSlider, arrow buttons, QComboBox, QPushButton, QLabel or a fill
// preview), placed by its rectangle in dialog units scaled to the screen's dpi. Timers run on
// QTimer, or on a manual clock for tests and scripted sessions; the keyboard focus follows
// both ways; a modal run is QDialog::exec.
//
// Construct it after the QApplication and install it with KestoPlatform::SetBackend; uninstall it
// before it goes. It sets the screen's pixels per inch from the primary screen.
class QtBackend : public KestoPlatform::WindowBackend {
public:
    using ModalScript = std::function<void(KestoPlatform::CDialog&)>;

    QtBackend();
    ~QtBackend() override;

    std::unique_ptr<KestoPlatform::WindowPeer> CreatePeer(KestoPlatform::CWnd& window,
                                                          KestoPlatform::WindowKind kind) override;
    void SetTimer(KestoPlatform::CWnd* window, int id, int milliseconds) override;
    void KillTimer(KestoPlatform::CWnd* window, int id) override;
    KestoPlatform::CWnd* GetFocus() const override { return m_focus; }
    void SetFocus(KestoPlatform::CWnd* window) override;
    int RunModal(KestoPlatform::CDialog& dialog) override;
    void EndModal(KestoPlatform::CDialog& dialog, int result) override;
    void WindowDestroyed(KestoPlatform::CWnd* window) override;
    // QColorDialog over the owner's widget, or the colour script's answer when there is one.
    bool ChooseColour(KestoPlatform::CWnd* owner, KestoPlatform::COLORREF initial,
                      KestoPlatform::COLORREF* chosen) override;

    // A script that each modal run plays once its dialog is showing, from the dialog's event
    // loop; a dialog the script leaves open is cancelled. Null runs the dialog for the user.
    void SetModalScript(ModalScript script) { m_script = std::move(script); }
    // What the user picks in the colour chooser from now on, without showing it (nothing
    // cancels); null shows the chooser to the user.
    using ColourScript = std::function<std::optional<KestoPlatform::COLORREF>(KestoPlatform::COLORREF initial)>;
    void SetColourScript(ColourScript script) { m_colourScript = std::move(script); }

    // Timers from now on wait for AdvanceClock instead of the wall clock (or go back to it).
    void UseManualClock(bool manual);
    void AdvanceClock(int milliseconds) { m_clock.Advance(milliseconds); }

    // The widget that shows a window; null for a window that is not live on this back end.
    static QWidget* WidgetOf(const KestoPlatform::CWnd& window);
    // The window a widget (or a part of it) shows; null for a widget of no window.
    KestoPlatform::CWnd* WindowOf(const QWidget* widget) const;

    // Widget pixels per dialog unit: the screen's pixels per inch over 96.
    static double PixelsPerUnit();

private:
    friend class QtWindowPeer;
    void Register(QWidget* widget, QtWindowPeer* peer) { m_peers[widget] = peer; }
    void Unregister(const QWidget* widget) { m_peers.erase(widget); }
    void FocusChangedByUser(QWidget* now);

    QObject m_context; // owns the connections to the application
    std::map<const QWidget*, QtWindowPeer*> m_peers;
    std::map<std::pair<KestoPlatform::CWnd*, int>, std::unique_ptr<QTimer>> m_timers;
    KestoPlatform::ManualClock m_clock;
    bool m_manualClock = false;
    KestoPlatform::CWnd* m_focus = nullptr;
    bool m_settingFocus = false;
    ModalScript m_script;
    ColourScript m_colourScript;
};

} // namespace KestoToolQt
