#pragma once

#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// One transparency level over the whole object: its colour is a grey level, 0 opaque to 255
// clear.
class KESTO_API CTransparencyFlat : public CFillSolid {
    KESTO_DECLARE_FILL(CTransparencyFlat)
public:
    // Half transparent (level 128).
    CTransparencyFlat();
    bool IsTransparency() const override { return true; }
};

} // namespace KestoGDI
