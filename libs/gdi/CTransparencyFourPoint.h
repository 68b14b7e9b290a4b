#pragma once

#include "gdi/CFillFourColour.h"

namespace KestoGDI {

// Transparency blended between four corner levels (grey levels, 0 opaque to 255 clear).
class CTransparencyFourPoint : public CFillFourColour {
    KESTO_DECLARE_FILL(CTransparencyFourPoint)
public:
    CTransparencyFourPoint();
    bool IsTransparency() const override { return true; }
};

} // namespace KestoGDI
