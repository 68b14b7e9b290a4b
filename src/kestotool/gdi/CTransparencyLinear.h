#pragma once

#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// Transparency graded along a line; its stops are grey levels, 0 opaque to 255 clear.
class KESTO_API CTransparencyLinear : public CFillLinear {
    KESTO_DECLARE_FILL(CTransparencyLinear)
public:
    CTransparencyLinear();
    bool IsTransparency() const override { return true; }
};

} // namespace KestoGDI
