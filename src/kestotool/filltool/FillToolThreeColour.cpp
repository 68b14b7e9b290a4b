#include "kestotool/filltool/FillToolThreeColour.h"

#include "kestotool/gdi/CFillThreeColour.h"
#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/geometry/K2DGeometry.h"
#include "kestotool/kernel/VerifyReporter.h"

namespace KestoTool {

KESTO_IMPLEMENT_DYNAMIC(FillToolThreeColour, FillToolGradient)

namespace {

// The numbers this file reports its broken preconditions with.
constexpr int kReportDragStartWithoutFill = 41;
constexpr int kReportDragWithoutCorner = 98;
constexpr int kReportDrawWithoutFill = 106;
constexpr int kReportFillRectWithoutFill = 126;
constexpr int kReportSizeWithoutFill = 157;
constexpr int kReportBBoxWithoutFill = 169;

constexpr const char* kModule = "FillToolThreeColour";

void ReportNoFill(int line)
{
    KestoKernel::VerifyFailed("KestoTool", kModule, line, "the tool has no fill: give it one");
}

} // namespace

bool FillToolThreeColour::GetCorners(const CFill* fill, Corners& corners) const
{
    const auto* three = FillOfKind<KestoGDI::CFillThreeColour>(fill);
    if (!three)
        return false;
    corners = {three->GetControlPoint(0).Round(), three->GetControlPoint(1).Round(), three->GetControlPoint(2).Round()};
    return true;
}

void FillToolThreeColour::SetCorners(const Corners& c)
{
    if (auto* three = dynamic_cast<KestoGDI::CFillThreeColour*>(GetWorkingFill()))
        three->SetControls(K2DDblPoint(c.p0), K2DDblPoint(c.p1), K2DDblPoint(c.p2));
}

void FillToolThreeColour::OnDragStart(CPoint& point, unsigned int flags)
{
    if (!GetFill()) {
        ReportNoFill(kReportDragStartWithoutFill);
        return;
    }
    FillTool::OnDragStart(point, flags);
    GetCorners(nullptr, m_atPress);
    SetCurrentNode(IndexFromPoint(point));
}

void FillToolThreeColour::OnDragChange(CPoint& point, unsigned int flags)
{
    if (!CheckDragStarted())
        return;
    const bool shift = (flags & DragFlagShift) != 0;
    const bool ctrl = (flags & DragFlagCtrl) != 0;
    const bool creating = IsCreate();
    const Corners& s = m_atPress;
    CPoint anchor = GetDragStart();
    if (creating && ctrl)
        anchor = GetCreateCentre(anchor);
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
    const CPoint perpendicular = CalculatePerpendicular(s.p0, s.p1, s.p2, anchor, point, node == 1, node == 2);
    if (creating) {
        Snap(anchor, anchor);
        if (!shift)
            Snap(point, point);
        SetCorners({anchor, point, perpendicular});
        SetCurrentNode(1);
        return;
    }
    Corners moved = s;
    if (node == 0) {
        moved = {Kesto2D::OffsetPoint(s.p0, anchor, point), Kesto2D::OffsetPoint(s.p1, anchor, point),
                 Kesto2D::OffsetPoint(s.p2, anchor, point)};
        // P0 alone snaps: the arms keep the pointer's exact offset.
        if (!shift)
            Snap(moved.p0, moved.p0);
    } else if (node == 1) {
        const Arms arms = DragArmEnd(s.p0, s.p1, s.p2, anchor, point, perpendicular, shift, ctrl);
        moved.p1 = arms.dragged;
        moved.p2 = arms.other;
    } else if (node == 2) {
        const Arms arms = DragArmEnd(s.p0, s.p2, s.p1, anchor, point, perpendicular, shift, ctrl);
        moved.p2 = arms.dragged;
        moved.p1 = arms.other;
    } else {
        KestoKernel::VerifyFailed("KestoTool", kModule, kReportDragWithoutCorner,
                                  "a drag needs a corner handle as the current node");
    }
    SetCorners(moved);
}

void FillToolThreeColour::BuildHandleScene(HandleScene& scene) const
{
    if (!GetFill()) {
        ReportNoFill(kReportDrawWithoutFill);
        return;
    }
    AddCorners(scene);
}

CRect FillToolThreeColour::GetFillRect(const CFill* fill)
{
    Corners c;
    if (!fill && !GetFill()) {
        ReportNoFill(kReportFillRectWithoutFill);
        return {};
    }
    if (!GetCorners(fill, c))
        return {};
    K2DArrayPoint corners;
    corners.Add(c.p0);
    corners.Add(c.p1);
    corners.Add(c.p2);
    return corners.GetBBox();
}

int FillToolThreeColour::GetHintLine(CString* out) const
{
    return EmptyHint(out);
}

void FillToolThreeColour::BaseGetHandles(K2DArrayPoint* handles) const
{
    Corners c;
    if (!GetCorners(nullptr, c))
        return;
    handles->Add(c.p0);
    handles->Add(c.p1);
    handles->Add(c.p2);
}

bool FillToolThreeColour::CheckSize() const
{
    Corners c;
    if (!GetFill()) {
        ReportNoFill(kReportSizeWithoutFill);
        return false;
    }
    using Kesto2D::K2DGeometry::IDist;
    return GetCorners(nullptr, c) && IDist(c.p0, c.p1) >= 50 && IDist(c.p0, c.p2) >= 50;
}

K2DArrayPoint FillToolThreeColour::GetEffectiveBBox(const CFill* fill)
{
    Corners c;
    K2DArrayPoint outline;
    if (!fill && !GetFill()) {
        ReportNoFill(kReportBBoxWithoutFill);
        return outline;
    }
    if (!GetCorners(fill, c))
        return outline;
    return CornerParallelogram(c.p0, c.p1, c.p2);
}

} // namespace KestoTool
