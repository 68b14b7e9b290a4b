#include "kestotool/qt/QtRenderTarget.h"

#include "kestotool/qt/QtConvert.h"

#include <QImage>
#include <QPainter>
#include <QPainterPathStroker>
#include <QPolygonF>

#include <cmath>
#include <vector>

namespace KestoToolQt {

namespace {

QPointF ToQPointF(const KestoPlatform::CPoint& p)
{
    return {static_cast<double>(p.x), static_cast<double>(p.y)};
}

// A handle's disc, drawn once into an image and then copied wherever the handle is: Qt takes
// nearly 30 microseconds to anti-alias one on a 4K canvas, and a tool draws dozens a frame.
struct DiscSprite {
    int radius;
    KestoGDI::RenderBrush fill;
    std::optional<KestoGDI::RenderPen> outline;
    qreal ratio;
    QImage image;
    int offset; // from the image's corner to the disc's centre, in pixels
};

const DiscSprite& SpriteOf(int radius, const KestoGDI::RenderBrush& fill,
                           const std::optional<KestoGDI::RenderPen>& outline, qreal ratio)
{
    // Handles come in a few looks; the cache stays small and is the painting thread's own.
    constexpr std::size_t kSprites = 32;
    thread_local std::vector<DiscSprite> sprites;
    for (const DiscSprite& s : sprites)
        if (s.radius == radius && s.fill == fill && s.outline == outline && s.ratio == ratio)
            return s;
    if (sprites.size() == kSprites)
        sprites.erase(sprites.begin());
    const int offset = radius + static_cast<int>(std::ceil(outline ? outline->width / 2 : 0)) + 2;
    const int side = static_cast<int>(std::ceil(2 * offset * ratio));
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(outline ? ToQPen(*outline) : QPen(Qt::NoPen));
    painter.setBrush(ToQColor(fill));
    painter.drawEllipse(QPointF(offset, offset), radius, radius);
    painter.end();
    return sprites.emplace_back(DiscSprite{radius, fill, outline, ratio, std::move(image), offset});
}

} // namespace

QtRenderTarget::QtRenderTarget(QPainter& painter, double pixelScale)
    : m_painter(painter), m_scale(pixelScale),
      m_highDensity(painter.device() && painter.device()->devicePixelRatio() >= 2)
{
    m_painter.setRenderHint(QPainter::Antialiasing);
}

void QtRenderTarget::Stroke(const QPainterPath& path, const KestoGDI::RenderPen& pen)
{
    // A line of a pixel Qt draws fast and well; a wider one (a halo) it splits over its thread
    // pool in pieces whose hand-offs cost more than the drawing. Where lines are anti-aliased,
    // the renderer finds its coverage instead and Qt only copies the pixels.
    if (m_highDensity || pen.width <= 1 || !m_painter.device()) {
        m_painter.setPen(ToQPen(pen));
        // Qt anti-aliases any stroke wider than a device pixel slowly (2.4 ms for the outline of
        // a four-colour fill on a 4K canvas); where a pixel is two device pixels or more, the
        // steps of an aliased edge are too small to see.
        m_painter.setRenderHint(QPainter::Antialiasing, !m_highDensity);
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawPath(path);
        return;
    }
    QPainterPathStroker stroker(ToQPen(pen));
    // In the device's pixels from its corner (a widget's device transform would add where the
    // widget lies in its window).
    const qreal ratio = m_painter.device()->devicePixelRatio();
    const QPainterPath outline =
        (m_painter.worldTransform() * QTransform::fromScale(ratio, ratio)).map(stroker.createStroke(path));
    const QRect area = outline.boundingRect().toAlignedRect().adjusted(-1, -1, 1, 1) &
                       QRect(0, 0, static_cast<int>(m_painter.device()->width() * ratio),
                             static_cast<int>(m_painter.device()->height() * ratio));
    if (area.isEmpty())
        return;
    const int w = area.width(), h = area.height();
    std::vector<std::uint8_t> coverage(static_cast<std::size_t>(w) * h);
    KestoRaster::RenderCoverage(ToRasterPath(outline),
                                {1, 0, 0, 1, -static_cast<double>(area.x()), -static_cast<double>(area.y())},
                                {coverage.data(), w, h, w, KestoRaster::Output::Mask8}, {0, 0, w, h});
    const QColor colour = ToQColor(pen.colour, pen.alpha);
    const QRgb premultiplied = qPremultiply(colour.rgba());
    QImage stroke(w, h, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < h; ++y) {
        auto* row = reinterpret_cast<QRgb*>(stroke.scanLine(y));
        const std::uint8_t* cover = &coverage[static_cast<std::size_t>(y) * w];
        for (int x = 0; x < w; ++x) {
            const unsigned c = cover[x];
            row[x] = qRgba((qRed(premultiplied) * c + 127) / 255, (qGreen(premultiplied) * c + 127) / 255,
                           (qBlue(premultiplied) * c + 127) / 255, (qAlpha(premultiplied) * c + 127) / 255);
        }
    }
    m_painter.save();
    m_painter.setWorldTransform(QTransform::fromScale(1 / ratio, 1 / ratio));
    m_painter.drawImage(area.topLeft(), stroke);
    m_painter.restore();
}

void QtRenderTarget::DrawDisc(const KestoPlatform::CPoint& centre, int radius, const KestoGDI::RenderBrush& fill,
                              const std::optional<KestoGDI::RenderPen>& outline)
{
    // A sprite gives the same pixels where the painter only moves whole pixels (as on a canvas).
    const QTransform& world = m_painter.worldTransform();
    if (world.type() <= QTransform::TxTranslate && world.dx() == std::round(world.dx()) &&
        world.dy() == std::round(world.dy()) && m_painter.device()) {
        const DiscSprite& sprite = SpriteOf(radius, fill, outline, m_painter.device()->devicePixelRatio());
        m_painter.drawImage(QPointF(centre.x - sprite.offset, centre.y - sprite.offset), sprite.image);
        return;
    }
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setPen(outline ? ToQPen(*outline) : QPen(Qt::NoPen));
    m_painter.setBrush(ToQColor(fill));
    m_painter.drawEllipse(ToQPointF(centre), radius, radius);
}

void QtRenderTarget::DrawCircle(const KestoPlatform::CPoint& centre, int radius, const KestoGDI::RenderPen& pen)
{
    QPainterPath circle;
    circle.addEllipse(ToQPointF(centre), radius, radius);
    Stroke(circle, pen);
}

void QtRenderTarget::DrawLine(const KestoPlatform::CPoint& a, const KestoPlatform::CPoint& b,
                              const KestoGDI::RenderPen& pen)
{
    QPainterPath line(ToQPointF(a));
    line.lineTo(ToQPointF(b));
    Stroke(line, pen);
}

void QtRenderTarget::DrawPolyline(const Kesto2D::K2DArrayPoint& points, const KestoGDI::RenderPen& pen)
{
    QPainterPath line;
    line.addPolygon(ToQPolygon(points));
    Stroke(line, pen);
}

void QtRenderTarget::DrawCurve(const Kesto2D::K2DCurve& curve, const KestoGDI::RenderPen& pen)
{
    QPainterPath lines;
    for (const QPolygonF& line : ToQPolygons(curve, ScalePixels(0.25)))
        lines.addPolygon(line);
    Stroke(lines, pen);
}

} // namespace KestoToolQt
