#pragma once

#include "kestotool/gdi/CFillCentreAxes.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// An elliptical gradient: the image of a circle under the affine map that takes two
// perpendicular radii of the circle to centre-end and centre-shape.
class KESTO_API CFillEllipse : public CFillCentreAxes {
    KESTO_DECLARE_FILL(CFillEllipse)
public:
    FillType::Type GetFillType() const override { return FillType::Elliptical; }
};

} // namespace KestoGDI
