#include "kestotool/filltool/FillToolPlasma.h"

#include "kestotool/gdi/CFillFractal.h"
#include "kestotool/geometry/CoordinateRange.h"

namespace KestoTool {

KESTO_IMPLEMENT_DYNAMIC(FillToolPlasma, FillToolGradient)

namespace {

// The numbers this file reports its broken preconditions with.
constexpr int kReportDrawWithoutFill = 94;

// The colour the tile arm's handle is drawn in: it edits no stop.
constexpr unsigned long kArmHandleColour = 0xFFFFFF;

} // namespace

void FillToolPlasma::OnDragChange(CPoint& point, unsigned int flags)
{
    if (!CheckDragStarted())
        return;
    const bool shift = (flags & DragFlagShift) != 0;
    const bool ctrl = (flags & DragFlagCtrl) != 0;
    const bool creating = IsCreate();
    const int count = GetNodeCount();
    const int node = GetCurrentNode();
    const Points& s = PointsAtPress();
    CPoint anchor = DragOrigin(flags);
    if (shift) {
        if (!creating && node == 0)
            anchor = s.p0;
        else if (!creating && node == count - 1)
            anchor = s.p1;
        else if (!creating && node == count)
            anchor = s.p2;
        ConstrainAngle(anchor, point, false);
    }
    // With Ctrl on an arm's end the other arm follows it, keeping the ratio of the arms and the
    // angle between them: the flag of the arm that is not dragged is set. A new fill sets neither,
    // so its third point stays on the side of the first move.
    const CPoint perpendicular = CalculatePerpendicular(s.p0, s.p1, s.p2, anchor, point, !creating && node == count,
                                                        !creating && node == count - 1);
    if (creating) {
        SetCurrentNode(count - 1);
        SetPoints(DrawnFigure(anchor, point, perpendicular, shift));
        return;
    }
    Points moved = s;
    if (node == 0) {
        moved = MovedFigure(s, anchor, point, shift);
    } else if (node == count - 1) {
        moved = FigureWithArmDragged(s, true, anchor, point, perpendicular, shift, ctrl);
    } else if (node == count) {
        moved.p2 = Kesto2D::OffsetPoint(s.p2, anchor, point);
        if (!shift)
            Snap(moved.p2, moved.p2);
        // Unlike a P1 drag, P2 alone leaves the stop line where it is; Shift turns it along.
        if (ctrl)
            moved.p1 = Kesto2D::OffsetPoint(s.p1, anchor, perpendicular);
        else if (shift)
            moved.p1 = PreserveAngle(s.p0, s.p2, moved.p2, s.p1);
    } else {
        SlideInnerStop(node, count - 1, point);
        return;
    }
    SetPoints(moved);
}

void FillToolPlasma::BuildHandleScene(HandleScene& scene) const
{
    Points p;
    if (!GetPoints(nullptr, p)) {
        ReportNoFill(kReportDrawWithoutFill);
        return;
    }
    AddHandleOutline(scene);
    AddControlBoxes(scene);
    scene.AddHandle(p.p2, kArmHandleColour, GetNodeCount());
}

void FillToolPlasma::BaseGetHandles(K2DArrayPoint* handles) const
{
    Points p;
    if (!GetPoints(nullptr, p))
        return;
    AddGradientHandles(handles, p.p0, p.p1);
    handles->Add(p.p2);
}

} // namespace KestoTool
