#pragma once

#include "kestotool/gdi/CFillGradient.h"
#include "kestotool/gdi/FillWithControls.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// Colour blended between four corner colours. Control points: 0 a corner P0, 1 and 2 its two
// neighbours P1 and P2, 3 the corner P3 opposite P0. The stop list holds exactly four entries in
// the order that the tool's handles go round the figure: the colours at P0, P1, P3 and P2.
class KESTO_API CFillFourColour : public FillWithControls<CFillGradient, 4> {
    KESTO_DECLARE_FILL(CFillFourColour)
public:
    CFillFourColour();

    FillType::Type GetFillType() const override { return FillType::FourColour; }

    void SetControls(const K2DDblPoint& p0, const K2DDblPoint& p1, const K2DDblPoint& p2, const K2DDblPoint& p3)
    {
        SetPoints({p0, p1, p2, p3});
    }
    using CFill::SetControls;
    // P0 top-left, P1 top-right, P2 bottom-left, P3 bottom-right.
    void SetDefaultControls(const CRect& rect) override;
};

} // namespace KestoGDI
