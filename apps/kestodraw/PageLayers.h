#pragma once

#include "Document.h"
#include "DrawingPainter.h"

#include <QImage>
#include <QTransform>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
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
// They are built on a worker thread, so that a page that takes long to paint never holds up
// the window: a frame waits a little for them, and meanwhile shows the layers of the scene
// before. A build no longer wanted is stopped at its next shape.
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
    ~PageLayers();
    PageLayers(const PageLayers&) = delete;
    PageLayers& operator=(const PageLayers&) = delete;

    // Whether the layers show this scene already.
    bool Shows(const Scene& scene) const;
    // Has the layers built for the scene unless they show it or are being built for it, and
    // waits at most wait for them (for ever when it is nullopt). Answers whether they show it.
    bool Prepare(const Scene& scene, std::optional<std::chrono::milliseconds> wait);
    // The share done, 0..1, of the build under way; nothing when none is.
    std::optional<double> Progress() const;
    // Device pixels the builds have rendered so far, stopped ones included.
    std::int64_t RenderedPixels() const { return m_drawing.RenderedPixels(); }

    // What the layers show: the scene last prepared, or while it is being built an earlier one.
    bool Empty() const { return m_shown.below.isNull(); }
    const QImage& Below() const { return m_shown.below; }
    // Null when nothing lies above the selection; what lies there covers AboveBounds.
    const QImage* Above() const { return m_shown.above ? &*m_shown.above : nullptr; }
    const QRect& AboveBounds() const { return m_shown.aboveBounds; }
    const QTransform& View() const { return m_shown.key.view; }
    // The selection the layers leave out (-1: none), and its shape as it was then.
    int Selected() const { return m_shown.key.selected; }
    const Shape* SelectedShape() const;

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
        Key key;
        QImage below;
        std::optional<QImage> above;
        QRect aboveBounds;
    };
    struct Job {
        Key key;
        std::atomic<bool> stop = false;
        std::atomic<double> done = 0;
    };

    static Key KeyOf(const Scene& scene);
    static bool Matches(const Key& key, const Scene& scene);
    // The layers the job asks for; nothing when it was stopped.
    static std::optional<Layers> Build(Job& job, DrawingPainter& drawing);
    void Work();
    void TakeBuilt(); // with m_lock held

    QObject* m_owner;
    std::function<void()> m_ready;
    Layers m_shown;

    mutable std::mutex m_lock;
    std::condition_variable m_changed;
    std::shared_ptr<Job> m_job;     // asked for and not yet built
    std::shared_ptr<Job> m_running; // the one the worker builds
    std::optional<Layers> m_built; // built and not yet shown
    bool m_quit = false;
    DrawingPainter m_drawing; // the worker's
    std::thread m_worker;
};

} // namespace KestoDraw
