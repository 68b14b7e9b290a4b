#include "kestotool/filltool/FillToolSquare.h"

#include "kestotool/gdi/CFillSquare.h"
#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/geometry/K2DGeometry.h"
#include "kestotool/kernel/VerifyReporter.h"

namespace KestoTool {

KESTO_IMPLEMENT_DYNAMIC(FillToolSquare, FillToolGradient)

bool FillToolSquare::GetAxes(const CFill* fill, Axes& axes) const
{
    const auto* square = FillOfKind<KestoGDI::CFillSquare>(fill);
    if (!square)
        return false;
    axes = {square->GetCentre().Round(), square->GetEnd().Round(), square->GetShape().Round()};
    return true;
}

bool FillToolSquare::GetOwnAxes(Axes& axes, int line) const
{
    if (!GetFill()) {
        KestoKernel::VerifyFailed("KestoTool", "FillToolSquare", line, "the tool has no fill: give it one");
        return false;
    }
    return GetAxes(nullptr, axes);
}

void FillToolSquare::SetAxes(const Axes& axes)
{
    if (auto* square = dynamic_cast<KestoGDI::CFillSquare*>(GetWorkingFill()))
        square->SetControls(K2DDblPoint(axes.centre), K2DDblPoint(axes.end), K2DDblPoint(axes.shape));
}

int FillToolSquare::GradientIndex(int handle) const
{
    return handle == GetGradientNodes().GetSize() ? handle - 1 : handle;
}

void FillToolSquare::OnDragStart(CPoint& point, unsigned int flags)
{
    FillTool::OnDragStart(point, flags);
    if (!GetOwnAxes(m_atPress, 263))
        return;
    SetCurrentNode(IndexFromPoint(point));
}

void FillToolSquare::OnDragChange(CPoint& point, unsigned int flags)
{
    if (!CheckDragStarted())
        return;
    const bool shift = (flags & DragFlagShift) != 0;
    const bool ctrl = (flags & DragFlagCtrl) != 0;
    const bool creating = IsCreate();
    const int n = GetNodeCount();
    const int c = GetCurrentNode();
    const Axes& start = m_atPress;
    CPoint press = DragOrigin(flags);
    if (shift) {
        // Constrained from where the dragged handle itself started.
        if (!creating && c == 0)
            press = start.centre;
        else if (!creating && c == n - 1)
            press = start.end;
        else if (!creating && c == n)
            press = start.shape;
        SnapAnglePoint(press, point, false);
    }
    // With Ctrl on an arm's end the other arm follows it, keeping the ratio of the arms and the
    // angle between them: the flag of the arm that is not dragged is set. A new fill sets neither,
    // so its third point stays on the side of the first move.
    const CPoint perpendicular = CalculatePerpendicular(start.centre, start.end, start.shape, press, point,
                                                        !creating && c == n, !creating && c == n - 1);
    if (creating) {
        Snap(press, press);
        if (!shift)
            Snap(point, point);
        SetCurrentNode(n - 1);
        SetAxes({press, point, perpendicular});
        return;
    }
    Axes moved = start;
    if (c == 0) {
        moved = {Kesto2D::OffsetPoint(start.centre, press, point), Kesto2D::OffsetPoint(start.end, press, point),
                 Kesto2D::OffsetPoint(start.shape, press, point)};
        if (!shift)
            Snap(moved.centre, moved.centre);
    } else if (c == n - 1) {
        const Arms arms = DragArmEnd(start.centre, start.end, start.shape, press, point, perpendicular, shift, ctrl);
        moved.end = arms.dragged;
        moved.shape = arms.other;
    } else if (c == n) {
        const Arms arms = DragArmEnd(start.centre, start.shape, start.end, press, point, perpendicular, shift, ctrl);
        moved.shape = arms.dragged;
        moved.end = arms.other;
    } else {
        // Measured on the axis as it was at the press, and the stop stays current when it
        // overtakes a neighbour.
        if (c > 0 && c < n - 1)
            SlideStopFollowing(c, start.centre, start.end, point);
        return;
    }
    SetAxes(moved);
}

void FillToolSquare::BuildHandleScene(HandleScene& scene) const
{
    Axes a;
    if (!GetAxes(nullptr, a))
        return;
    scene.AddLine(a.centre, a.end, true);
    scene.AddLine(a.centre, a.shape, true);
    scene.AddPolyline(AxesParallelogram(a.centre, a.end, a.shape), false);
    AddControlBoxes(scene);
}

CRect FillToolSquare::GetFillRect(const CFill* fill)
{
    Axes a;
    if (!GetAxes(fill, a))
        return {};
    return AxesParallelogram(a.centre, a.end, a.shape).GetBBox();
}

CRect FillToolSquare::GetFillLineBox(const CFill* fill)
{
    Axes a;
    if (!GetAxes(fill, a))
        return {};
    return LongerAxisBox(a.centre, a.end, a.shape);
}

K2DArrayPoint FillToolSquare::GetEffectiveBBox(const CFill* fill)
{
    Axes a;
    if (!GetAxes(fill, a))
        return {};
    return AxesParallelogram(a.centre, a.end, a.shape);
}

int FillToolSquare::GetHintLine(CString* out) const
{
    return EmptyHint(out);
}

void FillToolSquare::BaseGetHandles(K2DArrayPoint* handles) const
{
    Axes a;
    if (!GetOwnAxes(a, 233))
        return;
    AddGradientHandles(handles, a.centre, a.end);
    handles->Add(a.shape);
}

bool FillToolSquare::IsPointOnLine(const CPoint& point, int tolerance) const
{
    Axes a;
    return GetOwnAxes(a, 252) && IsPointOnNodeLine(a.centre, a.end, point, tolerance);
}

int FillToolSquare::GetPercentageFromPoint(CPoint point) const
{
    Axes a;
    if (!GetOwnAxes(a, 157))
        return -1;
    return GetNodeValueFromPoints(a.centre, a.end, point);
}

bool FillToolSquare::CheckSize() const
{
    Axes a;
    if (!GetOwnAxes(a, 242))
        return false;
    using Kesto2D::K2DGeometry::IDist;
    return IDist(a.centre, a.end) > 49 && IDist(a.centre, a.shape) > 49;
}

} // namespace KestoTool
