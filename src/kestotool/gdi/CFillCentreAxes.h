#pragma once

#include "kestotool/gdi/CFillGradient.h"
#include "kestotool/gdi/FillWithControls.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// The gradients placed by a centre and two axis ends, the elliptical and the square ones. The
// stops lie on the axis from the centre (position 0) to the end point (position 10000); the
// shape point ends the second axis. Control points: 0 centre, 1 end, 2 shape point.
class KESTO_API CFillCentreAxes : public FillWithControls<CFillGradient, 3> {
    KESTO_DECLARE_DYNAMIC(CFillCentreAxes)
public:
    K2DDblPoint GetCentre() const { return Point(0); }
    K2DDblPoint GetEnd() const { return Point(1); }
    K2DDblPoint GetShape() const { return Point(2); }
    void SetControls(const K2DDblPoint& centre, const K2DDblPoint& end, const K2DDblPoint& shape)
    {
        SetPoints({centre, end, shape});
    }
    using CFill::SetControls;
    // Centred, the end at the middle of the right edge and the shape point at the middle of the
    // top edge, so that the fill just fits the rectangle.
    void SetDefaultControls(const CRect& rect) override;

protected:
    CFillCentreAxes();
};

} // namespace KestoGDI
