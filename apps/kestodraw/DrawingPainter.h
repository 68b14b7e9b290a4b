#pragma once

#include "Document.h"

#include <kestotool/raster/Paint.h>

#include <QTransform>

#include <optional>
#include <vector>

class QPainter;

namespace KestoDraw {

// A fill shown in place of one shape's fill or transparency (a drag under way).
struct LiveFill {
    int shape = -1;
    bool transparency = false;
    const KestoGDI::CFill* fill = nullptr;
};

// Paints a drawing's shapes: each one's fill, times its transparency's mask, rendered for the
// shape's box on the device and clipped to its anti-aliased outline by QPainter, then a hairline
// outline. Paints are kept from one frame to the next while their fills are shown at the same
// scale, so a repaint that only moves the view or one shape prepares nothing new.
class DrawingPainter {
public:
    // view maps document units to the painter's device pixels (a scale and a translation).
    void Paint(QPainter& painter, const Document& document, const QTransform& view, const QRect& deviceClip,
               const LiveFill& live = {});

private:
    struct Cached {
        KestoKernel::RefPtr<const KestoGDI::CFill> fill;
        double pixelsPerUnit;
        std::optional<KestoRaster::Paint> paint;
        bool used;
    };
    const std::optional<KestoRaster::Paint>& PaintOf(const KestoGDI::CFill& fill, double pixelsPerUnit);
    void PaintShape(QPainter& painter, const Shape& shape, const QTransform& view, const QRect& deviceClip,
                    const KestoGDI::CFill& fill, const KestoGDI::CFill* transparency);

    std::vector<Cached> m_cache;
};

} // namespace KestoDraw
