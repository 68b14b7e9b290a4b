#pragma once

#include "kestotool/gdi/CFillCentreAxes.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// A square gradient: nested parallelograms round the centre, spanned by the two axes.
class KESTO_API CFillSquare : public CFillCentreAxes {
    KESTO_DECLARE_FILL(CFillSquare)
public:
    FillType::Type GetFillType() const override { return FillType::Square; }
};

} // namespace KestoGDI
