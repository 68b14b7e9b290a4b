#include "support/TestToolSite.h"

#include "geometry/CoordinateRange.h"
#include "geometry/KCAngle.h"
#include "geometry/Rounding.h"

#include <cmath>

namespace KestoTest {

using Kesto2D::RoundHalfAwayFromZero;

void TestToolSite::ClientToPaper(Platform::SIZE* size)
{
    size->cx = RoundHalfAwayFromZero(size->cx * pixelToPaper);
    size->cy = RoundHalfAwayFromZero(size->cy * pixelToPaper);
}

CRect TestToolSite::GetTransformedObjectBBox()
{
    CRect r(objectToSpread.ApplyTo(objectBox.TopLeft()), objectToSpread.ApplyTo(objectBox.BottomRight()));
    r.NormalizeRect();
    return r;
}

void TestToolSite::ConstrainAngle(CPoint origin, CPoint& point, bool)
{
    if (angleStep <= 0)
        return;
    // Wide: a host's points may lie at opposite ends of the coordinate range.
    const double dx = static_cast<double>(point.x) - origin.x;
    const double dy = static_cast<double>(point.y) - origin.y;
    const int angle = Kesto2D::KCAngle::DirectionOf(dx, dy);
    const int snapped = RoundHalfAwayFromZero(static_cast<double>(angle) / angleStep) * angleStep;
    double s = 0, c = 1;
    Kesto2D::KCAngle(snapped).SinCos(s, c);
    const double d = std::hypot(dx, dy);
    point = Kesto2D::SaturatePoint(origin.x + std::llround(d * c), origin.y - std::llround(d * s));
}

void TestToolSite::Snap(const CPoint& in, CPoint& out)
{
    if (grid <= 0) {
        out = in;
        return;
    }
    const auto toGrid = [this](int v) { return static_cast<long long>(RoundHalfAwayFromZero(static_cast<double>(v) / grid)) * grid; };
    out = Kesto2D::SaturatePoint(toGrid(in.x), toGrid(in.y));
}

void TestToolSite::AddContextItem(int hostCommand)
{
    contextItems.push_back(hostCommand);
    if (bars && tool) {
        bars->CreateControl(
            hostCommand, true, [this](Platform::XTP_COMMANDBARS_CREATECONTROL* cc) { return tool->OnCreateControl(cc); },
            [this](Platform::XTP_COMMANDBARS_CREATECONTROL* cc) { tool->OnAfterCreateControl(cc); });
    }
}

void TestToolSite::Drag(KestoTool::FillTool& dragged, CPoint from, std::initializer_list<CPoint> moves, unsigned flags)
{
    inDrag = true;
    CPoint p = from;
    dragged.OnDragStart(p, flags);
    for (CPoint move : moves) {
        p = move;
        dragged.OnDragChange(p, flags);
    }
    dragged.OnDragEnd(p, flags);
    inDrag = false;
    Commit c;
    c.fill = dragged.GetFill()->Clone();
    c.transparency = dragged.IsTransparency();
    c.gesture = true;
    commits.push_back(std::move(c));
}

void TestToolSite::Record(const CFill* fill, const wchar_t* undoName, bool transparency, bool flag)
{
    Commit c;
    c.fill = fill ? fill->Clone() : nullptr;
    c.hasName = undoName != nullptr;
    c.name = undoName ? undoName : L"";
    c.transparency = transparency;
    c.flag = flag;
    commits.push_back(std::move(c));
    if (tool)
        tool->SetFill(fill);
}

} // namespace KestoTest
