#pragma once

#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// Transparency graded out from a centre; its stops are grey levels, 0 opaque to 255 clear.
class KESTO_API CTransparencyRadial : public CFillRadial {
    KESTO_DECLARE_FILL(CTransparencyRadial)
public:
    CTransparencyRadial();
    bool IsTransparency() const override { return true; }
};

} // namespace KestoGDI
