// kestodraw's drawing files: read the input; a drawing it accepts is painted whole into a small
// image and its first shape zoomed to fill another, then written, read back and written again,
// which must give the same bytes. A damaged file must be refused with a FormatError, never
// crash, leak, hang or reach past the memory limit scripts/fuzz sets.
#include "DocumentFile.h"
#include "DrawingPainter.h"
#include "JsonRead.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace {

void PaintInto(const KestoDraw::Document& document, const QRectF& area, QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    const double scale = std::min(size.width() / std::max(1.0, area.width()), size.height() / std::max(1.0, area.height()));
    QTransform view = QTransform::fromScale(scale, scale);
    view.translate(-area.left(), -area.top());
    KestoDraw::DrawingPainter().Paint(painter, document, view, image.rect());
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    // Painting needs a GUI application for its pens; nothing is shown.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static std::unique_ptr<QGuiApplication> application = std::make_unique<QGuiApplication>(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    KestoDraw::Document document;
    try {
        document = KestoDraw::DocumentFile::Read(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    } catch (const KestoDraw::FormatError&) {
        return 0;
    }
    PaintInto(document, QRectF(0, 0, document.width, document.height), QSize(96, 72));
    if (!document.shapes.empty()) {
        const KestoPlatform::CRect& box = document.shapes.front().box;
        PaintInto(document, QRectF(box.left, box.top, box.Width(), box.Height()), QSize(64, 64));
    }

    const QByteArray saved = KestoDraw::DocumentFile::Write(document);
    try {
        if (KestoDraw::DocumentFile::Write(KestoDraw::DocumentFile::Read(saved)) != saved)
            std::abort(); // a saved drawing reads back as another
    } catch (const KestoDraw::FormatError&) {
        std::abort(); // a saved drawing is refused
    }
    return 0;
}
