#include "kestotool/filltool/FillToolElliptical.h"

#include "kestotool/filltool/RoundToolHints_p.h"
#include "kestotool/gdi/CFillEllipse.h"
#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/geometry/K2DGeometry.h"
#include "kestotool/kernel/VerifyReporter.h"

#include <algorithm>

namespace KestoTool {

KESTO_IMPLEMENT_DYNAMIC(FillToolElliptical, FillToolGradient)

namespace {

constexpr int kUnitRadius = 100;

} // namespace

bool FillToolElliptical::GetAxes(const CFill* fill, Axes& axes) const
{
    const auto* ellipse = FillOfKind<KestoGDI::CFillEllipse>(fill);
    if (!ellipse)
        return false;
    axes = {ellipse->GetCentre().Round(), ellipse->GetEnd().Round(), ellipse->GetShape().Round()};
    return true;
}

void FillToolElliptical::SetAxes(const Axes& axes)
{
    if (auto* ellipse = dynamic_cast<KestoGDI::CFillEllipse*>(GetWorkingFill()))
        ellipse->SetControls(K2DDblPoint(axes.centre), K2DDblPoint(axes.end), K2DDblPoint(axes.shape));
}

K2DLtGeneral FillToolElliptical::CircleToEllipse(const Axes& a)
{
    const double s = 1.0 / kUnitRadius;
    const K2DLtGeneral axes(
        (static_cast<double>(a.end.x) - a.centre.x) * s, (static_cast<double>(a.end.y) - a.centre.y) * s,
        (static_cast<double>(a.shape.x) - a.centre.x) * s, (static_cast<double>(a.shape.y) - a.centre.y) * s, 0, 0);
    return K2DLtGeneral::About(K2DDblPoint(a.centre), axes);
}

void FillToolElliptical::OnDragStart(CPoint& point, unsigned int flags)
{
    FillTool::OnDragStart(point, flags);
    SetCurrentNode(IndexFromPoint(point));
    GetAxes(nullptr, m_atPress);
}

void FillToolElliptical::OnDragChange(CPoint& point, unsigned int flags)
{
    if (!CheckDragStarted())
        return;
    const bool shift = (flags & DragFlagShift) != 0;
    const bool ctrl = (flags & DragFlagCtrl) != 0;
    const bool creating = IsCreate();
    const Axes& start = m_atPress;
    CPoint press = DragOrigin(flags);
    if (shift) {
        CPoint anchor = start.centre;
        if (creating)
            anchor = press;
        else if (IsFirstNode())
            press = start.centre;
        else if (IsLastNode())
            press = start.end;
        else if (IsExtendedNode())
            press = start.shape;
        SnapAnglePoint(anchor, point, IsFirstNode());
    }
    // With Ctrl on an arm's end the other arm follows it, keeping the ratio of the arms and the
    // angle between them: the flag of the arm that is not dragged is set. A new fill sets neither,
    // so its third point stays on the side of the first move.
    const CPoint perpendicular = CalculatePerpendicular(start.centre, start.end, start.shape, press, point,
                                                        !creating && IsExtendedNode(), !creating && IsLastNode());
    if (creating) {
        // No snapping while an ellipse is drawn: the shape point follows the pointer exactly.
        SetCurrentNode(GetNumGradientNodes() - 1);
        SetAxes({press, point, perpendicular});
        return;
    }
    Axes moved = start;
    if (IsFirstNode()) {
        moved = {Kesto2D::OffsetPoint(start.centre, press, point), Kesto2D::OffsetPoint(start.end, press, point),
                 Kesto2D::OffsetPoint(start.shape, press, point)};
        // Only the centre snaps: the axes keep the pointer's exact offset.
        if (!shift)
            Snap(moved.centre, moved.centre);
    } else if (IsLastNode()) {
        const Arms arms = DragArmEnd(start.centre, start.end, start.shape, press, point, perpendicular, shift, ctrl);
        moved.end = arms.dragged;
        moved.shape = arms.other;
    } else if (IsExtendedNode()) {
        const Arms arms = DragArmEnd(start.centre, start.shape, start.end, press, point, perpendicular, shift, ctrl);
        moved.shape = arms.dragged;
        moved.end = arms.other;
    } else {
        if (GetCurrentNode() >= 0)
            SetGradientValue(GetCurrentNode(), GetPercentageFromPoint(point));
        return;
    }
    SetAxes(moved);
}

void FillToolElliptical::BuildHandleScene(HandleScene& scene) const
{
    Axes a;
    if (!GetAxes(nullptr, a))
        return;
    scene.AddLine(a.centre, a.end, true);
    scene.AddLine(a.centre, a.shape, true);
    scene.AddCurve(K2DCurve::Circle(K2DDblPoint(a.centre), kUnitRadius).Transformed(CircleToEllipse(a)), false);
    AddControlBoxes(scene);
}

CRect FillToolElliptical::GetFillRect(const CFill* fill)
{
    Axes a;
    if (!GetAxes(fill, a))
        return {};
    K2DArrayPoint circle;
    circle.AppendEllipse(a.centre, kUnitRadius, kUnitRadius);
    const K2DLtGeneral map = CircleToEllipse(a);
    K2DArrayPoint ellipse;
    for (const CPoint& p : circle)
        ellipse.Add(map.ApplyTo(p));
    return ellipse.GetBBox();
}

CRect FillToolElliptical::GetFillLineBox(const CFill* fill)
{
    Axes a;
    if (!dynamic_cast<const KestoGDI::CFillEllipse*>(fill ? fill : GetFill())) {
        KestoKernel::VerifyFailed("KestoTool", "FillToolElliptical", 502, "the fill is not elliptical");
        return {};
    }
    GetAxes(fill, a);
    return LongerAxisBox(a.centre, a.end, a.shape);
}

K2DArrayPoint FillToolElliptical::GetEffectiveBBox(const CFill* fill)
{
    Axes a;
    if (!GetAxes(fill, a))
        return {};
    return AxesParallelogram(a.centre, a.end, a.shape);
}

int FillToolElliptical::GetHintLine(CString* out) const
{
    const HintIds ids = RoundToolHintIds(*this);
    ComposeHintLine(out, ids.fill, ids.transparency);
    return 1;
}

void FillToolElliptical::BaseGetHandles(K2DArrayPoint* handles) const
{
    Axes a;
    if (!GetAxes(nullptr, a))
        return;
    AddGradientHandles(handles, a.centre, a.end);
    handles->Add(a.shape);
}

bool FillToolElliptical::IsPointOnLine(const CPoint& point, int tolerance) const
{
    Axes a;
    return GetAxes(nullptr, a) && IsPointOnNodeLine(a.centre, a.end, point, tolerance);
}

int FillToolElliptical::GetPercentageFromPoint(CPoint point) const
{
    Axes a;
    if (!GetAxes(nullptr, a))
        return 1;
    return std::clamp(GetNodeValueFromPoints(a.centre, a.end, point), 1, 9999);
}

} // namespace KestoTool
