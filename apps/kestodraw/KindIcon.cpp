#include "KindIcon.h"

#include <kestotool/gdi/CFill.h>
#include <kestotool/gdi/CTransparency.h>
#include <kestotool/gdi/FillPaint.h>

#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <cmath>
#include <map>
#include <tuple>

namespace KestoDraw {

namespace {

KestoKernel::RefPtr<KestoGDI::CFill> Sample(int type, bool transparency, int side)
{
    const KestoPlatform::CRuntimeClass* kind = transparency ? KestoGDI::CTransparency::GetRuntimeClassFromType(type)
                                                            : KestoGDI::CFill::GetRuntimeClassFromType(type);
    KestoKernel::RefPtr<KestoGDI::CFill> fill = KestoGDI::CFill::CreateFromClass(kind);
    if (fill)
        fill->SetDefaultControls(KestoPlatform::CRect(0, 0, side, side));
    return fill;
}

} // namespace

bool Paintable(int type, bool transparency)
{
    const KestoKernel::RefPtr<KestoGDI::CFill> sample = Sample(type, transparency, 100);
    return sample && KestoGDI::FillPaint::From(*sample, 1).has_value();
}

QIcon KindIcon(int type, bool transparency, int side, qreal pixelRatio)
{
    // Images, not icons: a pixmap must not outlive the application, and this map does.
    static std::map<std::tuple<int, bool, int, qreal>, QImage> made;
    const auto key = std::make_tuple(type, transparency, side, pixelRatio);
    if (const auto it = made.find(key); it != made.end())
        return QIcon(QPixmap::fromImage(it->second));
    const int pixels = static_cast<int>(std::lround(side * pixelRatio));
    const KestoKernel::RefPtr<KestoGDI::CFill> sample = Sample(type, transparency, pixels);
    if (!sample)
        return {};
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    {
        QPainter painter(&image);
        const int cell = std::max(1, pixels / 4);
        for (int y = 0; y < pixels; y += cell)
            for (int x = 0; x < pixels; x += cell)
                painter.fillRect(x, y, cell, cell, (x / cell + y / cell) % 2 ? QColor(204, 204, 204) : Qt::white);
    }
    const KestoRaster::Target canvas{image.bits(), pixels, pixels, image.bytesPerLine(), KestoRaster::Output::Argb32};
    KestoGDI::FillPaint::PaintOver(*sample, {}, 1, canvas, {0, 0, pixels, pixels});
    {
        QPainter painter(&image);
        painter.setPen(QColor(110, 110, 110));
        painter.drawRect(0, 0, pixels - 1, pixels - 1);
    }
    image.setDevicePixelRatio(pixelRatio);
    return QIcon(QPixmap::fromImage(made[key] = image));
}

} // namespace KestoDraw
