#include "kestotool/filltool/FillToolConical.h"

#include "kestotool/gdi/CFillConical.h"
#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/geometry/K2DGeometry.h"
#include "kestotool/geometry/Rounding.h"
#include "kestotool/kernel/VerifyReporter.h"
#include "kestotool/resources/ResourceIds.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace KestoTool {

KESTO_IMPLEMENT_DYNAMIC(FillToolConical, FillToolGradient)

bool FillToolConical::GetSweep(const CFill* fill, CPoint& centre, CPoint& radiusEnd) const
{
    const auto* conical = FillOfKind<KestoGDI::CFillConical>(fill);
    if (!conical)
        return false;
    centre = conical->GetCentre().Round();
    radiusEnd = conical->GetEnd().Round();
    return true;
}

void FillToolConical::SetSweep(const CPoint& centre, const CPoint& radiusEnd)
{
    if (auto* conical = dynamic_cast<KestoGDI::CFillConical*>(GetWorkingFill()))
        conical->SetControls(K2DDblPoint(centre), K2DDblPoint(radiusEnd));
}

CPoint FillToolConical::StopPoint(CPoint centre, CPoint radiusEnd, int position)
{
    KCAngle angle(Kesto2D::MulDiv(position, KCAngle::HalfCircle, 10000));
    return GetNodeTransform(angle, centre).ApplyTo(radiusEnd);
}

CRect FillToolConical::CircleBox(CPoint centre, CPoint radiusEnd)
{
    const long long r = Kesto2D::K2DGeometry::IDist(centre, radiusEnd);
    const CPoint topLeft = Kesto2D::OffsetPoint(centre, -r, -r);
    const CPoint bottomRight = Kesto2D::OffsetPoint(centre, r, r);
    return {topLeft.x, topLeft.y, bottomRight.x, bottomRight.y};
}

void FillToolConical::OnDragStart(CPoint& point, unsigned int flags)
{
    FillTool::OnDragStart(point, flags);
    const int h = IndexFromPoint(point);
    SetCurrentNode(h >= 0 ? h : GetNumGradientNodes() - 1);
    GetSweep(nullptr, m_centreAtPress, m_radiusEndAtPress);
}

void FillToolConical::OnDragChange(CPoint& point, unsigned int flags)
{
    if (!CheckDragStarted())
        return;
    const CPoint press = DragOrigin(flags);
    const long long dx = static_cast<long long>(point.x) - press.x;
    const long long dy = static_cast<long long>(point.y) - press.y;
    const bool shift = (flags & DragFlagShift) != 0;
    if (IsCreate()) {
        SetCurrentNode(GetNumGradientNodes() - 1);
        SetSweep(press, point);
    } else if (IsExtendedNode()) {
        SetSweep(Kesto2D::OffsetPoint(m_centreAtPress, dx, dy), Kesto2D::OffsetPoint(m_radiusEndAtPress, dx, dy));
    } else if (IsFirstNode() || IsLastNode()) {
        // The handle opposite R follows the pointer, so R itself moves the other way.
        CPoint radiusEnd = IsFirstNode() ? Kesto2D::OffsetPoint(m_radiusEndAtPress, dx, dy)
                                         : Kesto2D::OffsetPoint(m_radiusEndAtPress, -dx, -dy);
        if (shift)
            SnapAnglePoint(m_centreAtPress, radiusEnd, false);
        SetSweep(m_centreAtPress, radiusEnd);
    } else if (GetCurrentNode() >= 0) {
        SetGradientValue(GetCurrentNode(), GetPercentageFromPoint(point));
    }
}

void FillToolConical::BuildHandleScene(HandleScene& scene) const
{
    CPoint c, r;
    if (!GetSweep(nullptr, c, r))
        return;
    scene.AddLine(c, r, true);
    const KCAngle start = KCAngle::DirectionOf(static_cast<double>(r.x) - c.x, static_cast<double>(r.y) - c.y);
    scene.AddCurve(
        K2DCurve::Arc(K2DDblPoint(c), Kesto2D::K2DGeometry::CalcDist(c, r), start, KCAngle(KCAngle::HalfCircle)),
        false);
    const KestoGDI::ColourIntPairs& stops = GetGradientNodes();
    for (int i = 0; i < stops.GetSize(); ++i)
        scene.AddHandle(StopPoint(c, r, stops.GetAt(i)->GetValue()), &stops.GetAt(i)->GetColour(), i);
    // The first stop's handle once more, last, so that it shows on top.
    if (stops.GetSize() > 0)
        scene.AddHandle(StopPoint(c, r, stops.GetAt(0)->GetValue()), &stops.GetAt(0)->GetColour(), 0);
}

CRect FillToolConical::GetFillRect(const CFill* fill)
{
    CPoint c, r;
    if (!GetSweep(fill, c, r))
        return {};
    const long long size = Kesto2D::K2DGeometry::IDist(c, r);
    const CPoint topLeft = Kesto2D::OffsetPoint(c, -size / 2, -size / 2);
    const CPoint bottomRight = Kesto2D::OffsetPoint(topLeft, size, size);
    return {topLeft.x, topLeft.y, bottomRight.x, bottomRight.y};
}

