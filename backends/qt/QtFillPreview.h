#pragma once

#include <QWidget>

namespace Platform {
class CWnd;
}

namespace KestoToolQt {

// The widget of a fill preview window: its fill (or transparency) painted by the renderer over
// a checkerboard, the preview's bounds stretched over the widget. A window that is no fill
// preview shows the checkerboard alone.
class QtFillPreview : public QWidget {
public:
    QtFillPreview(QWidget* parent, const Platform::CWnd& window);
    // The window whose fill is shown (a window that takes over the item takes over the widget).
    void SetWindow(const Platform::CWnd& window) { m_window = &window; }
    // The picture the widget shows at its current size.
    QImage Picture() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Platform::CWnd* m_window;
};

} // namespace KestoToolQt
