#include "PageLayers.h"

#include <QPainter>

#include <algorithm>

namespace KestoDraw {

namespace {

// Two shapes look the same when they have the same outline and hold the same fills (fills are
// never changed once a shape holds them, so the same fill is the same picture).
bool LookTheSame(const Shape& a, const Shape& b)
{
    return a.SameOutline(b) && a.fill == b.fill && a.transparency == b.transparency;
}

} // namespace

PageLayers::PageLayers(QObject* owner, std::function<void()> ready)
    : m_build(owner, std::move(ready),
              [this](const Key& key, const Builder::Going& going) { return Build(key, m_drawing, going); })
{
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
    return !Empty() && Matches(m_build.Shown()->key, scene);
}

const QImage* PageLayers::Above() const
{
    const std::optional<QImage>& above = m_build.Shown()->result.above;
    return above ? &*above : nullptr;
}

bool PageLayers::Prepare(const Scene& scene, std::optional<std::chrono::milliseconds> wait)
{
    return m_build.Prepare([&](const Key& key) { return Matches(key, scene); }, [&] { return KeyOf(scene); }, wait);
}

void PageLayers::PaintBlankPage(QPainter& painter, const QTransform& view, int width, int height, double pixelRatio)
{
    const QRectF page = view.mapRect(QRectF(0, 0, width, height));
    painter.fillRect(page.translated(3 * pixelRatio, 3 * pixelRatio), QColor(90, 90, 90));
    painter.fillRect(page, Qt::white);
}

std::optional<PageLayers::Layers> PageLayers::Build(const Key& key, DrawingPainter& drawing,
                                                    const Builder::Going& going)
{
    // The painter reads a document; this one holds the shapes the key keeps.
    Document document;
    document.width = key.width;
    document.height = key.height;
    document.shapes = key.shapes;
    const std::size_t count = document.shapes.size();
    const std::size_t selected = key.selected < 0 ? count : static_cast<std::size_t>(key.selected);
    // The share of the work below the selection, by shapes, for the progress shown.
    const double belowShare = count ? static_cast<double>(selected) / static_cast<double>(count) : 1.0;
    const auto part = [&going](double from, double share) {
        return [&going, from, share](double done) { return going(from + done * share); };
    };

    Layers layers{QImage(key.deviceSize, QImage::Format_RGB32), std::nullopt, QRect()};
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
        if (!drawing.Paint(painter, document, key.view, all, 0, selected, part(0, belowShare)))
            return std::nullopt;
    }
    if (selected + 1 < count) {
        for (std::size_t i = selected + 1; i < count; ++i)
            layers.aboveBounds |=
                key.view.mapRect(document.shapes[i].Outline().boundingRect()).toAlignedRect().adjusted(-2, -2, 2, 2);
        layers.above.emplace(key.deviceSize, QImage::Format_ARGB32_Premultiplied);
        layers.above->fill(Qt::transparent);
        QPainter painter(&*layers.above);
        if (!drawing.Paint(painter, document, key.view, all, selected + 1, SIZE_MAX, part(belowShare, 1 - belowShare)))
            return std::nullopt;
    }
    return layers;
}

} // namespace KestoDraw
