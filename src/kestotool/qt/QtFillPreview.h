#pragma once

#include <QWidget>

#include "kestotool/platform/CPoint.h"

namespace KestoPlatform {
class CWnd;
}

namespace KestoToolQt {

// The widget of a fill preview window: its fill (or transparency) painted by the renderer over
// a checkerboard. A plain preview stretches its bounds over the widget; a fill control shows
// them through its view, lets its client draw over the fill and takes the left button's
// gestures. A window that is neither shows the checkerboard alone.
class QtFillPreview : public QWidget {
public:
    QtFillPreview(QWidget* parent, KestoPlatform::CWnd& window);
    // The window whose fill is shown (a window that takes over the item takes over the widget).
    void SetWindow(KestoPlatform::CWnd& window) { m_window = &window; }
    // The picture the widget shows at its current size, overlay included.
    QImage Picture() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    // Widget pixels per dialog unit of the window.
    double Scale() const;
    // Where the pointer is, in the window's client dialog units.
    KestoPlatform::CPoint ClientPoint(const QMouseEvent& event) const;

    KestoPlatform::CWnd* m_window;
};

} // namespace KestoToolQt
