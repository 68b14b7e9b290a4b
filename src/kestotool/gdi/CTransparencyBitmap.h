#pragma once

#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// Transparency taken from a tiled bitmap's intensities.
class KESTO_API CTransparencyBitmap : public CFillBitmap {
    KESTO_DECLARE_FILL(CTransparencyBitmap)
public:
    bool IsTransparency() const override { return true; }
};

} // namespace KestoGDI
