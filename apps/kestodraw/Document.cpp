#include "Document.h"

#include <kestotool/geometry/CoordinateRange.h>
#include <kestotool/geometry/K2DLtGeneral.h>

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
    }
    return path;
}

const wchar_t* Shape::Description() const
{
    switch (kind) {
    case Kind::Rectangle: return L"Rectangle: ";
    case Kind::Ellipse: return L"Ellipse: ";
    case Kind::Path: return L"Path: ";
    }
    return L"";
}

void Shape::Offset(int dx, int dy)
{
    const auto move = [dx, dy](const KestoPlatform::CPoint& p) { return Kesto2D::OffsetPoint(p, dx, dy); };
    box = KestoPlatform::CRect(move(box.TopLeft()), move(box.BottomRight()));
    for (KestoPlatform::CPoint& p : points)
        p = move(p);
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
