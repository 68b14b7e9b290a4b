#include "PageLayers.h"

#include <QMetaObject>
#include <QObject>
#include <QPainter>

#include <algorithm>

namespace KestoDraw {

namespace {

// Two shapes look the same when they have the same outline and hold the same fills (fills are
// never changed once a shape holds them, so the same fill is the same picture).
bool LookTheSame(const Shape& a, const Shape& b)
{
    return a.kind == b.kind && a.box == b.box && a.points == b.points && a.fill == b.fill &&
           a.transparency == b.transparency;
}

} // namespace

PageLayers::PageLayers(QObject* owner, std::function<void()> ready)
    : m_owner(owner), m_ready(std::move(ready)), m_worker([this] { Work(); })
{
}

PageLayers::~PageLayers()
{
    {
        const std::lock_guard lock(m_lock);
        m_quit = true;
        if (m_running)
            m_running->stop = true;
    }
    m_changed.notify_all();
    m_worker.join();
}

PageLayers::Key PageLayers::KeyOf(const Scene& scene)
{
    return {scene.document->shapes, scene.document->width, scene.document->height, scene.selected,
            scene.view,             scene.deviceSize,      scene.pixelRatio,       scene.grid};
}

bool PageLayers::Matches(const Key& key, const Scene& scene)
{
    const std::vector<Shape>& shapes = scene.document->shapes;
    if (scene.selected != key.selected || scene.view != key.view || scene.deviceSize != key.deviceSize ||
        scene.pixelRatio != key.pixelRatio || scene.grid != key.grid || scene.document->width != key.width ||
        scene.document->height != key.height || shapes.size() != key.shapes.size())
        return false;
    for (std::size_t i = 0; i < shapes.size(); ++i)
        if (static_cast<int>(i) != key.selected && !LookTheSame(shapes[i], key.shapes[i]))
            return false;
    return true;
}

bool PageLayers::Shows(const Scene& scene) const
{
    return !Empty() && Matches(m_shown.key, scene);
}

const Shape* PageLayers::SelectedShape() const
{
    const int selected = m_shown.key.selected;
    return selected >= 0 && static_cast<std::size_t>(selected) < m_shown.key.shapes.size()
               ? &m_shown.key.shapes[static_cast<std::size_t>(selected)]
               : nullptr;
}

void PageLayers::TakeBuilt()
{
    if (m_built) {
        m_shown = std::move(*m_built);
        m_built.reset();
    }
}

bool PageLayers::Prepare(const Scene& scene, std::optional<std::chrono::milliseconds> wait)
{
    std::unique_lock lock(m_lock);
    TakeBuilt();
    if (Shows(scene))
        return true;
    if (!m_job || !Matches(m_job->key, scene)) {
        if (m_running)
            m_running->stop = true;
        m_job = std::make_shared<Job>();
        m_job->key = KeyOf(scene);
        m_changed.notify_all();
    }
    const auto built = [&] { return m_built && Matches(m_built->key, scene); };
    if (wait)
        m_changed.wait_for(lock, *wait, built);
    else
        m_changed.wait(lock, built);
    TakeBuilt();
    return Shows(scene);
}

std::optional<double> PageLayers::Progress() const
{
    const std::lock_guard lock(m_lock);
    if (!m_job)
        return std::nullopt;
    return m_job->done.load();
}

void PageLayers::Work()
{
    for (;;) {
        std::shared_ptr<Job> job;
        {
            std::unique_lock lock(m_lock);
            m_changed.wait(lock, [&] { return m_quit || (m_job && m_job != m_running); });
            if (m_quit)
                return;
            job = m_running = m_job;
        }
        std::optional<Layers> layers = Build(*job, m_drawing);
        {
            const std::lock_guard lock(m_lock);
            m_running.reset();
            if (m_job != job || !layers)
                continue; // another scene is wanted now
            m_built = std::move(layers);
            m_job.reset();
            // Posted before a frame waiting for the layers can take them, so that whoever
            // sees them has the call queued.
            QMetaObject::invokeMethod(m_owner, m_ready, Qt::QueuedConnection);
        }
        m_changed.notify_all();
    }
}

void PageLayers::PaintBlankPage(QPainter& painter, const QTransform& view, int width, int height, double pixelRatio)
{
    const QRectF page = view.mapRect(QRectF(0, 0, width, height));
    painter.fillRect(page.translated(3 * pixelRatio, 3 * pixelRatio), QColor(90, 90, 90));
    painter.fillRect(page, Qt::white);
}

std::optional<PageLayers::Layers> PageLayers::Build(Job& job, DrawingPainter& drawing)
{
    const Key& key = job.key;
    // The painter reads a document; this one holds the shapes the key keeps.
    Document document;
    document.width = key.width;
    document.height = key.height;
    document.shapes = key.shapes;
    const std::size_t count = document.shapes.size();
    const std::size_t selected = key.selected < 0 ? count : static_cast<std::size_t>(key.selected);
    // The share of the work below the selection, by shapes, for the progress shown.
    const double belowShare = count ? static_cast<double>(selected) / static_cast<double>(count) : 1.0;
    const auto going = [&job](double from, double share) {
        return [&job, from, share](double done) {
            job.done = from + done * share;
            return !job.stop;
        };
    };

    Layers layers{key, QImage(key.deviceSize, QImage::Format_RGB32), std::nullopt, QRect()};
    const QRect all(QPoint(0, 0), key.deviceSize);
    layers.below.fill(Backdrop); // opaque: copied, never blended
    {
        QPainter painter(&layers.below);
        PaintBlankPage(painter, key.view, key.width, key.height, key.pixelRatio);
        if (key.grid > 0 && key.grid * key.view.m11() >= 6 * key.pixelRatio) {
            painter.setPen(QPen(QColor(225, 225, 235), key.pixelRatio));
            for (double x = 0; x <= key.width; x += key.grid)
                painter.drawLine(key.view.map(QLineF(x, 0, x, key.height)));
            for (double y = 0; y <= key.height; y += key.grid)
                painter.drawLine(key.view.map(QLineF(0, y, key.width, y)));
        }
        if (!drawing.Paint(painter, document, key.view, all, 0, selected, going(0, belowShare)))
            return std::nullopt;
    }
    if (selected + 1 < count) {
        for (std::size_t i = selected + 1; i < count; ++i)
            layers.aboveBounds |=
                key.view.mapRect(document.shapes[i].Outline().boundingRect()).toAlignedRect().adjusted(-2, -2, 2, 2);
        layers.above.emplace(key.deviceSize, QImage::Format_ARGB32_Premultiplied);
        layers.above->fill(Qt::transparent);
        QPainter painter(&*layers.above);
        if (!drawing.Paint(painter, document, key.view, all, selected + 1, SIZE_MAX, going(belowShare, 1 - belowShare)))
            return std::nullopt;
    }
    return layers;
}

} // namespace KestoDraw