CRect FillToolConical::GetFillLineBox(const CFill* fill)
{
    CPoint c, r;
    if (!dynamic_cast<const KestoGDI::CFillConical*>(fill ? fill : GetFill())) {
        KestoKernel::VerifyFailed("KestoTool", "FillToolConical", 449, "the fill is not conical");
        return {};
    }
    GetSweep(fill, c, r);
    return {c.x, c.y, r.x, r.y};
}

CRect FillToolConical::GetToolRect(const CFill* fill)
{
    CPoint c, r;
    if (!GetSweep(fill, c, r))
        return ToolRectOf({});
    return ToolRectOf(CircleBox(c, r));
}

K2DArrayPoint FillToolConical::GetEffectiveBBox(const CFill* fill)
{
    CPoint c, r;
    K2DArrayPoint outline;
    if (!GetSweep(fill, c, r))
        return outline;
    const CRect box = CircleBox(c, r);
    outline.Add(box.TopLeft());
    outline.Add({box.right, box.top});
    outline.Add(box.BottomRight());
    outline.Add({box.left, box.bottom});
    outline.AddClose(0);
    return outline;
}

int FillToolConical::GetHintLine(CString* out) const
{
    const bool dragging = IsInDrag();
    const int node = GetHintNode();
    HintIds ids{IDS_HINT_CONICAL_NO_NODE_FILL, IDS_HINT_CONICAL_NO_NODE_TRANSPARENCY};
    if (IsCreate())
        ids = {IDS_HINT_CONICAL_CREATE_FILL, IDS_HINT_CONICAL_CREATE_TRANSPARENCY};
    else if (node == -1)
        ids = {IDS_HINT_CONICAL_NO_NODE_FILL, IDS_HINT_CONICAL_NO_NODE_TRANSPARENCY};
    else if (IsExtendedNode(node))
        ids = dragging ? HintIds{IDS_HINT_CONICAL_CENTRE_DRAGGING_FILL, IDS_HINT_CONICAL_CENTRE_DRAGGING_TRANSPARENCY}
                       : HintIds{IDS_HINT_CONICAL_CENTRE_OVER_FILL, IDS_HINT_CONICAL_CENTRE_OVER_TRANSPARENCY};
    else if (IsFirstNode(node))
        ids = dragging ? HintIds{IDS_HINT_CONICAL_FIRST_DRAGGING_FILL, IDS_HINT_CONICAL_FIRST_DRAGGING_TRANSPARENCY}
                       : HintIds{IDS_HINT_CONICAL_FIRST_OVER_FILL, IDS_HINT_CONICAL_FIRST_OVER_TRANSPARENCY};
    else // the last stop too: it turns the sweep, but its hint speaks of a step
        ids = dragging ? HintIds{IDS_HINT_CONICAL_STEP_DRAGGING_FILL, IDS_HINT_CONICAL_STEP_DRAGGING_TRANSPARENCY}
                       : HintIds{IDS_HINT_CONICAL_STEP_OVER_FILL, IDS_HINT_CONICAL_STEP_OVER_TRANSPARENCY};
    ComposeHintLine(out, ids.fill, ids.transparency);
    return 1;
}

void FillToolConical::BaseGetHandles(K2DArrayPoint* handles) const
{
    CPoint c, r;
    if (!GetSweep(nullptr, c, r))
        return;
    const KestoGDI::ColourIntPairs& stops = GetGradientNodes();
    handles->Add(r);
    for (int i = 1; i + 1 < stops.GetSize(); ++i)
        handles->Add(StopPoint(c, r, stops.GetAt(i)->GetValue()));
    handles->Add(Kesto2D::SaturatePoint(2LL * c.x - r.x, 2LL * c.y - r.y));
    handles->Add(c);
}

bool FillToolConical::IsPointOnLine(const CPoint& point, int tolerance) const
{
    CPoint c, r;
    if (!GetSweep(nullptr, c, r))
        return false;
    if (tolerance == -1)
        tolerance = GetDefaultTolerance();
    using Kesto2D::K2DGeometry::CalcDist;
    const long long radius = static_cast<long long>(CalcDist(r, c));
    const long long distance = static_cast<long long>(CalcDist(point, c));
    return Kesto2D::K2DGeometry::CalcAngle(point, c, r).Value() >= KCAngle::HalfCircle &&
           std::llabs(radius - distance) < tolerance;
}

int FillToolConical::GetPercentageFromPoint(CPoint point) const
{
    CPoint c, r;
    if (!GetSweep(nullptr, c, r))
        return 1;
    int a = Kesto2D::K2DGeometry::CalcAngle(point, c, r).Value();
    if (a > KCAngle::HalfCircle)
        a = KCAngle::FullCircle - a;
    return std::clamp(a * 100 / 180, 1, 9999);
}

} // namespace KestoTool
