#include "kestotool/filltool/FillToolBitmap.h"

#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/geometry/CoordinateRange.h"

namespace KestoTool {

KESTO_IMPLEMENT_DYNAMIC(FillToolBitmap, FillToolGradient)

namespace {

// The numbers this file reports its broken preconditions with.
constexpr int kReportDrawWithoutFill = 99;

// The tile's handles place it; they show no colour of their own.
constexpr unsigned long kHandleColour = 0xFFFFFF;

} // namespace

int FillToolBitmap::GradientIndex(int handle) const
{
    return IsExtendedNode() ? GetNumGradientNodes() - 1 : handle;
}

void FillToolBitmap::OnDragChange(CPoint& point, unsigned int flags)
{
    if (!CheckDragStarted())
        return;
    const bool ctrl = (flags & DragFlagCtrl) != 0;
    const bool creating = IsCreate();
    const int n = GetNumGradientNodes();
    const Points& s = PointsAtPress();
    CPoint anchor = DragOrigin(flags);
    // Shift alone on P1 is ignored: P1 then moves freely and snaps.
    const bool shift = (flags & DragFlagShift) != 0 && (GetCurrentNode() != n - 1 || ctrl);
    if (shift) {
        const int node = GetCurrentNode();
        if (creating) {
            anchor = s.p0;
            SetCurrentNode(n - 1);
        } else if (node == 0) {
            anchor = s.p0;
        } else if (node == n - 1) {
            anchor = s.p1;
        } else if (node == n) {
            anchor = s.p2;
        }
        ConstrainAnglePolar(s.p0, point);
    }
    const int node = GetCurrentNode();
    // With Ctrl on an arm's end the other arm follows it, keeping the ratio of the arms and the
    // angle between them: the flag of the arm that is not dragged is set. A new fill sets neither,
    // so its third point stays on the side of the first move.
    const CPoint perpendicular =
        CalculatePerpendicular(s.p0, s.p1, s.p2, anchor, point, !creating && node == n, !creating && node == n - 1);
    if (creating) {
        SetPoints(DrawnFigure(anchor, point, perpendicular, shift));
        return;
    }
    Points moved;
    if (node == 0) {
        moved = MovedFigure(s, anchor, point, shift);
    } else if (node == n - 1 || node == n) {
        moved = FigureWithArmDragged(s, node == n - 1, anchor, point, perpendicular, shift, ctrl);
    } else {
        SlideInnerStop(node, n - 1, point);
        return;
    }
    SetPoints(moved);
}

void FillToolBitmap::BuildHandleScene(HandleScene& scene) const
{
    Points p;
    if (!GetPoints(nullptr, p)) {
        ReportNoFill(kReportDrawWithoutFill);
        return;
    }
    scene.AddPolyline(CornerParallelogram(p.p0, p.p1, p.p2), false);
    scene.AddLine(p.p0, p.p1, true);
    scene.AddLine(p.p0, p.p2, true);
    K2DArrayPoint handles;
    BaseGetHandles(&handles);
    for (int i = 0; i < handles.GetSize(); ++i)
        scene.AddHandle(handles.GetAt(i), kHandleColour, i);
}

void FillToolBitmap::BaseGetHandles(K2DArrayPoint* handles) const
{
    Points p;
    if (!GetPoints(nullptr, p))
        return;
    // A bitmap that is not recoloured has no stops; its axis handles are there all the same.
    if (GetGradientNodes().GetSize() >= 2) {
        AddGradientHandles(handles, p.p0, p.p1);
    } else {
        handles->Add(p.p0);
        handles->Add(p.p1);
    }
    handles->Add(p.p2);
}

} // namespace KestoTool
