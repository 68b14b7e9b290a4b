#include "kestotool/qt/QtFillPreview.h"

#include "kestotool/gdi/FillPaint.h"
#include "kestotool/ui/FillPreview.h"

#include <QImage>
#include <QPainter>

namespace KestoToolQt {

namespace {

constexpr int kCheckSize = 8;

} // namespace

QtFillPreview::QtFillPreview(QWidget* parent, const Platform::CWnd& window) : QWidget(parent), m_window(&window)
{
    setFocusPolicy(Qt::NoFocus);
}

QImage QtFillPreview::Picture() const
{
    QImage image(size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    {
        QPainter painter(&image);
        for (int y = 0; y < image.height(); y += kCheckSize)
            for (int x = 0; x < image.width(); x += kCheckSize)
                painter.fillRect(x, y, kCheckSize, kCheckSize,
                                 ((x + y) / kCheckSize) % 2 ? QColor(0xD0, 0xD0, 0xD0) : QColor(Qt::white));
    }
    const auto* preview = dynamic_cast<const KestoUI::FillPreview*>(m_window);
    if (!preview || !preview->GetFill())
        return image;
    const Platform::CRect bounds = preview->GetBounds();
    if (bounds.Width() <= 0 || bounds.Height() <= 0)
        return image;
    const double sx = static_cast<double>(image.width()) / bounds.Width();
    const double sy = static_cast<double>(image.height()) / bounds.Height();
    const KestoRaster::Affine place{sx, 0, 0, sy, -bounds.left * sx, -bounds.top * sy};
    const KestoRaster::Target canvas{image.bits(), image.width(), image.height(), image.bytesPerLine(),
                                     KestoRaster::Output::Argb32};
    KestoGDI::FillPaint::PaintOver(*preview->GetFill(), place, std::min(sx, sy), canvas,
                                   {0, 0, image.width(), image.height()});
    return image;
}

void QtFillPreview::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawImage(0, 0, Picture());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace KestoToolQt
