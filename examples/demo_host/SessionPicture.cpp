#include "SessionPicture.h"

#include "PixelRenderTarget.h"

#include <kestotool/gdi/FillPaint.h>
#include <kestotool/gdi/PngFile.h>

#include <vector>

bool WriteSessionPicture(const std::string& path, const KestoPlatform::CRect& r, const KestoGDI::CFill& fill,
                         const KestoTool::FillTool& tool, int margin, double unitsPerPixel)
{
    const double scale = 1 / unitsPerPixel;
    const int objectWidth = static_cast<int>(r.Width() * scale);
    const int objectHeight = static_cast<int>(r.Height() * scale);
    const int width = objectWidth + 2 * margin;
    const int height = objectHeight + 2 * margin;
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * height, 0xFFFFFFFF);
    const KestoRaster::Clip object{margin, margin, margin + objectWidth, margin + objectHeight};
    for (int y = object.y0; y < object.y1; ++y)
        for (int x = object.x0; x < object.x1; ++x)
            pixels[static_cast<std::size_t>(y) * width + x] = ((x / 10 + y / 10) % 2) ? 0xFFD0D0D0 : 0xFFFFFFFF;
    const KestoRaster::Target canvas{pixels.data(), width, height, width * 4, KestoRaster::Output::Argb32};
    const KestoRaster::Affine place{scale, 0, 0, scale, margin - r.left * scale, margin - r.top * scale};
    KestoGDI::FillPaint::PaintOver(fill, place, scale, canvas, object);
    PixelRenderTarget target(pixels.data(), width, height);
    Kesto2D::K2DLtGeneral view;
    view += Kesto2D::K2DLtTranslate(-r.left, -r.top);
    view += Kesto2D::K2DLtScale(scale, scale);
    view += Kesto2D::K2DLtTranslate(margin, margin);
    tool.Draw(&target, false, view);
    return KestoGDI::PngFile::WritePremultiplied(path, pixels.data(), width, height, width * 4);
}
