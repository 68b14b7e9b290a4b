#pragma once

#include "kestotool/gdi/KestoGDIImports.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// Look-ups over the transparency classes. Transparencies derive from the fill kind they shape
// (a linear transparency is a CFillLinear) and answer IsTransparency; this class has no
// instances.
class KESTO_API CTransparency {
public:
    CTransparency() = delete;

    // The run-time class of the transparency kind with that type number (FillType); null for a
    // number no transparency has.
    static const CRuntimeClass* GetRuntimeClassFromType(int type);
};

} // namespace KestoGDI
