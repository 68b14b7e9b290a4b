#pragma once

#include "kestotool/filltool/FillToolStopLine.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// Edits a linear gradient fill or transparency: a line from the start point S to the end point
// E with the stops along it. Dragging off the handles draws a new line; the ends are dragged
// with Shift constraining the angle (and then not snapping to the grid); inner stops slide
// along the line.
class KESTO_API FillToolLinear : public FillToolStopLine<KestoGDI::CFillLinear> {
    KESTO_DECLARE_DYNAMIC(FillToolLinear)
public:
    FillToolLinear(const CFill* fill, IToolSite* site) : FillToolStopLine(fill, site) {}

    void OnDragStart(CPoint& point, unsigned int flags) override;
    void OnDragChange(CPoint& point, unsigned int flags) override;
    // The rectangle (S, E) of fill (the tool's own when null), not normalised.
    CRect GetFillRect(const CFill* fill) override;
    int GetHintLine(CString* out) const override;
    bool CheckSize() const override;
    // The square that has the line as its centre line.
    K2DArrayPoint GetEffectiveBBox(const CFill* fill) override;

protected:
    void BuildHandleScene(HandleScene& scene) const override;
};

} // namespace KestoTool
