#include "kestotool/qt/QtFillPreview.h"

#include "kestotool/gdi/FillPaint.h"
#include "kestotool/qt/QtRenderTarget.h"
#include "kestotool/ui/FillControl.h"

#include <QImage>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace KestoToolQt {

namespace {

constexpr int kCheckSize = 8;

KestoRaster::Affine ToAffine(const Kesto2D::K2DLtGeneral& t)
{
    const Kesto2D::K2DVector move = t.GetTranslation();
    return {t.GetM11(), t.GetM12(), t.GetM21(), t.GetM22(), move.dx, move.dy};
}

unsigned KeysOf(const QMouseEvent& event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers();
    return (modifiers & Qt::ShiftModifier ? KestoPlatform::MK_SHIFT : 0u) |
           (modifiers & Qt::ControlModifier ? KestoPlatform::MK_CONTROL : 0u) |
           (event.buttons() & Qt::LeftButton ? KestoPlatform::MK_LBUTTON : 0u);
}

} // namespace

QtFillPreview::QtFillPreview(QWidget* parent, KestoPlatform::CWnd& window) : QWidget(parent), m_window(&window)
{
    setFocusPolicy(Qt::NoFocus);
}

double QtFillPreview::Scale() const
{
    const int units = m_window->GetWindowRect().Width();
    return units > 0 ? static_cast<double>(width()) / units : 1.0;
}

KestoPlatform::CPoint QtFillPreview::ClientPoint(const QMouseEvent& event) const
{
    const QPointF p = event.position() / Scale();
    return {static_cast<int>(std::lround(p.x())), static_cast<int>(std::lround(p.y()))};
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
    if (!preview)
        return image;
    const KestoPlatform::CRect bounds = preview->GetBounds();
    if (bounds.Width() <= 0 || bounds.Height() <= 0)
        return image;
    const KestoRaster::Target canvas{image.bits(), image.width(), image.height(), image.bytesPerLine(),
                                     KestoRaster::Output::Argb32};
    const auto* control = dynamic_cast<const KestoUI::FillControl*>(preview);
    if (!control) {
        const double sx = static_cast<double>(image.width()) / bounds.Width();
        const double sy = static_cast<double>(image.height()) / bounds.Height();
        if (preview->GetFill())
            KestoGDI::FillPaint::PaintOver(*preview->GetFill(), {sx, 0, 0, sy, -bounds.left * sx, -bounds.top * sy},
                                           std::min(sx, sy), canvas, {0, 0, image.width(), image.height()});
        return image;
    }
    const double k = Scale();
    const Kesto2D::K2DLtGeneral view = control->GetViewTransform().Then(Kesto2D::K2DLtGeneral(k, 0, 0, k, 0, 0));
    if (control->GetFill())
        KestoGDI::FillPaint::PaintOver(*control->GetFill(), ToAffine(view),
                                       std::min(std::abs(view.GetM11()), std::abs(view.GetM22())), canvas,
                                       {0, 0, image.width(), image.height()});
    QPainter painter(&image);
    QtRenderTarget target(painter);
    control->DrawOverlay(target, view);
    return image;
}

void QtFillPreview::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawImage(0, 0, Picture());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void QtFillPreview::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_window->OnLButtonDown(KeysOf(*event), ClientPoint(*event));
}

void QtFillPreview::mouseMoveEvent(QMouseEvent* event)
{
    m_window->OnMouseMove(KeysOf(*event), ClientPoint(*event));
}

void QtFillPreview::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_window->OnLButtonUp(KeysOf(*event), ClientPoint(*event));
}

} // namespace KestoToolQt
