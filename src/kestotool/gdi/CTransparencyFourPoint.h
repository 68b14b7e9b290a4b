#pragma once

#include "kestotool/gdi/CFillFourColour.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// Transparency blended between four corner levels (grey levels, 0 opaque to 255 clear).
class KESTO_API CTransparencyFourPoint : public CFillFourColour {
    KESTO_DECLARE_FILL(CTransparencyFourPoint)
public:
    CTransparencyFourPoint();
    bool IsTransparency() const override { return true; }
};

} // namespace KestoGDI
