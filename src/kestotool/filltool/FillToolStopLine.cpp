#include "kestotool/filltool/FillToolStopLine.h"

#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/geometry/CoordinateRange.h"

#include <algorithm>

namespace KestoTool {

template <class Fill>
bool FillToolStopLine<Fill>::GetStopLine(const CFill* fill, CPoint& from, CPoint& to) const
{
    const Fill* placed = FillOfKind<Fill>(fill);
    if (!placed)
        return false;
    from = placed->GetControlPoint(0).Round();
    to = placed->GetControlPoint(1).Round();
    return true;
}

template <class Fill>
void FillToolStopLine<Fill>::SetStopLine(const CPoint& from, const CPoint& to)
{
    if (auto* placed = dynamic_cast<Fill*>(GetWorkingFill()))
        placed->SetControls(K2DDblPoint(from), K2DDblPoint(to));
}

template <class Fill>
void FillToolStopLine<Fill>::BaseGetHandles(K2DArrayPoint* handles) const
{
    CPoint from, to;
    if (GetStopLine(nullptr, from, to))
        AddGradientHandles(handles, from, to);
}

template <class Fill>
bool FillToolStopLine<Fill>::IsPointOnLine(const CPoint& point, int tolerance) const
{
    CPoint from, to;
    return GetStopLine(nullptr, from, to) && IsPointOnNodeLine(from, to, point, tolerance);
}

template <class Fill>
int FillToolStopLine<Fill>::GetPercentageFromPoint(CPoint point) const
{
    CPoint from, to;
    if (!GetStopLine(nullptr, from, to))
        return 1;
    return std::clamp(GetNodeValueFromPoints(from, to, point), 1, 9999);
}

template <class Fill>
void FillToolStopLine<Fill>::DrawStopLine(CPoint press, CPoint& point, bool shift)
{
    Snap(press, press);
    if (!shift)
        Snap(point, point);
    SetStopLine(press, point);
}

template <class Fill>
void FillToolStopLine<Fill>::DragStopLineEnd(CPoint press, CPoint point, bool shift)
{
    CPoint to = Kesto2D::OffsetPoint(m_toAtPress, press, point);
    if (!shift)
        Snap(to, to);
    SetStopLine(m_fromAtPress, to);
}

template <class Fill>
auto FillToolStopLine<Fill>::BeginLineStep(CPoint& point, unsigned flags, const CPoint& startAnchor, bool snapFlag)
    -> std::optional<LineStep>
{
    if (!CheckDragStarted())
        return std::nullopt;
    LineStep step{(flags & DragFlagShift) != 0, IsCreate(), DragOrigin(flags)};
    if (step.shift) {
        CPoint anchor = m_fromAtPress;
        if (step.creating) {
            anchor = step.press;
        } else if (IsFirstNode()) {
            anchor = startAnchor;
            step.press = m_fromAtPress;
        } else if (IsLastNode()) {
            step.press = m_toAtPress;
        }
        SnapAnglePoint(anchor, point, snapFlag);
    }
    return step;
}

template class FillToolStopLine<KestoGDI::CFillLinear>;
template class FillToolStopLine<KestoGDI::CFillRadial>;

} // namespace KestoTool
