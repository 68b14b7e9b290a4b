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
#include <vector>

class QObject;
class QPainter;

namespace KestoDraw {

// What stays the same while the selection is edited, kept at the device's resolution: the
// window's backdrop, the page and its grid with the shapes below the selection, and the shapes
// above it. A frame copies them around the selection's fill, which alone is rendered anew; they
// are rebuilt when anything else changes (the view, the window's size, another shape, the grid,
// the selection itself).
//
// They are built on a worker thread (a build no longer wanted stops at its next shape), so that
// a page that takes long to paint never holds up the window: a frame shows the layers of the
// scene before until they are ready.
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

    // ready is called on owner's thread when layers built in the background can be shown.
    PageLayers(QObject* owner, std::function<void()> ready);

    // Whether the layers show this scene already.
    bool Shows(const Scene& scene) const;
    // Has the layers built for the scene unless they show it or are being built for it, and
    // waits at most wait for them (for ever when it is nullopt). Answers whether they show it.
    bool Prepare(const Scene& scene, std::optional<std::chrono::milliseconds> wait);
    // The share done, 0..1, of the build under way; nothing when none is.
    std::optional<double> Progress() const { return m_build.Progress(); }
    // Device pixels the builds have rendered so far, stopped ones included.
    std::int64_t RenderedPixels() const { return m_drawing.RenderedPixels(); }

    // What the layers show: the scene last prepared, or while it is being built an earlier one.
    bool Empty() const { return !m_build.Shown(); }
    const QImage& Below() const { return m_build.Shown()->result.below; }
    // Null when nothing lies above the selection; what lies there covers AboveBounds.
    const QImage* Above() const;
    const QRect& AboveBounds() const { return m_build.Shown()->result.aboveBounds; }
    const QTransform& View() const { return m_build.Shown()->key.view; }
    // The selection the layers leave out (-1: none).
    int Selected() const { return m_build.Shown()->key.selected; }

    // The colour around the page, and the page over it (blank, with its shadow) as the view
    // places it.
    static constexpr QRgb Backdrop = qRgb(150, 150, 150);
    static void PaintBlankPage(QPainter& painter, const QTransform& view, int width, int height, double pixelRatio);

private:
    // What a set of layers shows.
    struct Key {
        std::vector<Shape> shapes;
        int width = 0, height = 0; // the page
        int selected = -1;
        QTransform view;
        QSize deviceSize;
        double pixelRatio = 1;
        int grid = 0;
    };
    struct Layers {
        QImage below;
        std::optional<QImage> above;
        QRect aboveBounds;
    };
    using Builder = LatestBuild<Key, Layers>;

    static Key KeyOf(const Scene& scene);
    static bool Matches(const Key& key, const Scene& scene);
    // The layers the key asks for; nothing when going stopped them.
    static std::optional<Layers> Build(const Key& key, DrawingPainter& drawing, const Builder::Going& going);

    DrawingPainter m_drawing; // the worker's
    Builder m_build;
};

} // namespace KestoDraw
