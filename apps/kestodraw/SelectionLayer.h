#pragma once

#include "Document.h"
#include "DrawingPainter.h"
#include "LatestBuild.h"

#include <QImage>
#include <QTransform>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>

class QObject;
class QPainter;

namespace KestoDraw {

// The selected shape's picture: the one part of the page a frame renders anew while the
// selection is edited, over the page's other layers. It is rendered on a worker thread of its
// own, so that a fill slow to render (a vector fill's first tile) never holds up the window; a
// frame waits a little for it and meanwhile shows the picture before.
class SelectionLayer {
public:
    struct Scene {
        const Shape* shape;
        int index; // of the shape in its drawing
        const KestoGDI::CFill* fill;
        const KestoGDI::CFill* transparency; // null: none
        QTransform view;                     // document units to device pixels
        QSize deviceSize;
    };

    // ready is called on owner's thread when a picture rendered in the background can be shown.
    SelectionLayer(QObject* owner, std::function<void()> ready);

    // Has the picture of the scene rendered unless it is shown or being rendered, and waits at
    // most wait for it (for ever when nullopt). Answers whether it is shown.
    bool Prepare(const Scene& scene, std::optional<std::chrono::milliseconds> wait);
    // Paints, within dirty, the picture shown if it is of shape index, placed as view places the
    // page (the picture of a scene before may be of another zoom).
    void Paint(QPainter& painter, int index, const QTransform& view, const QRect& dirty) const;
    // Device pixels rendered so far.
    std::int64_t RenderedPixels() const { return m_drawing.RenderedPixels(); }

private:
    struct Key {
        Shape shape; // holding the fills to paint
        int index;
        QTransform view;
        QSize deviceSize;
    };
    struct Picture {
        QImage image; // its top left
        QRect area;   // goes here on the device
    };
    using Builder = LatestBuild<Key, Picture>;

    static bool Matches(const Key& key, const Scene& scene);

    DrawingPainter m_drawing; // the worker's
    Builder m_build;
};

} // namespace KestoDraw
