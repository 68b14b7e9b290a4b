#include "kestotool/filltool/FillToolThreeColour.h"

#include "kestotool/gdi/CFillThreeColour.h"
#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/geometry/K2DGeometry.h"

namespace KestoTool {

KESTO_IMPLEMENT_DYNAMIC(FillToolThreeColour, FillToolGradient)

void FillToolThreeColour::OnDragChange(CPoint& point, unsigned int flags)
{
    if (!CheckDragStarted())
        return;
    const bool shift = (flags & DragFlagShift) != 0;
    const bool ctrl = (flags & DragFlagCtrl) != 0;
    const bool creating = IsCreate();
    const Corners& s = CornersAtPress();
    CPoint anchor = DragOrigin(flags);
    if (shift) {
        if (creating) {
            SetCurrentNode(1);
            SnapAnglePoint(anchor, point, false);
        } else if (GetCurrentNode() >= 0 && GetCurrentNode() <= 2) {
            // Node 0 is constrained as seen from P1, the others from P0.
            const int node = GetCurrentNode();
            const CPoint reference = node == 0 ? s.p1 : s.p0;
            anchor = node == 0 ? s.p0 : node == 1 ? s.p1 : s.p2;
            SnapAnglePoint(reference, point, false);
        }
    }
    const int node = GetCurrentNode();
    // With Ctrl on an arm's end the other arm follows it, keeping the ratio of the arms and the
    // angle between them: the flag of the arm that is not dragged is set. A new fill sets neither,
    // so its third point stays on the side of the first move.
    const CPoint perpendicular =
        CalculatePerpendicular(s.p0, s.p1, s.p2, anchor, point, !creating && node == 2, !creating && node == 1);
    if (creating) {
        SetCorners(DrawnFigure(anchor, point, perpendicular, shift));
        SetCurrentNode(1);
        return;
    }
    Corners moved = s;
    if (node == 0) {
        // P0 alone snaps: the arms keep the pointer's exact offset.
        moved = MovedFigure(s, anchor, point, shift);
    } else if (node == 1 || node == 2) {
        moved = FigureWithArmDragged(s, node == 1, anchor, point, perpendicular, shift, ctrl);
    } else {
        ReportNoCorner();
    }
    SetCorners(moved);
}

K2DArrayPoint FillToolThreeColour::Outline(const Corners& c) const
{
    return CornerParallelogram(c.p0, c.p1, c.p2);
}

} // namespace KestoTool
