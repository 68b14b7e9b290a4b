#pragma once

#include "gdi/CFill.h"

namespace KestoGDI {

// No fill: the object is not painted. No control points.
class CFillNone : public CFill {
    KESTO_DECLARE_FILL(CFillNone)
public:
    FillType::Type GetFillType() const override { return FillType::None; }
};

} // namespace KestoGDI
