#pragma once

#include "kestotool/filltool/FillToolCornerColour.h"
#include "kestotool/gdi/CFillFourColour.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// Edits a four-colour fill or transparency: colour blended over the quadrilateral P0, P1, P3,
// P2 (P3 opposite P0). The handles go round the figure, P0, P1, P3, P2, so handle 2 is the
// opposite corner; handle i shows and edits node-list entry i. Dragging P1 or P2 keeps the
// figure a parallelogram about P0; dragging P3 slides both neighbours along their edges (with
// Ctrl, P3 itself moves only along the diagonal through P0).
class KESTO_API FillToolFourColour : public FillToolCornerColour<KestoGDI::CFillFourColour> {
    KESTO_DECLARE_DYNAMIC(FillToolFourColour)
public:
    FillToolFourColour(const CFill* fill, IToolSite* site)
        : FillToolCornerColour(fill, site, "FillToolFourColour", {0, 1, 3, 2}, {{{2, 3}, {2, 0}}})
    {
    }

    void OnDragChange(CPoint& point, unsigned int flags) override;

protected:
    // P2, P3, P1, P0, closed.
    K2DArrayPoint Outline(const Corners& corners) const override;
};

} // namespace KestoTool
