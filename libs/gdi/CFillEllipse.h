#pragma once

#include "gdi/CFillGradient.h"
#include "gdi/FillWithControls.h"

namespace KestoGDI {

// An elliptical gradient: the image of a circle under the affine map that takes its two
// perpendicular radii to centre-end and centre-shape. Stops lie on the radius from the centre
// (position 0) to the end point (position 10000).
// Control points: 0 centre, 1 end, 2 shape point.
class CFillEllipse : public FillWithControls<CFillGradient, 3> {
    KESTO_DECLARE_FILL(CFillEllipse)
public:
    CFillEllipse();

    FillType::Type GetFillType() const override { return FillType::Elliptical; }
    const wchar_t* GetTypeAsString() const override { return L"Elliptical"; }

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
};

} // namespace KestoGDI
