#pragma once

#include "kestotool/gdi/CFillFractal.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// Plasma transparency: fractal noise mapped through grey-level stops.
class KESTO_API CTransparencyFractal : public CFillFractal {
    KESTO_DECLARE_FILL(CTransparencyFractal)
public:
    CTransparencyFractal();
    bool IsTransparency() const override { return true; }
};

} // namespace KestoGDI
