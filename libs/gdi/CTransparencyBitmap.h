#pragma once

#include "gdi/CFillBitmap.h"

namespace KestoGDI {

// Transparency taken from a tiled bitmap's intensities.
class CTransparencyBitmap : public CFillBitmap {
    KESTO_DECLARE_FILL(CTransparencyBitmap)
public:
    bool IsTransparency() const override { return true; }
};

} // namespace KestoGDI
