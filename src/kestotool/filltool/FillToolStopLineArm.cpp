#include "kestotool/filltool/FillToolStopLineArm.h"

#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/CFillFractal.h"
#include "kestotool/geometry/K2DGeometry.h"
#include "kestotool/kernel/VerifyReporter.h"

namespace KestoTool {

namespace {

// The numbers this file reports its broken preconditions with.
constexpr int kReportDragStartWithoutFill = 20;
constexpr int kReportBBoxWithoutFill = 46;
constexpr int kReportPercentageWithoutFill = 65;
constexpr int kReportSizeWithoutFill = 77;

} // namespace

template <class Fill>
bool FillToolStopLineArm<Fill>::GetPoints(const CFill* fill, Points& points) const
{
    const Fill* placed = FillOfKind<Fill>(fill);
    if (!placed)
        return false;
    points = {placed->GetControlPoint(0).Round(), placed->GetControlPoint(1).Round(),
              placed->GetControlPoint(2).Round()};
    return true;
}

template <class Fill>
void FillToolStopLineArm<Fill>::SetPoints(const Points& p)
{
    if (auto* placed = dynamic_cast<Fill*>(GetWorkingFill()))
        placed->SetControls(K2DDblPoint(p.p0), K2DDblPoint(p.p1), K2DDblPoint(p.p2));
}

template <class Fill>
void FillToolStopLineArm<Fill>::ReportNoFill(int line) const
{
    KestoKernel::VerifyFailed("KestoTool", m_module, line, "the tool has no fill: give it one");
}

template <class Fill>
CRect FillToolStopLineArm<Fill>::GetFillRect(const CFill* fill)
{
    return GetEffectiveBBox(fill).GetBBox();
}

template <class Fill>
K2DArrayPoint FillToolStopLineArm<Fill>::GetEffectiveBBox(const CFill* fill)
{
    Points p;
    if (!GetPoints(fill, p)) {
        if (!fill && !GetFill())
            ReportNoFill(kReportBBoxWithoutFill);
        return {};
    }
    return CornerParallelogram(p.p0, p.p1, p.p2);
}

template <class Fill>
bool FillToolStopLineArm<Fill>::IsPointOnLine(const CPoint& point, int tolerance) const
{
    Points p;
    return GetPoints(nullptr, p) && IsPointOnNodeLine(p.p0, p.p1, point, tolerance);
}

template <class Fill>
int FillToolStopLineArm<Fill>::GetPercentageFromPoint(CPoint point) const
{
    Points p;
    if (!GetPoints(nullptr, p)) {
        if (!GetFill())
            ReportNoFill(kReportPercentageWithoutFill);
        return -1;
    }
    return GetNodeValueFromPoints(p.p0, p.p1, point);
}

template <class Fill>
bool FillToolStopLineArm<Fill>::CheckSize() const
{
    Points p;
    if (!GetPoints(nullptr, p)) {
        if (!GetFill())
            ReportNoFill(kReportSizeWithoutFill);
        return false;
    }
    using Kesto2D::K2DGeometry::IDist;
    return IDist(p.p0, p.p1) >= 50 && IDist(p.p0, p.p2) >= 50;
}

template <class Fill>
void FillToolStopLineArm<Fill>::OnDragStart(CPoint& point, unsigned int flags)
{
    if (!GetFill()) {
        ReportNoFill(kReportDragStartWithoutFill);
        return;
    }
    FillTool::OnDragStart(point, flags);
    GetPoints(nullptr, m_atPress);
    SetCurrentNode(IndexFromPoint(point));
}

template <class Fill>
void FillToolStopLineArm<Fill>::SlideInnerStop(int node, int last, const CPoint& point)
{
    if (node <= 0 || node >= last)
        return;
    Points now;
    GetPoints(nullptr, now);
    SlideStopFollowing(node, now.p0, now.p1, point);
}

template class FillToolStopLineArm<KestoGDI::CFillFractal>;
template class FillToolStopLineArm<KestoGDI::CFillBitmap>;

} // namespace KestoTool
