#pragma once

#include "kestotool/gdi/CFill.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// No fill: the object is not painted. No control points.
class KESTO_API CFillNone : public CFill {
    KESTO_DECLARE_FILL(CFillNone)
public:
    FillType::Type GetFillType() const override { return FillType::None; }
};

} // namespace KestoGDI
