#pragma once

#include "kestotool/platform/WindowPeer.h"

#include <QPointer>
#include <QWidget>

#include <memory>

namespace KestoToolQt {

class QtBackend;

// The Qt half of one window: a widget that shows the window's state and hands the user's input
// back to the window. The base shows the rectangle (dialog units scaled to the screen), the
// enabled and visible state; each kind shows the rest in ShowState. Signals a widget emits
// while the program updates it are not the user's, and are ignored (Updating()).
class QtWindowPeer : public KestoPlatform::WindowPeer {
public:
    // The peer of a window of that kind, its widget a child of parent (a top-level dialog
    // without one).
    static std::unique_ptr<QtWindowPeer> Make(KestoPlatform::CWnd& window, KestoPlatform::WindowKind kind,
                                              QtBackend& backend, QWidget* parent);

    QtWindowPeer(KestoPlatform::CWnd& window, QtBackend& backend, QWidget* widget);
    ~QtWindowPeer() override;

    void Update() final;
    QWidget* Widget() const { return m_widget.data(); }

protected:
    // The widget's place and size; a top-level window only takes the size.
    virtual void ShowGeometry();
    virtual void ShowState() {}
    bool Updating() const { return m_updating; }

private:
    QtBackend& m_backend;
    const QWidget* m_registered; // the key the back end knows this peer by
    QPointer<QWidget> m_widget;
    bool m_updating = false;
};

} // namespace KestoToolQt
