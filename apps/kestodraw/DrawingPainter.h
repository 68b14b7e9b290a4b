#pragma once

#include "Document.h"

#include <kestotool/raster/Paint.h>

#include <QImage>
#include <QTransform>

#include <optional>
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
    // view maps document units to device pixels (a scale and a translation); shapes [first,
    // last) are painted, bottom to top.
    void Paint(QPainter& painter, const Document& document, const QTransform& view, const QRect& deviceClip,
               std::size_t first = 0, std::size_t last = SIZE_MAX);
    // One shape with the fill and transparency given (a shape's own, or a gesture's working fill).
    void PaintShape(QPainter& painter, const Shape& shape, const QTransform& view, const QRect& deviceClip,
                    const KestoGDI::CFill& fill, const KestoGDI::CFill* transparency);

private:
    struct Cached {
        KestoKernel::RefPtr<const KestoGDI::CFill> fill;
        double pixelsPerUnit;
        std::optional<KestoRaster::Paint> paint;
    };
    const std::optional<KestoRaster::Paint>& PaintOf(const KestoGDI::CFill& fill, double pixelsPerUnit);

    std::vector<Cached> m_cache;
    QImage m_colours;
    QImage m_shown;
    std::vector<std::uint8_t> m_coverage;
    std::vector<std::uint8_t> m_levels;
};

} // namespace KestoDraw
