#include "DrawingPainter.h"

#include <kestotool/gdi/FillPaint.h>
#include <kestotool/raster/Composite.h>
#include <kestotool/raster/PreparedPaint.h>

#include <QImage>
#include <QPainter>

#include <algorithm>

namespace KestoDraw {

using namespace KestoRaster;

void DrawingPainter::Paint(QPainter& painter, const Document& document, const QTransform& view, const QRect& deviceClip,
                           const LiveFill& live)
{
    for (Cached& c : m_cache)
        c.used = false;
    for (std::size_t i = 0; i < document.shapes.size(); ++i) {
        const Shape& shape = document.shapes[i];
        const bool shown = live.fill && live.shape == static_cast<int>(i);
        const KestoGDI::CFill& fill = shown && !live.transparency ? *live.fill : *shape.fill;
        const KestoGDI::CFill* transparency = shown && live.transparency ? live.fill : shape.transparency.get();
        PaintShape(painter, shape, view, deviceClip, fill, transparency);
    }
    std::erase_if(m_cache, [](const Cached& c) { return !c.used; });
}

const std::optional<Paint>& DrawingPainter::PaintOf(const KestoGDI::CFill& fill, double pixelsPerUnit)
{
    auto it = std::find_if(m_cache.begin(), m_cache.end(),
                           [&](const Cached& c) { return c.fill.get() == &fill && c.pixelsPerUnit == pixelsPerUnit; });
    if (it == m_cache.end()) {
        m_cache.push_back({KestoKernel::RefPtr<const KestoGDI::CFill>(&fill), pixelsPerUnit,
                           KestoGDI::FillPaint::From(fill, pixelsPerUnit), true});
        return m_cache.back().paint;
    }
    it->used = true;
    return it->paint;
}

void DrawingPainter::PaintShape(QPainter& painter, const Shape& shape, const QTransform& view, const QRect& deviceClip,
                                const KestoGDI::CFill& fillShown, const KestoGDI::CFill* transparency)
{
    const QPainterPath outline = view.map(shape.Outline());
    const QRect area = outline.boundingRect().toAlignedRect().adjusted(-1, -1, 1, 1) & deviceClip;
    if (area.isEmpty())
        return;
    const int w = area.width();
    const int h = area.height();
    const double scale = view.m11();
    // The shape's box of device pixels, with the document placed as the view places it.
    const Affine toLayer{scale, 0, 0, view.m22(), view.dx() - area.x(), view.dy() - area.y()};
    const Clip all{0, 0, w, h};

    QImage fill(w, h, QImage::Format_ARGB32_Premultiplied);
    fill.fill(Qt::transparent);
    const Target fillTarget{fill.bits(), w, h, fill.bytesPerLine(), Output::Argb32};
    if (const std::optional<KestoRaster::Paint>& paint = PaintOf(fillShown, scale))
        Render(PreparedPaint(*paint, toLayer, Output::Argb32), fillTarget, all);
    else
        fill.fill(QColor(200, 200, 200)); // a kind the renderer does not paint shows as plain grey

    QImage shown = fill;
    if (transparency) {
        if (const std::optional<KestoRaster::Paint>& mask = PaintOf(*transparency, scale)) {
            std::vector<std::uint8_t> levels(static_cast<std::size_t>(w) * h, 0);
            const Target maskTarget{levels.data(), w, h, w, Output::Mask8};
            Render(PreparedPaint(*mask, toLayer, Output::Mask8), maskTarget, all);
            shown = QImage(w, h, QImage::Format_ARGB32_Premultiplied);
            shown.fill(Qt::transparent);
            CompositeOver({shown.bits(), w, h, shown.bytesPerLine(), Output::Argb32}, fillTarget, &maskTarget, all);
        }
    }

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QBrush brush(shown);
    brush.setTransform(QTransform::fromTranslate(area.x(), area.y()));
    painter.setBrush(brush);
    painter.setPen(QPen(QColor(70, 70, 70), 1.0));
    painter.drawPath(outline);
    painter.restore();
}

} // namespace KestoDraw
