#pragma once

#include "gdi/CFillGradient.h"
#include "gdi/FillWithControls.h"

namespace KestoGDI {

// A square gradient: a parallelogram of nested outlines round the centre, set by the axis
// to the end point (along which the stops lie, position 0 at the centre and 10000 at the end)
// and the second axis to the shape point.
// Control points: 0 centre, 1 end, 2 shape point.
class CFillSquare : public FillWithControls<CFillGradient, 3> {
    KESTO_DECLARE_FILL(CFillSquare)
public:
    CFillSquare();

    FillType::Type GetFillType() const override { return FillType::Square; }
    const wchar_t* GetTypeAsString() const override { return L"Square"; }

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
