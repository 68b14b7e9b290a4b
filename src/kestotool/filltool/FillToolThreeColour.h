#pragma once

#include "kestotool/filltool/FillToolCornerColour.h"
#include "kestotool/gdi/CFillThreeColour.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// Edits a three-colour fill or transparency: colour blended over the parallelogram spanned by
// the arms P0-P1 and P0-P2, one colour per corner handle (handle i shows and edits node-list
// entry i). Dragging P0 moves the whole figure; dragging P1 or P2 turns the other arm with it,
// or with Ctrl moves it by the perpendicular offset; dragging off the handles draws a new one.
class KESTO_API FillToolThreeColour : public FillToolCornerColour<KestoGDI::CFillThreeColour> {
    KESTO_DECLARE_DYNAMIC(FillToolThreeColour)
public:
    FillToolThreeColour(const CFill* fill, IToolSite* site)
        : FillToolCornerColour(fill, site, "FillToolThreeColour", {0, 1, 2}, {{{0, 1}, {0, 2}}})
    {
    }

    void OnDragChange(CPoint& point, unsigned int flags) override;

protected:
    // The parallelogram P0, P1, P1 + P2 - P0, P2, closed.
    K2DArrayPoint Outline(const Corners& corners) const override;
};

} // namespace KestoTool
