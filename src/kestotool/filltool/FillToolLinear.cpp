#include "kestotool/filltool/FillToolLinear.h"

#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/geometry/K2DGeometry.h"
#include "kestotool/kernel/VerifyReporter.h"
#include "kestotool/resources/ResourceIds.h"

#include <algorithm>

namespace KestoTool {

KESTO_IMPLEMENT_DYNAMIC(FillToolLinear, FillToolGradient)

namespace {

// Hint-line string ids: fill, transparency.
constexpr int kHintCreate[] = {IDS_HINT_LINEAR_CREATE_FILL, IDS_HINT_LINEAR_CREATE_TRANSPARENCY};
constexpr int kHintNoNode[] = {IDS_HINT_LINEAR_NO_NODE_FILL, IDS_HINT_LINEAR_NO_NODE_TRANSPARENCY};
constexpr int kHintEndDragging[] = {IDS_HINT_LINEAR_END_DRAGGING_FILL, IDS_HINT_LINEAR_END_DRAGGING_TRANSPARENCY};
constexpr int kHintEndOver[] = {IDS_HINT_LINEAR_END_OVER_FILL, IDS_HINT_LINEAR_END_OVER_TRANSPARENCY};
constexpr int kHintInnerDragging[] = {IDS_HINT_LINEAR_INNER_DRAGGING_FILL, IDS_HINT_LINEAR_INNER_DRAGGING_TRANSPARENCY};
constexpr int kHintInnerOver[] = {IDS_HINT_LINEAR_INNER_OVER_FILL, IDS_HINT_LINEAR_INNER_OVER_TRANSPARENCY};

} // namespace

void FillToolLinear::OnDragStart(CPoint& point, unsigned int flags)
{
    FillTool::OnDragStart(point, flags);
    const int h = IndexFromPoint(point);
    SetCurrentNode(h);
    if (h < 0 || h >= GetNumGradientNodes())
        SetCurrentNode(GetNumGradientNodes() - 1);
    RememberLine();
}

void FillToolLinear::OnDragChange(CPoint& point, unsigned int flags)
{
    // Dragging the start with Shift turns the line about its end.
    const std::optional<LineStep> step = BeginLineStep(point, flags, ToAtPress(), false);
    if (!step)
        return;
    const auto [shift, creating, press] = *step;
    if (creating) {
        // A click without a move still makes a line the user can see and grab.
        if (point == press)
            point = Kesto2D::OffsetPoint(point, 50, 50);
        SetCurrentNode(GetNumGradientNodes() - 1);
        DrawStopLine(press, point, shift);
        return;
    }
    const long long dx = static_cast<long long>(point.x) - press.x;
    const long long dy = static_cast<long long>(point.y) - press.y;
    if (IsFirstNode()) {
        CPoint start = Kesto2D::OffsetPoint(FromAtPress(), dx, dy);
        if (!shift)
            Snap(start, start);
        SetStopLine(start, ToAtPress());
    } else if (IsLastNode()) {
        DragStopLineEnd(press, point, shift);
    } else {
        // The stop may overtake a neighbour; the current node keeps its number regardless.
        SetGradientValue(GetCurrentNode(), GetPercentageFromPoint(point));
    }
}

void FillToolLinear::BuildHandleScene(HandleScene& scene) const
{
    CPoint s, e;
    if (!GetStopLine(nullptr, s, e))
        return;
    scene.AddLine(s, e, true);
    const KestoGDI::ColourIntPairs& stops = GetGradientNodes();
    for (int i = 0; i < stops.GetSize(); ++i)
        scene.AddHandle(stops.GetAt(i)->GetValue(s, e), &stops.GetAt(i)->GetColour(), i);
}

CRect FillToolLinear::GetFillRect(const CFill* fill)
{
    CPoint s, e;
    if (!fill && !GetFill()) {
        KestoKernel::VerifyFailed("KestoTool", "FillToolLinear", 153, "the tool has no fill: pass one");
        return {};
    }
    if (!GetStopLine(fill, s, e))
        return {};
    return {s.x, s.y, e.x, e.y};
}

K2DArrayPoint FillToolLinear::GetEffectiveBBox(const CFill* fill)
{
    CPoint s, e;
    if (!fill && !GetFill()) {
        KestoKernel::VerifyFailed("KestoTool", "FillToolLinear", 126, "the tool has no fill: pass one");
        return {};
    }
    if (!GetStopLine(fill, s, e))
        return {};
    return SquareOnLine(s, e);
}

int FillToolLinear::GetHintLine(CString* out) const
{
    const int* ids = kHintNoNode;
    const int c = GetHintNode();
    const bool dragging = IsInDrag();
    if (IsCreate())
        ids = kHintCreate;
    else if (c == -1)
        ids = kHintNoNode;
    else if (IsFirstNode(c) || IsLastNode(c))
        ids = dragging ? kHintEndDragging : kHintEndOver;
    else
        ids = dragging ? kHintInnerDragging : kHintInnerOver;
    ComposeHintLine(out, ids[0], ids[1]);
    return 1;
}

bool FillToolLinear::CheckSize() const
{
    CPoint s, e;
    return GetStopLine(nullptr, s, e) && Kesto2D::K2DGeometry::IDist(s, e) > 49;
}

} // namespace KestoTool
