#pragma once

#include "kestotool/gdi/CFillGradient.h"
#include "kestotool/gdi/FillWithControls.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// A conical gradient: the colours sweep round a centre, starting along the direction of the
// radius end point. Control points: 0 centre, 1 radius end.
class KESTO_API CFillConical : public FillWithControls<CFillGradient, 2> {
    KESTO_DECLARE_FILL(CFillConical)
public:
    CFillConical();

    FillType::Type GetFillType() const override { return FillType::Conical; }

    K2DDblPoint GetCentre() const { return Point(0); }
    K2DDblPoint GetEnd() const { return Point(1); }
    void SetControls(const K2DDblPoint& centre, const K2DDblPoint& radiusEnd) { SetPoints({centre, radiusEnd}); }
    using CFill::SetControls;
    // Centred, the radius end at the middle of the right edge.
    void SetDefaultControls(const CRect& rect) override;
};

} // namespace KestoGDI
