#include "support/TestToolSite.h"

#include "kestotool/geometry/Rounding.h"
#include "kestotool/tool/SiteGeometry.h"

namespace KestoTest {

using Kesto2D::RoundHalfAwayFromZero;

void TestToolSite::ClientToPaper(KestoPlatform::SIZE* size)
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

void TestToolSite::ConstrainAngle(CPoint origin, CPoint& point, bool flag)
{
    angleFlags.push_back(flag);
    point = KestoTool::SiteGeometry::ConstrainToAngleStep(origin, point, angleStep);
}

void TestToolSite::Snap(const CPoint& in, CPoint& out)
{
    out = KestoTool::SiteGeometry::SnapToGrid(in, grid);
}

void TestToolSite::AddContextItem(int hostCommand)
{
    contextItems.push_back(hostCommand);
    if (bars && tool) {
        bars->CreateControl(
            hostCommand, true,
            [this](KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) { return tool->OnCreateControl(cc); },
            [this](KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) { tool->OnAfterCreateControl(cc); });
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
