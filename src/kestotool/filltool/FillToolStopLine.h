#pragma once

#include "kestotool/filltool/FillToolGradient.h"
#include "kestotool/platform/Export.h"

#include <optional>

namespace KestoTool {

// What the linear and radial tools do alike: their fill (of class Fill) carries its stops on
// the line from its first control point to its second (S-E, C-E). The handles are the stops on
// that line, a press near it is on the line, positions along it run 0..10000, and a colour
// dropped on it adds a stop.
template <class Fill>
class KESTO_API FillToolStopLine : public FillToolGradient {
public:
    bool CanCreateNewNode() const override { return true; }
    void BaseGetHandles(K2DArrayPoint* handles) const override;
    bool IsPointOnLine(const CPoint& point, int tolerance) const override;
    // The position of point along the line, kept off the ends: 1..9999.
    int GetPercentageFromPoint(CPoint point) const override;

protected:
    FillToolStopLine(const CFill* fill, IToolSite* site) : FillToolGradient(fill, site) {}

    // The line of fill (the tool's own when null); false without a fill of the kind.
    bool GetStopLine(const CFill* fill, CPoint& from, CPoint& to) const;
    void SetStopLine(const CPoint& from, const CPoint& to);

    // The line as it was at the drag's press (RememberLine, from OnDragStart).
    void RememberLine() { GetStopLine(nullptr, m_fromAtPress, m_toAtPress); }
    const CPoint& FromAtPress() const { return m_fromAtPress; }
    const CPoint& ToAtPress() const { return m_toAtPress; }
    // A new line drawn from press to point: press snaps to the grid, and point too (in place)
    // unless shift.
    void DrawStopLine(CPoint press, CPoint& point, bool shift);
    // The line's second point moved from the press by the pointer's move press -> point,
    // snapped unless shift; the first stays.
    void DragStopLineEnd(CPoint press, CPoint point, bool shift);

    // A drag step's start, alike for both tools: whether Shift is held, whether a new line is
    // drawn, and the press the move counts from (the line's end being dragged, at the press).
    // With Shift the pointer is held to the angle steps about the line's start at the press, or
    // the press for a new line, or startAnchor while the start itself is dragged; snapFlag is
    // SnapAnglePoint's. Nothing before the drag has started.
    struct LineStep {
        bool shift;
        bool creating;
        CPoint press;
    };
    std::optional<LineStep> BeginLineStep(CPoint& point, unsigned flags, const CPoint& startAnchor, bool snapFlag);

private:
    CPoint m_fromAtPress;
    CPoint m_toAtPress;
};

} // namespace KestoTool
