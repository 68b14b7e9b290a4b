#pragma once

#include "Document.h"

#include <kestotool/raster/Paint.h>
#include <kestotool/raster/PreparedPaint.h>

#include <QImage>
#include <QTransform>

#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

class QPainter;

namespace KestoDraw {

// Paints a drawing's shapes: each one's fill, times its transparency's mask and the coverage of
// its outline, all rendered by the renderer for the shape's box on the device, then a hairline
// outline. The painter's coordinates are the device's pixels, so that fills are rendered at the
// device's resolution. Paints are kept from one frame to the next while their fills are held by
// someone and shown at the same scale, so a repaint that only moves the view or one shape
// prepares nothing new.
class DrawingPainter {
public:
    // Asked before each piece of painting with the share of the work done (0..1); answering
    // false stops the painting there.
    using Going = std::function<bool(double done)>;

    // view maps document units to device pixels (a scale and a translation); shapes [first,
    // last) are painted, bottom to top, leaving out those that shapes above them hide (opaque
    // ones, or translucent ones enough to let less than half a level through).
    // Answers false when going stopped it.
    bool Paint(QPainter& painter, const Document& document, const QTransform& view, const QRect& deviceClip,
               std::size_t first = 0, std::size_t last = SIZE_MAX, const Going& going = {});
    // The page alone, white, at pixelsPerUnit; null when going stopped it.
    QImage PaintPage(const Document& document, double pixelsPerUnit, const Going& going = {});
    // Device pixels rendered so far (fills, masks and coverage each count their area once): the
    // measure of a drawing's cost.
    std::int64_t RenderedPixels() const { return m_renderedPixels.load(std::memory_order_relaxed); }
    // One shape with the fill and transparency given (a shape's own, or a gesture's working fill).
    void PaintShape(QPainter& painter, const Shape& shape, const QTransform& view, const QRect& deviceClip,
                    const KestoGDI::CFill& fill, const KestoGDI::CFill* transparency);
    // The shape painted alone as PaintShape paints it, into the top left of a transparent
    // picture, over the device pixels it covers within deviceClip; answers the picture and where
    // on the device that part of it goes (empty when it covers none). The picture may be larger.
    std::pair<QImage, QRect> ShapePicture(const Shape& shape, const QTransform& view, const QRect& deviceClip,
                                          const KestoGDI::CFill& fill, const KestoGDI::CFill* transparency);

private:
    struct Cached {
        KestoKernel::RefPtr<const KestoGDI::CFill> fill;
        double pixelsPerUnit;
        std::optional<KestoRaster::Paint> paint;
        std::optional<KestoRaster::PreparedPaint> colour; // the last preparations, whose colours
        std::optional<KestoRaster::PreparedPaint> mask;   // the next ones share
    };
    Cached& CachedOf(const KestoGDI::CFill& fill, double pixelsPerUnit);
    // The fill prepared to render into a layer placed by toLayer; nothing for a kind the
    // renderer does not paint.
    std::optional<KestoRaster::PreparedPaint> Prepare(const KestoGDI::CFill& fill, double pixelsPerUnit,
                                                      const KestoRaster::Affine& toLayer, KestoRaster::Output output);
    // Renders the shape's fill, times its coverage and transparency, into the top left of into
    // (grown to hold it); answers the device pixels that holds (empty when it covers none).
    QRect Render(const Shape& shape, const QTransform& view, const QRect& deviceClip, const KestoGDI::CFill& fill,
                 const KestoGDI::CFill* transparency, QImage& into);
    // The device pixels that the shape covers wholly with colour of one least opacity (an
    // upright rectangle of them), and the share of what lies beneath that shows through there
    // at most (0 where it is opaque); an empty rectangle when it has none or its paint's
    // opacity varies in ways not known before it is rendered.
    std::pair<QRect, double> UniformInside(const Shape& shape, const QTransform& view);

    std::vector<Cached> m_cache;
    QImage m_colours;
    QImage m_shown;
    QImage m_pictures[2];
    int m_nextPicture = 0;
    std::vector<std::uint8_t> m_coverage;
    std::vector<std::uint8_t> m_levels;
    std::atomic<std::int64_t> m_renderedPixels = 0; // read by other threads than the painting one
};

} // namespace KestoDraw
