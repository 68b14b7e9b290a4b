#include "kestotool/filltool/FillToolFourColour.h"

#include "kestotool/gdi/CFillFourColour.h"
#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/geometry/K2DGeometry.h"
#include "kestotool/geometry/K2DStraightLine.h"

namespace KestoTool {

KESTO_IMPLEMENT_DYNAMIC(FillToolFourColour, FillToolGradient)

namespace {

// p moved by the double offset v, rounded half away from zero into the coordinate range.
CPoint Moved(CPoint p, const Kesto2D::K2DVector& v)
{
    return Kesto2D::SaturateToRange(K2DDblPoint(p) + v).Round();
}

Kesto2D::K2DVector Between(CPoint from, CPoint to)
{
    return {static_cast<double>(to.x) - from.x, static_cast<double>(to.y) - from.y};
}

// Where the edge through start and end meets the line through corner and along, else keep.
CPoint OnEdge(CPoint start, CPoint end, const K2DDblPoint& corner, const K2DDblPoint& along, CPoint keep)
{
    Kesto2D::K2DStraightLine edge, side;
    K2DDblPoint where;
    if (edge.SetInfinite(K2DDblPoint(start), K2DDblPoint(end)) && side.SetInfinite(corner, along) &&
        edge.Intersect(side, where, 1e-05))
        return Kesto2D::SaturateToRange(where).Round();
    return keep;
}

} // namespace

void FillToolFourColour::OnDragChange(CPoint& point, unsigned int flags)
{
    if (!CheckDragStarted())
        return;
    const bool shift = (flags & DragFlagShift) != 0;
    const bool ctrl = (flags & DragFlagCtrl) != 0;
    const bool creating = IsCreate();
    const Corners& s = CornersAtPress();
    const int node = GetCurrentNode();
    CPoint anchor = DragOrigin(flags);
    if (shift) {
        // Constrained from the dragged corner's own start (handles go P0, P1, P3, P2).
        if (!creating && node >= 0 && node <= 3) {
            const CPoint starts[] = {s.p0, s.p1, s.p3, s.p2};
            anchor = starts[node];
        }
        SnapAnglePoint(anchor, point, false);
    }
    const int selector = creating ? -1 : node == 3 ? 2 : node == 1 ? 1 : 0;
    // With Ctrl on an arm's end the other arm follows it, keeping the ratio of the arms and the
    // angle between them: the flag of the arm that is not dragged is set. A new fill sets neither,
    // so its third point stays on the side of the first move.
    const CPoint perpendicular = CalculatePerpendicular(s.p0, s.p1, s.p2, anchor, point, selector == 2, selector == 1);
    Kesto2D::K2DVector d = Between(anchor, point);
    const Kesto2D::K2DVector e = Between(anchor, perpendicular);
    if (creating) {
        const CPoint fourth = Moved(point, e); // taken before anything snaps
        Corners drawn = DrawnFigure(anchor, point, perpendicular, shift);
        drawn.p3 = fourth;
        SetCorners(drawn);
        SetCurrentNode(1);
        return;
    }
    Corners moved = s;
    if (node == 0) {
        moved = MovedFigure(s, anchor, point, shift);
    } else if (node == 1 || node == 3) {
        // P1 (node 1) or P2 (node 3) follows the pointer; the other neighbour turns with it, or
        // with Ctrl moves by the perpendicular offset.
        moved = FigureWithArmDragged(s, node == 1, anchor, point, perpendicular, shift, ctrl);
        moved.p3 = ctrl ? Moved(s.p3, d + e) : Moved(moved.p1, Between(moved.p0, moved.p2));
    } else if (node == 2) {
        if (ctrl) {
            // Along the diagonal through P0 only: the foot of the perpendicular from the pointer.
            Kesto2D::K2DStraightLine diagonal;
            if (diagonal.SetInfinite(K2DDblPoint(s.p0), K2DDblPoint(s.p3))) {
                const K2DDblPoint foot = diagonal.IntersectPerp(K2DDblPoint(point));
                d = foot - K2DDblPoint(s.p3);
                moved.p3 = Kesto2D::SaturateToRange(foot).Round();
            }
        } else {
            moved.p3 = Moved(s.p3, d);
            if (!shift)
                Snap(moved.p3, moved.p3);
        }
        // The neighbours slide along their edges from P0 so that the sides stay parallel.
        const K2DDblPoint corner(moved.p3);
        moved.p2 = OnEdge(s.p0, s.p2, corner, K2DDblPoint(s.p2) + d, s.p2);
        moved.p1 = OnEdge(s.p0, s.p1, corner, K2DDblPoint(s.p1) + d, s.p1);
    } else {
        ReportNoCorner();
    }
    SetCorners(moved);
}

K2DArrayPoint FillToolFourColour::Outline(const Corners& c) const
{
    K2DArrayPoint outline;
    for (const CPoint& p : {c.p2, c.p3, c.p1, c.p0})
        outline.Add(p);
    outline.AddClose(0);
    return outline;
}

} // namespace KestoTool
