#include "DemoHost.h"

#include <kestotool/tool/SiteGeometry.h>


void DemoHost::Drag(KestoPlatform::CPoint from, KestoPlatform::CPoint to, unsigned flags)
{
    inDrag = true;
    tool->OnDragStart(from, flags);
    tool->OnDragChange(to, flags);
    tool->OnDragEnd(to, flags);
    inDrag = false;
    create = false;
    UpdateFill(tool->GetFill(), L"Move Fill Handle");
}

void DemoHost::Click(KestoPlatform::CPoint at)
{
    tool->OnDragStart(at, 0);
    tool->OnDragEnd(at, 0);
}

void DemoHost::ConstrainAngle(KestoPlatform::CPoint origin, KestoPlatform::CPoint& point, bool)
{
    point = KestoTool::SiteGeometry::ConstrainToAngleStep(origin, point, 1500);
}

void DemoHost::Snap(const KestoPlatform::CPoint& in, KestoPlatform::CPoint& out)
{
    out = KestoTool::SiteGeometry::SnapToGrid(in, 10);
}

void DemoHost::UpdateFill(const KestoGDI::CFill* committed, const wchar_t* undoName)
{
    fill = committed->Clone();
    ++commits;
    lastUndoName = undoName ? undoName : L"Edit Fill";
    if (tool && tool->GetFill() != committed)
        tool->SetFill(committed);
}
