#pragma once

#include "kestotool/gdi/CFillThreeColour.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// Transparency blended between three corner levels (grey levels, 0 opaque to 255 clear).
class KESTO_API CTransparencyThreePoint : public CFillThreeColour {
    KESTO_DECLARE_FILL(CTransparencyThreePoint)
public:
    CTransparencyThreePoint();
    bool IsTransparency() const override { return true; }
};

} // namespace KestoGDI
