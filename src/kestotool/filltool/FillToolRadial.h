#pragma once

#include "kestotool/filltool/FillToolStopLine.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// Edits a radial gradient fill or transparency: a circle given by its centre C and a rim point
// E, the stops on the radius C-E. The centre handle moves the whole circle, the rim handle its
// radius and angle, inner stops slide along the radius; dragging off the handles draws a new
// circle from its centre out.
class KESTO_API FillToolRadial : public FillToolStopLine<KestoGDI::CFillRadial> {
    KESTO_DECLARE_DYNAMIC(FillToolRadial)
public:
    FillToolRadial(const CFill* fill, IToolSite* site) : FillToolStopLine(fill, site) {}

    void OnDragStart(CPoint& point, unsigned int flags) override;
    void OnDragChange(CPoint& point, unsigned int flags) override;
    // The bounding box of the circle (fill, or the tool's own when null).
    CRect GetFillRect(const CFill* fill) override;
    // The rectangle (C, E), not normalised.
    CRect GetFillLineBox(const CFill* fill) override;
    int GetHintLine(CString* out) const override;
    int GradientIndex(int handle) const override { return LastStopForExtendedNode(handle); }
    // The square on the diameter through E: side 2r, centred on C, turned with the radius.
    K2DArrayPoint GetEffectiveBBox(const CFill* fill) override;

protected:
    void BuildHandleScene(HandleScene& scene) const override;
};

} // namespace KestoTool
