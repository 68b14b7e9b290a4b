#include "Document.h"

#include <kestotool/geometry/CoordinateRange.h>
#include <kestotool/geometry/K2DLtGeneral.h>

#include <QCoreApplication>

namespace KestoDraw {

QPainterPath Shape::Outline() const
{
    QPainterPath path;
    const QRectF r(box.left, box.top, box.Width(), box.Height());
    switch (kind) {
    case Kind::Rectangle: path.addRect(r); break;
    case Kind::Ellipse: path.addEllipse(r); break;
    case Kind::Path:
        for (std::size_t i = 0; i < points.size(); ++i) {
            const QPointF p(points[i].x, points[i].y);
            if (i == 0)
                path.moveTo(p);
            else
                path.lineTo(p);
        }
        path.closeSubpath();
        break;
    case Kind::Curves: {
        const std::vector<KestoRaster::Point>& p = curves.Points();
        std::size_t at = 0;
        for (const KestoRaster::Path::Verb verb : curves.Verbs()) {
            switch (verb) {
            case KestoRaster::Path::Verb::Move: path.moveTo(p[at].x, p[at].y), at += 1; break;
            case KestoRaster::Path::Verb::Line: path.lineTo(p[at].x, p[at].y), at += 1; break;
            case KestoRaster::Path::Verb::Cubic:
                path.cubicTo(p[at].x, p[at].y, p[at + 1].x, p[at + 1].y, p[at + 2].x, p[at + 2].y);
                at += 3;
                break;
            case KestoRaster::Path::Verb::Close: path.closeSubpath(); break;
            }
        }
        break;
    }
    }
    return path;
}

QString Shape::Description() const
{
    switch (kind) {
    case Kind::Rectangle: return QCoreApplication::translate("KestoDraw::Shape", "Rectangle: ");
    case Kind::Ellipse: return QCoreApplication::translate("KestoDraw::Shape", "Ellipse: ");
    case Kind::Path:
    case Kind::Curves: return QCoreApplication::translate("KestoDraw::Shape", "Path: ");
    }
    return {};
}

void Shape::Offset(int dx, int dy)
{
    const auto move = [dx, dy](const KestoPlatform::CPoint& p) { return Kesto2D::OffsetPoint(p, dx, dy); };
    const KestoPlatform::CRect before = box;
    box = KestoPlatform::CRect(move(box.TopLeft()), move(box.BottomRight()));
    for (KestoPlatform::CPoint& p : points)
        p = move(p);
    // The curves move as far as the box did (which stops at the coordinate range).
    if (!curves.IsEmpty())
        curves = curves.Mapped({1, 0, 0, 1, double(box.left - before.left), double(box.top - before.top)});
    const Kesto2D::K2DLtGeneral shift(Kesto2D::K2DLtTranslate(dx, dy));
    for (KestoKernel::RefPtr<const KestoGDI::CFill>* f : {&fill, &transparency}) {
        if (!*f)
            continue;
        KestoKernel::RefPtr<KestoGDI::CFill> moved = (*f)->Clone();
        moved->Transform(shift);
        *f = std::move(moved);
    }
}

int Document::ShapeAt(const KestoPlatform::CPoint& point) const
{
    for (int i = static_cast<int>(shapes.size()) - 1; i >= 0; --i) {
        if (shapes[i].Outline().contains(QPointF(point.x, point.y)))
            return i;
    }
    return -1;
}

} // namespace KestoDraw
