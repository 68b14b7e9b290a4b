#pragma once

#include "kestotool/gdi/CFillConical.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// Transparency swept round a centre; its stops are grey levels, 0 opaque to 255 clear.
class KESTO_API CTransparencyConical : public CFillConical {
    KESTO_DECLARE_FILL(CTransparencyConical)
public:
    CTransparencyConical();
    bool IsTransparency() const override { return true; }
};

} // namespace KestoGDI
