#include "DrawingPainter.h"

#include <kestotool/gdi/FillPaint.h>
#include <kestotool/qt/QtConvert.h>
#include <kestotool/raster/Bands.h>
#include <kestotool/raster/Composite.h>
#include <kestotool/raster/Path.h>
#include <kestotool/raster/PreparedPaint.h>

#include <QImage>
#include <QPainter>
#include <QRegion>

#include <algorithm>
#include <cmath>

namespace KestoDraw {

using namespace KestoRaster;

namespace {

// The top left w x h of a buffer as a colour target, the buffer grown to hold it.
Target Scratch(QImage& buffer, int w, int h)
{
    if (buffer.width() < w || buffer.height() < h)
        buffer = QImage(std::max(w, buffer.width()), std::max(h, buffer.height()), QImage::Format_ARGB32_Premultiplied);
    return {buffer.bits(), w, h, buffer.bytesPerLine(), Output::Argb32};
}

void Fill(const Target& target, std::uint32_t argb)
{
    for (int y = 0; y < target.height; ++y) {
        auto* row = reinterpret_cast<std::uint32_t*>(static_cast<unsigned char*>(target.pixels) + y * target.stride);
        std::fill(row, row + target.width, argb);
    }
}

} // namespace

namespace {

// How much of what lies beneath still shows through the translucent shapes above, on a coarse
// grid of the device (at most 64 x 64 cells): where less than half a level would show, what
// lies beneath is not painted. Only cells wholly inside a shape's uniform part count.
class Veil {
public:
    explicit Veil(const QRect& area)
        : m_area(area), m_cell(std::max(16, (std::max(area.width(), area.height()) + 63) / 64)),
          m_columns((area.width() + m_cell - 1) / m_cell), m_rows((area.height() + m_cell - 1) / m_cell),
          m_through(static_cast<std::size_t>(std::max(0, m_columns * m_rows)), 1.0)
    {
    }

    // What lies inside shows through by the share through (0: not at all).
    void Cover(const QRect& inside, double through)
    {
        const QRect r = inside.translated(-m_area.topLeft());
        const int x0 = (r.left() + m_cell - 1) / m_cell, x1 = (r.right() + 1) / m_cell;
        const int y0 = (r.top() + m_cell - 1) / m_cell, y1 = (r.bottom() + 1) / m_cell;
        for (int y = std::max(0, y0); y < std::min(m_rows, y1); ++y)
            for (int x = std::max(0, x0); x < std::min(m_columns, x1); ++x)
                m_through[static_cast<std::size_t>(y) * m_columns + x] *= through;
        m_changed = true;
    }

