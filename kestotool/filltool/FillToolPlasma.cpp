#include "filltool/FillToolPlasma.h"

#include "gdi/CFillFractal.h"
#include "geometry/CoordinateRange.h"
#include "geometry/K2DGeometry.h"
#include "kernel/VerifyReporter.h"

namespace KestoTool {

KESTO_IMPLEMENT_DYNAMIC(FillToolPlasma, FillToolGradient)

namespace {

void ReportNoFill(int line)
{
    Kernel::VerifyFailed("KestoTool", "FillToolPlasma", line, "the tool has no fill: give it one");
}

// The colour the tile arm's handle is drawn in: it edits no stop.
constexpr unsigned long kArmHandleColour = 0xFFFFFF;

} // namespace

bool FillToolPlasma::GetPoints(const CFill* fill, Points& points) const
{
    const auto* plasma = FillOfKind<KestoGDI::CFillFractal>(fill);
    if (!plasma)
        return false;
    points = {plasma->GetControlPoint(0).Round(), plasma->GetControlPoint(1).Round(), plasma->GetControlPoint(2).Round()};
    return true;
}

void FillToolPlasma::SetPoints(const Points& p)
{
    if (auto* plasma = dynamic_cast<KestoGDI::CFillFractal*>(GetWorkingFill()))
        plasma->SetControls(K2DDblPoint(p.p0), K2DDblPoint(p.p1), K2DDblPoint(p.p2));
}

void FillToolPlasma::OnDragStart(CPoint& point, unsigned int flags)
{
    if (!GetFill()) {
        ReportNoFill(__LINE__);
        return;
    }
    FillTool::OnDragStart(point, flags);
    GetPoints(nullptr, m_atPress);
    SetCurrentNode(IndexFromPoint(point));
}

void FillToolPlasma::OnDragChange(CPoint& point, unsigned int flags)
{
    if (!CheckDragStarted())
        return;
    const bool shift = (flags & DragFlagShift) != 0;
    const bool ctrl = (flags & DragFlagCtrl) != 0;
    const bool creating = IsCreate();
    const int count = GetNodeCount();
    const int node = GetCurrentNode();
    const Points& s = m_atPress;
    CPoint anchor = GetDragStart();
    if (creating && ctrl)
        anchor = GetCreateCentre(anchor);
    if (shift) {
        if (!creating && node == 0)
            anchor = s.p0;
        else if (!creating && node == count - 1)
            anchor = s.p1;
        else if (!creating && node == count)
            anchor = s.p2;
        ConstrainAngle(anchor, point, false);
    }
    const CPoint perpendicular = CalculatePerpendicular(s.p0, s.p1, s.p2, anchor, point, node == count - 1, node == count);
    if (creating) {
        Snap(anchor, anchor);
        if (!shift)
            Snap(point, point);
        SetCurrentNode(count - 1);
        SetPoints({anchor, point, perpendicular});
        return;
    }
    Points moved = s;
    if (node == 0) {
        moved = {Kesto2D::OffsetPoint(s.p0, anchor, point), Kesto2D::OffsetPoint(s.p1, anchor, point),
                 Kesto2D::OffsetPoint(s.p2, anchor, point)};
        if (!shift)
            Snap(moved.p0, moved.p0);
    } else if (node == count - 1) {
        const Arms arms = DragArmEnd(s.p0, s.p1, s.p2, anchor, point, perpendicular, shift, ctrl);
        moved.p1 = arms.dragged;
        moved.p2 = arms.other;
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
        if (node > 0 && node < count - 1) {
            Points now;
            GetPoints(nullptr, now);
            SetCurrentNode(SetGradientValue(node, GetNodeValueFromPoints(now.p0, now.p1, point)));
        }
        return;
    }
    SetPoints(moved);
}

void FillToolPlasma::Draw(IRenderTarget* target, bool outlineOnly, const K2DLtGeneral& view) const
{
    Points p;
    if (!target || !GetPoints(nullptr, p)) {
        ReportNoFill(__LINE__);
        return;
    }
    FillTool::Draw(target, outlineOnly, view);
    DrawHandleOutline(target, outlineOnly);
    DrawControlBoxes(target, outlineOnly);
    DrawBoxControl(target, outlineOnly, p.p2, kArmHandleColour, GetNodeCount());
}

void FillToolPlasma::Draw(CRenderContext* context) const
{
    Points p;
    if (!context || !GetPoints(nullptr, p)) {
        ReportNoFill(__LINE__);
        return;
    }
    DrawHandleOutline(context);
    DrawControlBoxes(context);
    DrawBoxControl(context, p.p2, kArmHandleColour, GetNodeCount());
}

CRect FillToolPlasma::GetFillRect(const CFill* fill)
{
    Points p;
    if (!GetPoints(fill, p)) {
        if (!fill && !GetFill())
            ReportNoFill(__LINE__);
        return {};
    }
    return CornerParallelogram(p.p0, p.p1, p.p2).GetBBox();
}

K2DArrayPoint FillToolPlasma::GetEffectiveBBox(const CFill* fill)
{
    Points p;
    if (!GetPoints(fill, p)) {
        if (!fill && !GetFill())
            ReportNoFill(__LINE__);
        return {};
    }
    return CornerParallelogram(p.p0, p.p1, p.p2);
}

int FillToolPlasma::GetHintLine(CString* out) const
{
    return EmptyHint(out);
}

void FillToolPlasma::BaseGetHandles(K2DArrayPoint* handles) const
{
    Points p;
    if (!GetPoints(nullptr, p))
        return;
    AddGradientHandles(handles, p.p0, p.p1);
    handles->Add(p.p2);
}

bool FillToolPlasma::IsPointOnLine(const CPoint& point, int tolerance) const
{
    Points p;
    return GetPoints(nullptr, p) && IsPointOnNodeLine(p.p0, p.p1, point, tolerance);
}

int FillToolPlasma::GetPercentageFromPoint(CPoint point) const
{
    Points p;
    if (!GetPoints(nullptr, p)) {
        if (!GetFill())
            ReportNoFill(__LINE__);
        return -1;
    }
    return GetNodeValueFromPoints(p.p0, p.p1, point);
}

bool FillToolPlasma::CheckSize() const
{
    Points p;
    if (!GetPoints(nullptr, p)) {
        if (!GetFill())
            ReportNoFill(__LINE__);
        return false;
    }
    using Kesto2D::K2DGeometry::IDist;
    return IDist(p.p0, p.p1) >= 50 && IDist(p.p0, p.p2) >= 50;
}

} // namespace KestoTool
