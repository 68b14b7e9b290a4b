#include "DemoHost.h"

#include "geometry/CoordinateRange.h"
#include "geometry/KCAngle.h"
#include "geometry/Rounding.h"

#include <cmath>

using Kesto2D::RoundHalfAwayFromZero;

void DemoHost::Drag(Platform::CPoint from, Platform::CPoint to, unsigned flags)
{
    inDrag = true;
    tool->OnDragStart(from, flags);
    tool->OnDragChange(to, flags);
    tool->OnDragEnd(to, flags);
    inDrag = false;
    create = false;
    UpdateFill(tool->GetFill(), L"Move Fill Handle");
}

void DemoHost::Click(Platform::CPoint at)
{
    tool->OnDragStart(at, 0);
    tool->OnDragEnd(at, 0);
}

void DemoHost::ConstrainAngle(Platform::CPoint origin, Platform::CPoint& point, bool)
{
    constexpr int step = 1500;
    // Wide: points may lie at opposite ends of the coordinate range.
    const double dx = static_cast<double>(point.x) - origin.x;
    const double dy = static_cast<double>(point.y) - origin.y;
    const int angle = RoundHalfAwayFromZero(Kesto2D::KCAngle::DirectionOf(dx, dy) / static_cast<double>(step)) * step;
    double s = 0, c = 1;
    Kesto2D::KCAngle(angle).SinCos(s, c);
    const double d = std::hypot(dx, dy);
    point = Kesto2D::SaturatePoint(origin.x + std::llround(d * c), origin.y - std::llround(d * s));
}

void DemoHost::Snap(const Platform::CPoint& in, Platform::CPoint& out)
{
    out = Kesto2D::SaturatePoint(RoundHalfAwayFromZero(in.x / 10.0) * 10LL, RoundHalfAwayFromZero(in.y / 10.0) * 10LL);
}

void DemoHost::UpdateFill(const KestoGDI::CFill* committed, const wchar_t* undoName)
{
    fill = committed->Clone();
    ++commits;
    lastUndoName = undoName ? undoName : L"Edit Fill";
    if (tool && tool->GetFill() != committed)
        tool->SetFill(committed);
}
