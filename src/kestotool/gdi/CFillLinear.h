#pragma once

#include "kestotool/gdi/CFillGradient.h"
#include "kestotool/gdi/FillWithControls.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// A linear gradient: stops along the line from the start point (position 0) to the end point
// (position 10000). Control points: 0 start, 1 end.
class KESTO_API CFillLinear : public FillWithControls<CFillGradient, 2> {
    KESTO_DECLARE_FILL(CFillLinear)
public:
    CFillLinear();

    FillType::Type GetFillType() const override { return FillType::Linear; }

    K2DDblPoint GetStart() const { return Point(0); }
    K2DDblPoint GetEnd() const { return Point(1); }
    void SetControls(const K2DDblPoint& start, const K2DDblPoint& end) { SetPoints({start, end}); }
    using CFill::SetControls;
    // From the middle of the left edge to the middle of the right edge.
    void SetDefaultControls(const CRect& rect) override;
};

} // namespace KestoGDI
