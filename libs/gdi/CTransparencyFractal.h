#pragma once

#include "gdi/CFillFractal.h"

namespace KestoGDI {

// Plasma transparency: fractal noise mapped through grey-level stops.
class CTransparencyFractal : public CFillFractal {
    KESTO_DECLARE_FILL(CTransparencyFractal)
public:
    CTransparencyFractal();
    bool IsTransparency() const override { return true; }
};

} // namespace KestoGDI
