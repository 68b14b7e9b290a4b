#include "PageLayers.h"

#include "DrawingPainter.h"

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

bool PageLayers::Shows(const Scene& scene) const
{
    const std::vector<Shape>& shapes = scene.document->shapes;
    if (m_below.isNull() || scene.selected != m_selected || scene.view != m_view || scene.deviceSize != m_deviceSize ||
        scene.pixelRatio != m_pixelRatio || scene.grid != m_grid || shapes.size() != m_shapes.size())
        return false;
    for (std::size_t i = 0; i < shapes.size(); ++i)
        if (static_cast<int>(i) != m_selected && !LookTheSame(shapes[i], m_shapes[i]))
            return false;
    return true;
}

void PageLayers::Prepare(const Scene& scene, DrawingPainter& drawing)
{
    if (Shows(scene))
        return;
    const Document& document = *scene.document;
    m_shapes = document.shapes;
    m_selected = scene.selected;
    m_view = scene.view;
    m_deviceSize = scene.deviceSize;
    m_pixelRatio = scene.pixelRatio;
    m_grid = scene.grid;

    const QRect all(QPoint(0, 0), m_deviceSize);
    m_below = QImage(m_deviceSize, QImage::Format_RGB32); // opaque: copied, never blended
    m_below.fill(QColor(150, 150, 150));
    {
        QPainter painter(&m_below);
        const QRectF page = m_view.mapRect(QRectF(0, 0, document.width, document.height));
        painter.fillRect(page.translated(3 * m_pixelRatio, 3 * m_pixelRatio), QColor(90, 90, 90));
        painter.fillRect(page, Qt::white);
        if (m_grid > 0 && m_grid * m_view.m11() >= 6 * m_pixelRatio) {
            painter.setPen(QPen(QColor(225, 225, 235), m_pixelRatio));
            for (double x = 0; x <= document.width; x += m_grid)
                painter.drawLine(m_view.map(QLineF(x, 0, x, document.height)));
            for (double y = 0; y <= document.height; y += m_grid)
                painter.drawLine(m_view.map(QLineF(0, y, document.width, y)));
        }
        const std::size_t selected = m_selected < 0 ? SIZE_MAX : static_cast<std::size_t>(m_selected);
        drawing.Paint(painter, document, m_view, all, 0, selected);
    }
    m_above.reset();
    m_aboveBounds = QRect();
    if (m_selected >= 0 && static_cast<std::size_t>(m_selected) + 1 < document.shapes.size()) {
        for (std::size_t i = static_cast<std::size_t>(m_selected) + 1; i < document.shapes.size(); ++i)
            m_aboveBounds |=
                m_view.mapRect(document.shapes[i].Outline().boundingRect()).toAlignedRect().adjusted(-2, -2, 2, 2);
        m_above.emplace(m_deviceSize, QImage::Format_ARGB32_Premultiplied);
        m_above->fill(Qt::transparent);
        QPainter painter(&*m_above);
        drawing.Paint(painter, document, m_view, all, static_cast<std::size_t>(m_selected) + 1);
    }
}

} // namespace KestoDraw