    // Where less than half a level would show of anything beneath.
    const QRegion& Veiled()
    {
        if (!m_changed)
            return m_veiled;
        m_changed = false;
        constexpr double kUnseen = 0.5 / 255;
        m_veiled = QRegion();
        for (int y = 0; y < m_rows; ++y) {
            const double* row = &m_through[static_cast<std::size_t>(y) * m_columns];
            for (int x = 0; x < m_columns;) {
                if (row[x] >= kUnseen) {
                    ++x;
                    continue;
                }
                const int from = x;
                while (x < m_columns && row[x] < kUnseen)
                    ++x;
                m_veiled += QRect(m_area.left() + from * m_cell, m_area.top() + y * m_cell, (x - from) * m_cell, m_cell);
            }
        }
        m_veiled &= m_area;
        return m_veiled;
    }

private:
    QRect m_area;
    int m_cell;
    int m_columns, m_rows;
    std::vector<double> m_through;
    QRegion m_veiled;
    bool m_changed = false;
};

} // namespace

bool DrawingPainter::Paint(QPainter& painter, const Document& document, const QTransform& view, const QRect& deviceClip,
                           std::size_t first, std::size_t last, const Going& going)
{
    // From the top down, what opaque shapes already hide is not painted, nor what enough
    // translucent ones veil: a drawing of many shapes stacked over each other costs what shows,
    // not what lies beneath.
    last = std::min(last, document.shapes.size());
    QRegion hidden;
    Veil veil(deviceClip);
    std::vector<std::pair<std::size_t, QRegion>> shown; // a shape and what of it shows
    double work = 0;                                    // device pixels to paint
    for (std::size_t i = last; i-- > first;) {
        const Shape& shape = document.shapes[i];
        const QRect bounds =
            view.mapRect(shape.Outline().boundingRect()).toAlignedRect().adjusted(-1, -1, 1, 1) & deviceClip;
        const QRegion visible = QRegion(bounds) - hidden - veil.Veiled();
        if (visible.isEmpty())
            continue;
        shown.emplace_back(i, visible);
        work += static_cast<double>(visible.boundingRect().width()) * visible.boundingRect().height();
        const auto [inside, through] = UniformInside(shape, view);
        if (inside.isEmpty())
            continue;
        if (through == 0)
            hidden += inside;
        else
            veil.Cover(inside, through);
    }
    double done = 0;
    for (auto it = shown.rbegin(); it != shown.rend(); ++it) {
        const Shape& shape = document.shapes[it->first];
        if (going && !going(done / work))
            return false;
        done += static_cast<double>(it->second.boundingRect().width()) * it->second.boundingRect().height();
        // Piece by piece where little shows (the rim of a shape under another), whole where
        // what shows is in many pieces.
        constexpr int kPieces = 16;
        if (it->second.rectCount() > kPieces) {
            PaintShape(painter, shape, view, it->second.boundingRect(), *shape.fill, shape.transparency.get());
            continue;
        }
        for (const QRect& piece : it->second)
            PaintShape(painter, shape, view, piece, *shape.fill, shape.transparency.get());
    }
    return true;
}

QImage DrawingPainter::PaintPage(const Document& document, double pixelsPerUnit, const Going& going)
{
    QImage image(std::max(1, static_cast<int>(std::lround(document.width * pixelsPerUnit))),
                 std::max(1, static_cast<int>(std::lround(document.height * pixelsPerUnit))),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    if (!Paint(painter, document, QTransform::fromScale(pixelsPerUnit, pixelsPerUnit), image.rect(), 0, SIZE_MAX,
               going))
        return {};
    return image;
}

std::pair<QRect, double> DrawingPainter::UniformInside(const Shape& shape, const QTransform& view)
{
    // Only a rectangle's and an ellipse's insides are known from their box.
    if (shape.transparency || (shape.kind != Shape::Kind::Rectangle && shape.kind != Shape::Kind::Ellipse))
        return {};
    const std::optional<KestoRaster::Paint>& paint = CachedOf(*shape.fill, view.m11()).paint;
    if (!paint || paint->transparency || paint->kind == Paint::Kind::Bitmap)
        return {};
    int least = 255; // the least opacity of any colour the paint shows
    for (const Rgba& c : paint->colours)
        least = std::min<int>(least, c.a);
    for (const RampStop& s : paint->stops)
        least = std::min<int>(least, s.colour.a);
    if (least == 0)
        return {};
    // The whole pixels inside the box, or inside the largest upright box an ellipse holds.
    QRectF box = view.mapRect(QRectF(shape.box.left, shape.box.top, shape.box.Width(), shape.box.Height()));
    if (shape.kind == Shape::Kind::Ellipse) {
        const double inset = (1 - 1 / std::sqrt(2.0)) / 2;
        box.adjust(box.width() * inset, box.height() * inset, -box.width() * inset, -box.height() * inset);
    }
    const QPoint from(static_cast<int>(std::ceil(box.left())), static_cast<int>(std::ceil(box.top())));
    const QPoint to(static_cast<int>(std::floor(box.right())), static_cast<int>(std::floor(box.bottom())));
    if (to.x() <= from.x() || to.y() <= from.y())
        return {};
    return {QRect(from, to - QPoint(1, 1)), 1 - least / 255.0};
}

DrawingPainter::Cached& DrawingPainter::CachedOf(const KestoGDI::CFill& fill, double pixelsPerUnit)
{
    // A fill only the cache holds can never be asked for again (fills are found by address, and
    // nobody else has this one); a paint at another scale belongs to another zoom.
    std::erase_if(m_cache,
                  [&](const Cached& c) { return c.fill->GetRefCount() == 1 || c.pixelsPerUnit != pixelsPerUnit; });
    auto it = std::find_if(m_cache.begin(), m_cache.end(), [&](const Cached& c) { return c.fill.get() == &fill; });
    if (it != m_cache.end())
        return *it;
    return m_cache.emplace_back(Cached{KestoKernel::RefPtr<const KestoGDI::CFill>(&fill),
                                       pixelsPerUnit,
                                       KestoGDI::FillPaint::From(fill, pixelsPerUnit),
                                       {},
                                       {}});
}

std::optional<PreparedPaint> DrawingPainter::Prepare(const KestoGDI::CFill& fill, double pixelsPerUnit,
                                                     const Affine& toLayer, Output output)
{
    Cached& cached = CachedOf(fill, pixelsPerUnit);
    if (!cached.paint)
        return std::nullopt;
    // A preparation's colours (a ramp's table, a plasma's tile, a bitmap's texels) are built once:
    // each new one shares what is the same with the fill's last, or else with another fill's of
    // the kind (the document's fill, for the copies a drag makes), the same picture first.
    const auto last = [output](const Cached& c) { return output == Output::Mask8 ? c.mask : c.colour; };
    std::optional<PreparedPaint> previous = last(cached);
    for (auto other = m_cache.begin(); !previous.has_value() || previous->GetPaint().image != cached.paint->image;) {
        other = std::find_if(other, m_cache.end(), [&](const Cached& c) {
            return &c != &cached && c.paint && c.paint->kind == cached.paint->kind && last(c);
        });
        if (other == m_cache.end())
            break;
        previous = last(*other++);
    }
    PreparedPaint prepared(*cached.paint, toLayer, output, previous ? &*previous : nullptr);
    (output == Output::Mask8 ? cached.mask : cached.colour) = prepared;
    return prepared;
}

QRect DrawingPainter::Render(const Shape& shape, const QTransform& view, const QRect& deviceClip,
                             const KestoGDI::CFill& fill, const KestoGDI::CFill* transparency, QImage& into)
{
    const QRect area = view.map(shape.Outline()).boundingRect().toAlignedRect().adjusted(-1, -1, 1, 1) & deviceClip;
    if (area.isEmpty())
        return {};
    const int w = area.width();
    const int h = area.height();
    m_renderedPixels.fetch_add(static_cast<std::int64_t>(w) * h, std::memory_order_relaxed);
    const double scale = view.m11();
    // The shape's box of device pixels, with the document placed as the view places it.
    const Affine toLayer{scale, 0, 0, view.m22(), view.dx() - area.x(), view.dy() - area.y()};
    const Clip all{0, 0, w, h};

    // The buffers are kept from frame to frame: fresh ones of a large shape's size would cost
    // as much in page faults as the rendering itself.
    const auto colours = Scratch(m_colours, w, h);
    if (const std::optional<PreparedPaint> prepared = Prepare(fill, scale, toLayer, Output::Argb32))
        KestoRaster::RenderInBands(*prepared, colours, all);
    else
        Fill(colours, 0xFFC8C8C8); // a kind the renderer does not paint shows as plain grey

    // What of each pixel the outline covers, times the transparency's level there. The renderer
    // finds the coverage far faster than QPainter's anti-aliased fill of a large ellipse.
    m_coverage.resize(static_cast<std::size_t>(w) * h);
    const Target coverage{m_coverage.data(), w, h, w, Output::Mask8};
    RenderCoverage(KestoToolQt::ToRasterPath(shape.Outline()), toLayer, coverage, all);
    if (transparency) {
        if (const std::optional<PreparedPaint> mask = Prepare(*transparency, scale, toLayer, Output::Mask8)) {
            m_levels.resize(m_coverage.size());
            KestoRaster::RenderInBands(*mask, {m_levels.data(), w, h, w, Output::Mask8}, all);
            for (std::size_t i = 0; i < m_coverage.size(); ++i)
                m_coverage[i] = static_cast<std::uint8_t>((m_coverage[i] * m_levels[i] + 127) / 255);
        }
    }
    const auto shown = Scratch(into, w, h);
    Fill(shown, 0);
    CompositeOver(shown, colours, &coverage, all);
    return area;
}

namespace {

// The hairline around a shape, within area (a shape painted in pieces is outlined once).
void Outline(QPainter& painter, const Shape& shape, const QTransform& view, const QRect& area)
{
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(view.map(shape.Outline()), QPen(QColor(70, 70, 70), 1.0));
    painter.restore();
}

} // namespace

void DrawingPainter::PaintShape(QPainter& painter, const Shape& shape, const QTransform& view, const QRect& deviceClip,
                                const KestoGDI::CFill& fill, const KestoGDI::CFill* transparency)
{
    const QRect area = Render(shape, view, deviceClip, fill, transparency, m_shown);
    if (area.isEmpty())
        return;
    painter.drawImage(area.topLeft(), m_shown, QRect(QPoint(0, 0), area.size()));
    Outline(painter, shape, view, area);
}

std::pair<QImage, QRect> DrawingPainter::ShapePicture(const Shape& shape, const QTransform& view,
                                                      const QRect& deviceClip, const KestoGDI::CFill& fill,
                                                      const KestoGDI::CFill* transparency)
{
    // Pictures alternate between two buffers: the one shown before is still held by whoever
    // shows it, the one before that has been let go and is written again without a copy.
    QImage& picture = m_pictures[m_nextPicture];
    m_nextPicture ^= 1;
    const QRect area = Render(shape, view, deviceClip, fill, transparency, picture);
    if (area.isEmpty())
        return {};
    {
        QPainter painter(&picture);
        painter.setClipRect(QRect(QPoint(0, 0), area.size()));
        painter.translate(-area.topLeft());
        Outline(painter, shape, view, area);
    }
    return {picture, area};
}

} // namespace KestoDraw
