#pragma once

#include "kestotool/filltool/FillToolGradient.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// Edits a linear gradient fill or transparency: a line from the start point S to the end point
// E with the stops along it. Dragging off the handles draws a new line; the ends are dragged
// with Shift constraining the angle (and then not snapping to the grid); inner stops slide
// along the line.
class KESTO_API FillToolLinear : public FillToolGradient {
    KESTO_DECLARE_DYNAMIC(FillToolLinear)
public:
    FillToolLinear(const CFill* fill, IToolSite* site) : FillToolGradient(fill, site) {}

    void OnDragStart(CPoint& point, unsigned int flags) override;
    void OnDragChange(CPoint& point, unsigned int flags) override;
    void BuildHandleScene(HandleScene& scene) const override;
    // The rectangle (S, E) of fill (the tool's own when null), not normalised.
    CRect GetFillRect(const CFill* fill) override;
    int GetHintLine(CString* out) const override;
    bool CanCreateNewNode() const override { return true; }
    void BaseGetHandles(K2DArrayPoint* handles) const override;
    bool IsPointOnLine(const CPoint& point, int tolerance) const override;
    // The position of point along the line, kept off the ends: 1..9999.
    int GetPercentageFromPoint(CPoint point) const override;
    bool CheckSize() const override;
    // The square that has the line as its centre line.
    K2DArrayPoint GetEffectiveBBox(const CFill* fill) override;

private:
    // The line of fill, or of the tool's fill.
    bool GetLine(const CFill* fill, CPoint& start, CPoint& end) const;
    void SetLine(const CPoint& start, const CPoint& end);

    CPoint m_startAtPress;
    CPoint m_endAtPress;
};

} // namespace KestoTool
