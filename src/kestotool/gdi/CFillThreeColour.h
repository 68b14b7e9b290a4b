#pragma once

#include "kestotool/gdi/CFillGradient.h"
#include "kestotool/gdi/FillWithControls.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// Colour blended between three corner colours over a parallelogram. Control points: 0 the
// origin corner P0, 1 and 2 the ends P1 and P2 of the two arms from it; the fourth corner is
// P1 + P2 - P0. The stop list holds exactly three entries, the colours at P0, P1 and P2.
class KESTO_API CFillThreeColour : public FillWithControls<CFillGradient, 3> {
    KESTO_DECLARE_FILL(CFillThreeColour)
public:
    CFillThreeColour();

    FillType::Type GetFillType() const override { return FillType::ThreeColour; }

    void SetControls(const K2DDblPoint& p0, const K2DDblPoint& p1, const K2DDblPoint& p2) { SetPoints({p0, p1, p2}); }
    using CFill::SetControls;
    // P0 the top-left corner, P1 the top-right, P2 the bottom-left.
    void SetDefaultControls(const CRect& rect) override;
};

} // namespace KestoGDI
