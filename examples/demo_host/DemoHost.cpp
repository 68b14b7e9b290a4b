#include "DemoHost.h"

#include <kestotool/tool/SiteGeometry.h>


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
    point = KestoTool::SiteGeometry::ConstrainToAngleStep(origin, point, 1500);
}

void DemoHost::Snap(const Platform::CPoint& in, Platform::CPoint& out)
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
