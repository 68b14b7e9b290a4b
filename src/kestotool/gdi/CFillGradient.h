#pragma once

#include "kestotool/gdi/CFillWithStops.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// A fill whose colours blend between the stops of its list: the line gradients (linear,
// radial, elliptical, conical, square), the three- and four-colour fills and the plasma fill.
class KESTO_API CFillGradient : public CFillWithStops {
    KESTO_DECLARE_DYNAMIC(CFillGradient)
protected:
    using CFillWithStops::CFillWithStops;
};

} // namespace KestoGDI
