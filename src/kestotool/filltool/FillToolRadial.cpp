#include "kestotool/filltool/FillToolRadial.h"

#include "kestotool/filltool/RoundToolHints_p.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/geometry/K2DCurve.h"
#include "kestotool/geometry/K2DGeometry.h"
#include "kestotool/kernel/VerifyReporter.h"

#include <algorithm>

namespace KestoTool {

KESTO_IMPLEMENT_DYNAMIC(FillToolRadial, FillToolGradient)

void FillToolRadial::OnDragStart(CPoint& point, unsigned int flags)
{
    FillTool::OnDragStart(point, flags);
    // A press away from the handles leaves no current node (the linear tool picks its end).
    SetCurrentNode(IndexFromPoint(point));
    RememberLine();
}

void FillToolRadial::OnDragChange(CPoint& point, unsigned int flags)
{
    // Dragging the centre with Shift holds it to the angle steps about where it was.
    const std::optional<LineStep> step = BeginLineStep(point, flags, FromAtPress(), !IsCreate() && IsFirstNode());
    if (!step)
        return;
    const auto [shift, creating, press] = *step;
    if (creating && shift)
        SetCurrentNode(GetNumGradientNodes() - 1);
    if (creating) {
        DrawStopLine(press, point, shift);
        return;
    }
    const long long dx = static_cast<long long>(point.x) - press.x;
    const long long dy = static_cast<long long>(point.y) - press.y;
    if (IsFirstNode()) {
        CPoint centre = Kesto2D::OffsetPoint(FromAtPress(), dx, dy);
        CPoint rim = Kesto2D::OffsetPoint(ToAtPress(), dx, dy);
        if (!shift) {
            Snap(centre, centre);
            Snap(rim, rim);
        }
        SetStopLine(centre, rim);
    } else if (IsLastNode()) {
        DragStopLineEnd(press, point, shift);
    } else if (GetCurrentNode() >= 0) {
        SetGradientValue(GetCurrentNode(), GetPercentageFromPoint(point));
    }
}

void FillToolRadial::BuildHandleScene(HandleScene& scene) const
{
    CPoint c, e;
    if (!GetStopLine(nullptr, c, e))
        return;
    scene.AddLine(c, e, true);
    scene.AddCurve(K2DCurve::Circle(K2DDblPoint(c), Kesto2D::K2DGeometry::CalcDist(c, e)), false);
    AddControlBoxes(scene);
}

CRect FillToolRadial::GetFillRect(const CFill* fill)
{
    CPoint c, e;
    if (!GetStopLine(fill, c, e))
        return {};
    return K2DCurve::Circle(K2DDblPoint(c), Kesto2D::K2DGeometry::IDist(c, e)).GetBBox();
}

CRect FillToolRadial::GetFillLineBox(const CFill* fill)
{
    CPoint c, e;
    if (!dynamic_cast<const KestoGDI::CFillRadial*>(fill ? fill : GetFill())) {
        KestoKernel::VerifyFailed("KestoTool", "FillToolRadial", 443, "the fill is not radial");
        return {};
    }
    GetStopLine(fill, c, e);
    return {c.x, c.y, e.x, e.y};
}

K2DArrayPoint FillToolRadial::GetEffectiveBBox(const CFill* fill)
{
    CPoint c, e;
    if (!fill && !GetFill()) {
        KestoKernel::VerifyFailed("KestoTool", "FillToolRadial", 194, "the tool has no fill: pass one");
        return {};
    }
    if (!GetStopLine(fill, c, e))
        return {};
    const CPoint mirrored = Kesto2D::SaturatePoint(2LL * c.x - e.x, 2LL * c.y - e.y);
    return SquareOnLine(mirrored, e);
}

int FillToolRadial::GetHintLine(CString* out) const
{
    const HintIds ids = RoundToolHintIds(*this);
    ComposeHintLine(out, ids.fill, ids.transparency);
    return 1;
}

} // namespace KestoTool
