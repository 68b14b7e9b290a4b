#pragma once

#include "gdi/CFillWithStops.h"

namespace KestoGDI {

// A fill whose colours blend between the stops of its list: the line gradients (linear,
// radial, elliptical, conical, square), the three- and four-colour fills and the plasma fill.
class CFillGradient : public CFillWithStops {
    KESTO_DECLARE_DYNAMIC(CFillGradient)
protected:
    using CFillWithStops::CFillWithStops;
};

} // namespace KestoGDI
