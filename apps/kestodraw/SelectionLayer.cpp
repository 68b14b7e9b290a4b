#include "SelectionLayer.h"

#include <QPainter>

namespace KestoDraw {

SelectionLayer::SelectionLayer(QObject* owner, std::function<void()> ready)
    : m_build(owner, std::move(ready), [this](const Key& key, const Builder::Going&) -> std::optional<Picture> {
          auto [image, area] = m_drawing.ShapePicture(key.shape, key.view, QRect(QPoint(0, 0), key.deviceSize),
                                                      *key.shape.fill, key.shape.transparency.get());
          return Picture{std::move(image), area};
      })
{
}

bool SelectionLayer::Matches(const Key& key, const Scene& scene)
{
    return key.index == scene.index && key.shape.SameOutline(*scene.shape) && key.shape.fill.get() == scene.fill &&
           key.shape.transparency.get() == scene.transparency && key.view == scene.view &&
           key.deviceSize == scene.deviceSize;
}

bool SelectionLayer::Prepare(const Scene& scene, std::optional<std::chrono::milliseconds> wait)
{
    const auto make = [&] {
        Key key{*scene.shape, scene.index, scene.view, scene.deviceSize};
        key.shape.fill = KestoKernel::RefPtr<const KestoGDI::CFill>(scene.fill);
        key.shape.transparency = KestoKernel::RefPtr<const KestoGDI::CFill>(scene.transparency);
        return key;
    };
    return m_build.Prepare([&](const Key& key) { return Matches(key, scene); }, make, wait);
}

void SelectionLayer::Paint(QPainter& painter, int index, const QTransform& view, const QRect& dirty) const
{
    const Builder::Built* shown = m_build.Shown();
    if (!shown || shown->key.index != index || shown->result.area.isEmpty())
        return;
    const Picture& picture = shown->result;
    if (shown->key.view == view) {
        const QRect part = dirty & picture.area;
        painter.drawImage(part.topLeft(), picture.image, part.translated(-picture.area.topLeft()));
        return;
    }
    const QTransform now = painter.worldTransform();
    painter.setWorldTransform(shown->key.view.inverted() * view * now);
    painter.drawImage(picture.area.topLeft(), picture.image, QRect(QPoint(0, 0), picture.area.size()));
    painter.setWorldTransform(now);
}

} // namespace KestoDraw
