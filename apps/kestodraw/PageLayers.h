#pragma once

#include "Document.h"

#include <QImage>
#include <QTransform>

#include <optional>
#include <vector>

namespace KestoDraw {

class DrawingPainter;

// What stays the same while the selection is edited, kept at the device's resolution: the
// window's backdrop, the page and its grid with the shapes below the selection, and the shapes
// above it. A frame copies them around the selection's fill, which alone is rendered anew; they
// are rebuilt when anything else changes (the view, the window's size, another shape, the grid,
// the selection itself).
class PageLayers {
public:
    struct Scene {
        const Document* document;
        int selected;    // -1: none (every shape is below)
        QTransform view; // document units to device pixels
        QSize deviceSize;
        double pixelRatio; // device pixels per pixel of the window
        int grid;          // document units; 0: none
    };

    // Whether the layers show this scene already.
    bool Shows(const Scene& scene) const;
    // Rebuilds the layers unless they show the scene already.
    void Prepare(const Scene& scene, DrawingPainter& painter);
    const QImage& Below() const { return m_below; }
    // Null when nothing lies above the selection; what lies there covers AboveBounds.
    const QImage* Above() const { return m_above ? &*m_above : nullptr; }
    const QRect& AboveBounds() const { return m_aboveBounds; }

private:
    std::vector<Shape> m_shapes; // the document's shapes the layers show
    int m_selected = -1;
    QTransform m_view;
    QSize m_deviceSize;
    double m_pixelRatio = 1;
    int m_grid = 0;
    QImage m_below;
    std::optional<QImage> m_above;
    QRect m_aboveBounds;
};

} // namespace KestoDraw
