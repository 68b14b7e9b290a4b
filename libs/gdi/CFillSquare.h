#pragma once

#include "gdi/CFillCentreAxes.h"

namespace KestoGDI {

// A square gradient: nested parallelograms round the centre, spanned by the two axes.
class CFillSquare : public CFillCentreAxes {
    KESTO_DECLARE_FILL(CFillSquare)
public:
    FillType::Type GetFillType() const override { return FillType::Square; }
};

} // namespace KestoGDI
