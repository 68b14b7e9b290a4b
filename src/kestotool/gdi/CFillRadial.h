#pragma once

#include "kestotool/gdi/CFillGradient.h"
#include "kestotool/gdi/FillWithControls.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// A radial gradient: a circle given by its centre (position 0) and a point on its rim
// (position 10000). Control points: 0 centre, 1 rim point.
class KESTO_API CFillRadial : public FillWithControls<CFillGradient, 2> {
    KESTO_DECLARE_FILL(CFillRadial)
public:
    CFillRadial();

    FillType::Type GetFillType() const override { return FillType::Radial; }

    K2DDblPoint GetCentre() const { return Point(0); }
    K2DDblPoint GetEnd() const { return Point(1); }
    void SetControls(const K2DDblPoint& centre, const K2DDblPoint& rim) { SetPoints({centre, rim}); }
    using CFill::SetControls;
    // Centred, with the radius half the rectangle's longer side, the rim point to the right.
    void SetDefaultControls(const CRect& rect) override;
};

} // namespace KestoGDI
